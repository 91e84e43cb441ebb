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
constexpr int dateLength = 8;

/// The DATE or DATE-TIME that stands in a property's line; invalid when it is neither, and when its
/// zone is not the system's.
QDateTime timeOf(const QByteArray &line)
{
    const QString value = QString::fromLatin1(ContentLine::value(line).trimmed());
    const QDate date = QDate::fromString(value.left(dateLength), QStringLiteral("yyyyMMdd"));
    if (value.size() == dateLength) {
        return date.startOfDay(Qt::LocalTime);
    }
    const QTime time = QTime::fromString(value.mid(dateLength, 7), QStringLiteral("'T'HHmmss"));
    const QByteArray zoneName = ContentLine::parameter(line, "TZID");
    if (!date.isValid() || !time.isValid()) {
        return QDateTime();
    }
    if (value.endsWith(QLatin1Char('Z'))) {
        return QDateTime(date, time, Qt::UTC);
    }
    if (zoneName.isEmpty()) {
        return KDateTime(date, time, KDateTime::Spec::ClockTime()).dateTime();
    }
    const QTimeZone zone(zoneName);
    return zone.isValid() ? KDateTime(date, time, KDateTime::Spec(zone)).dateTime() : QDateTime();
}

bool isDate(const QByteArray &line)
{
    return ContentLine::value(line).trimmed().size() == dateLength;
}
} // namespace

QByteArray recurrenceIdentity(const CalendarComponent &component)
{
    if (component.recurrenceId.isEmpty()) {
        return QByteArray();
    }
    const QDateTime time = timeOf(ContentLine::find(component.text, "RECURRENCE-ID"));
    return time.isValid() && component.recurrenceId.size() > dateLength
        ? time.toUTC().toString(Qt::ISODate).toLatin1()
        : component.recurrenceId;
}

void readMissingTimes(const CalendarComponent &component, const KCalCore::Incidence::Ptr &incidence)
{
    if (!incidence->dtStart().isValid()) {
        const QByteArray line = ContentLine::find(component.text, "DTSTART");
        const QDateTime start = timeOf(line);
        if (start.isValid()) {
            incidence->setDtStart(start);
            incidence->setAllDay(isDate(line));
        }
    }
    if (!incidence->recurrenceId().isValid() && !component.recurrenceId.isEmpty()) {
        incidence->setRecurrenceId(timeOf(ContentLine::find(component.text, "RECURRENCE-ID")));
    }
    const auto event = incidence.dynamicCast<KCalCore::Event>();
    const auto todo = incidence.dynamicCast<KCalCore::Todo>();
    if (event && (!event->hasEndDate() || !event->dtEnd().isValid())) {
        const QByteArray line = ContentLine::find(component.text, "DTEND");
        const QDateTime end = timeOf(line);
        if (end.isValid()) {
            // As ICalFormat hands them out: the last day of an all-day event.
            event->setDtEnd(isDate(line) ? end.date().addDays(-1).startOfDay(Qt::LocalTime) : end);
        }
    } else if (todo && !todo->dtDue(true).isValid()) {
        const QByteArray line = ContentLine::find(component.text, "DUE");
        const QDateTime due = timeOf(line);
        if (due.isValid()) {
            todo->setDtDue(due, true);
            todo->setAllDay(isDate(line));
        }
    }
}
} // namespace mKCal
