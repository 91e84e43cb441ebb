// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "missingtimes.h"

#include "contentline.h"

#include <kcalcompat/kdatetime.h>

#include <KCalendarCore/Event>
#include <KCalendarCore/Todo>

#include <QTimeZone>

namespace mKCal
{
namespace
{
struct TimeValue {
    QDateTime time;
    bool isDate = false;
};

/// The DATE or local DATE-TIME of that property; invalid when it is neither.
TimeValue timeOf(const QByteArray &component, const char *property)
{
    const QByteArray line = ContentLine::find(component, property);
    const QString value = QString::fromLatin1(ContentLine::value(line).trimmed());
    const QDate date = QDate::fromString(value.left(8), QStringLiteral("yyyyMMdd"));
    if (value.size() == 8) {
        return {date.startOfDay(Qt::LocalTime), true};
    }
    const QTime time = QTime::fromString(value.mid(8), QStringLiteral("'T'HHmmss"));
    if (!date.isValid() || !time.isValid()) {
        return {};
    }
    const QTimeZone zone(ContentLine::parameter(line, "TZID"));
    const auto clock = zone.isValid() ? KDateTime::Spec(zone) : KDateTime::Spec::ClockTime();
    return {KDateTime(date, time, clock).dateTime(), false};
}
} // namespace

void readMissingTimes(const QByteArray &component, const KCalCore::Incidence::Ptr &incidence)
{
    if (!incidence->dtStart().isValid()) {
        const TimeValue start = timeOf(component, "DTSTART");
        if (start.time.isValid()) {
            incidence->setDtStart(start.time);
            incidence->setAllDay(start.isDate);
        }
    }
    if (!incidence->recurrenceId().isValid() && component.contains("RECURRENCE-ID")) {
        const TimeValue recurrenceId = timeOf(component, "RECURRENCE-ID");
        if (recurrenceId.time.isValid()) {
            incidence->setRecurrenceId(recurrenceId.time);
        }
    }
    const auto event = incidence.dynamicCast<KCalCore::Event>();
    const auto todo = incidence.dynamicCast<KCalCore::Todo>();
    if (event && (!event->hasEndDate() || !event->dtEnd().isValid())) {
        const TimeValue end = timeOf(component, "DTEND");
        if (end.time.isValid()) {
            // As ICalFormat hands them out: the last day of an all-day event.
            event->setDtEnd(end.isDate ? end.time.date().addDays(-1).startOfDay(Qt::LocalTime)
                                       : end.time);
        }
    } else if (todo && !todo->dtDue(true).isValid()) {
        const TimeValue due = timeOf(component, "DUE");
        if (due.time.isValid()) {
            todo->setDtDue(due.time, true);
            todo->setAllDay(due.isDate);
        }
    }
}
} // namespace mKCal
