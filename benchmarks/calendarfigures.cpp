// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bench.h"

#include <KCalendarCore/Recurrence>

#include <QTimeZone>

using namespace mKCal;

namespace
{
constexpr int rounds = 9;
constexpr int seriesCount = 1000;

ExtendedCalendar::Ptr calendarOf(const KCalCore::Incidence::List &incidences)
{
    const ExtendedCalendar::Ptr calendar(new ExtendedCalendar(QTimeZone::systemTimeZone()));
    require(calendar->addNotebook(sampleNotebook, true), sampleNotebook);
    for (const auto &incidence : incidences) {
        require(calendar->addIncidence(incidence, sampleNotebook), incidence->uid());
    }
    return calendar;
}

void measureQuery(const Bench &bench)
{
    const QString name = QStringLiteral("31-day query of the calendar");
    if (!bench.wants(name)) {
        return;
    }
    constexpr int queries = 200; // one takes far less than the clock can tell
    const QDate first = SampleData::middle();
    const QDate last = first.addDays(30);
    for (const int count : {10000, 100000}) {
        const auto calendar = calendarOf(SampleData::incidences({count}));
        const QTimeZone zone = calendar->timeZone();
        int found = 0;
        int inherited = 0;
        const auto ours = [&] {
            return microseconds([&] {
                       for (int i = 0; i < queries; ++i) {
                           found = calendar->rawEvents(first, last, zone, false).size();
                       }
                   })
                / queries;
        };
        const auto floor = [&] {
            return microseconds([&] {
                inherited = calendar->MemoryCalendar::rawEvents(first, last, zone, false).size();
            });
        };
        const Times times = inTurn(rounds, ours, floor);
        bench.add({name,
                   count,
                   times,
                   count == 100000 ? Aim{Aim::FasterBy, 200} : Aim{},
                   {{QStringLiteral("events"), found},
                    {QStringLiteral("events by the inherited query"), inherited}}});
    }
}

/// What stands below every expansion: each series asked for its next occurrence until the end.
int walk(const KCalCore::Incidence::List &series, const QDateTime &start, const QDateTime &end)
{
    int occurrences = 0;
    for (const auto &incidence : series) {
        const auto *recurrence = incidence->recurrence();
        QDateTime next = recurrence->getNextDateTime(start.addSecs(-1));
        while (next.isValid() && next < end) {
            ++occurrences;
            next = recurrence->getNextDateTime(next);
        }
    }
    return occurrences;
}

void measureExpansion(const Bench &bench)
{
    const QString name = QStringLiteral("expandRecurrences, 1,000 series, 60 days");
    if (!bench.wants(name)) {
        return;
    }
    auto series = SampleData::series(seriesCount);
    const auto calendar = calendarOf(series);
    const KDateTime start(SampleData::middle(), QTime(0, 0), KDateTime::Spec::LocalZone());
    const KDateTime end = start.addDays(60);
    int expanded = 0;
    int walked = 0;
    const Times times = inTurn(
        rounds,
        [&] {
            return microseconds(
                [&] { expanded = calendar->expandRecurrences(&series, start, end, 1000).size(); });
        },
        [&] {
            return microseconds([&] { walked = walk(series, start.dateTime(), end.dateTime()); });
        });
    bench.add({name,
               seriesCount,
               times,
               {Aim::AtMost, 1.5},
               {{QStringLiteral("occurrences"), expanded},
                {QStringLiteral("occurrences walked"), walked}}});
}
} // namespace

void measureCalendar(const Bench &bench)
{
    measureQuery(bench);
    measureExpansion(bench);
}
