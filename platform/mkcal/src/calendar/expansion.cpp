// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "extendedcalendar_p.h"
#include "occurrences.h"
#include "recurrenceidentity.h"

#include <algorithm>

using namespace mKCal;

namespace
{
bool isBefore(const Occurrence &a, const Occurrence &b)
{
    if (a.span.start != b.span.start) {
        return a.span.start < b.span.start;
    }
    if (a.span.end != b.span.end) {
        return a.span.end < b.span.end;
    }
    const int byUid = a.incidence->uid().compare(b.incidence->uid());
    return byUid != 0 ? byUid < 0 : a.incidence->recurrenceId() < b.incidence->recurrenceId();
}

ExtendedCalendar::ExpandedIncidenceList ordered(QVector<Occurrence> occurrences,
                                                const ZoneClock &clock)
{
    std::stable_sort(occurrences.begin(), occurrences.end(), isBefore);
    ExtendedCalendar::ExpandedIncidenceList list;
    list.reserve(occurrences.size());
    for (const Occurrence &occurrence : qAsConst(occurrences)) {
        list.append({{clock.dateTime(occurrence.span.start), clock.dateTime(occurrence.span.end)},
                     occurrence.incidence});
    }
    return list;
}

/// The occurrences of a list of incidences in one window.
class Expansion
{
public:
    Expansion(const TimeSpan &window, int maxExpand, const ZoneClock &clock)
        : m_window(window), m_maxExpand(maxExpand), m_clock(clock)
    {
    }

    void addSingle(const KCalCore::Incidence::Ptr &incidence);
    void addSeries(const KCalCore::Incidence::Ptr &series,
                   const KCalCore::Incidence::List &exceptions);

    bool isLimitHit() const { return m_isLimitHit; }
    QVector<Occurrence> take() { return std::move(m_occurrences); }

private:
    TimeSpan m_window;
    int m_maxExpand;
    ZoneClock m_clock;
    QSet<const KCalCore::Incidence *> m_exceptions; ///< already looked at
    QVector<Occurrence> m_occurrences;
    bool m_isLimitHit = false;
};

void Expansion::addSingle(const KCalCore::Incidence::Ptr &incidence)
{
    if (incidence->hasRecurrenceId()) {
        if (m_exceptions.contains(incidence.data())) {
            return;
        }
        m_exceptions.insert(incidence.data());
        if (incidence->status() == KCalCore::Incidence::StatusCanceled) {
            return;
        }
    }
    const TimeSpan span = spanOf(*incidence, m_clock);
    if (span.overlaps(m_window.start, m_window.end)) {
        m_occurrences.append({span, incidence});
    }
}

void Expansion::addSeries(const KCalCore::Incidence::Ptr &series,
                          const KCalCore::Incidence::List &exceptions)
{
    int started = 0;
    const auto take = [this, &started](const Occurrence &occurrence, const SeriesWalk &) {
        if (occurrence.span.start >= m_window.start) {
            if (started >= m_maxExpand) {
                m_isLimitHit = true;
                return SeriesOccurrences::Stop;
            }
            ++started;
        }
        m_occurrences.append(occurrence);
        const bool isFull = started > 0 && started == m_maxExpand;
        m_isLimitHit = m_isLimitHit || isFull;
        return isFull ? SeriesOccurrences::Stop : SeriesOccurrences::Continue;
    };
    SeriesOccurrences(series, exceptions, m_clock).visit(m_window.start, m_window.end, take);
    for (const KCalCore::Incidence::Ptr &exception : exceptions) {
        if (anchor(*exception).isValid()) {
            addSingle(exception);
        }
    }
}

/// The exceptions of one UID in the calendar, those handed over in place of their older versions.
KCalCore::Incidence::List merged(const KCalCore::Incidence::List &handedOver,
                                 const KCalCore::Incidence::List &inCalendar, bool byDate,
                                 const QTimeZone &zone)
{
    KCalCore::Incidence::List exceptions = handedOver;
    for (const KCalCore::Incidence::Ptr &exception : inCalendar) {
        const auto names = [&](const KCalCore::Incidence::Ptr &other) {
            return isSameOccurrence(other->recurrenceId(), exception->recurrenceId(), byDate, zone);
        };
        if (std::none_of(handedOver.cbegin(), handedOver.cend(), names)) {
            exceptions.append(exception);
        }
    }
    return exceptions;
}
} // namespace

ExtendedCalendar::ExpandedIncidenceList
ExtendedCalendar::expandRecurrences(KCalCore::Incidence::List *incidences, const KDateTime &start,
                                    const KDateTime &end, int maxExpand, bool *expandLimitHit) const
{
    const TimeSpan window{start.dateTime().toMSecsSinceEpoch(), end.dateTime().toMSecsSinceEpoch()};
    if (!incidences || !start.isValid() || !end.isValid() || window.start >= window.end) {
        return {};
    }
    QHash<QString, KCalCore::Incidence::List> handedOver;
    for (const KCalCore::Incidence::Ptr &incidence : qAsConst(*incidences)) {
        if (incidence && incidence->hasRecurrenceId()) {
            handedOver[incidence->uid()].append(incidence);
        }
    }
    const ZoneClock &clock = d->clock;
    Expansion expansion(window, maxExpand, clock);
    for (const KCalCore::Incidence::Ptr &incidence : qAsConst(*incidences)) {
        if (!incidence || !anchor(*incidence).isValid()) {
            continue;
        }
        if (incidence->hasRecurrenceId() || !incidence->recurs()) {
            expansion.addSingle(incidence);
            continue;
        }
        const QString uid = incidence->uid();
        expansion.addSeries(
            incidence,
            merged(handedOver.value(uid), d->exceptionsOf(uid), incidence->allDay(), clock.zone()));
    }
    if (expandLimitHit && expansion.isLimitHit()) {
        *expandLimitHit = true;
    }
    return ordered(expansion.take(), clock);
}

ExtendedCalendar::ExpandedIncidenceList
ExtendedCalendar::expandMultiDay(const ExpandedIncidenceList &list, const QDate &start,
                                 const QDate &end, int maxExpand, bool merge,
                                 bool *expandLimitHit) const
{
    const ZoneClock &clock = d->clock;
    const TimeSpan window{clock.dayStart(start), clock.dayStart(end)};
    QVector<Occurrence> pieces;
    QHash<const KCalCore::Incidence *, int> counts;
    for (const ExpandedIncidence &expanded : list) {
        const TimeSpan span{expanded.first.dtStart.toMSecsSinceEpoch(),
                            expanded.first.dtEnd.toMSecsSinceEpoch()};
        if (!span.overlaps(window.start, window.end)) {
            continue;
        }
        const QDate firstDay = clock.date(span.start);
        if (span.end <= clock.dayStart(firstDay.addDays(1))) {
            if (merge) {
                pieces.append({span, expanded.second});
            }
            continue;
        }
        const bool isCapped = expanded.second->recurs();
        for (QDate day = qMax(firstDay, start); day < end; day = day.addDays(1)) {
            const TimeSpan piece{qMax(span.start, clock.dayStart(day)),
                                 qMin(span.end, clock.dayStart(day.addDays(1)))};
            if (piece.start >= piece.end) {
                break;
            }
            int &count = counts[expanded.second.data()];
            if (isCapped && count >= maxExpand) {
                break;
            }
            pieces.append({piece, expanded.second});
            ++count;
            if (isCapped && count == maxExpand && expandLimitHit) {
                *expandLimitHit = true;
            }
        }
    }
    return ordered(pieces, clock);
}
