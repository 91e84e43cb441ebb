// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notetext.h"

#include "loaders/dates.h"

#include <daskel/daskellocale.h>
#include <mkcal/extendedcalendar.h>

#include <KCalendarCore/Alarm>
#include <KCalendarCore/Todo>

#include <QBitArray>

using KCalCore::Attendee;
using KCalCore::Incidence;

namespace
{
constexpr int secondsPerMinute = 60;
constexpr int secondsPerHour = 60 * secondsPerMinute;
constexpr int secondsPerDay = 24 * secondsPerHour;

QString moment(const QDateTime &time, bool isAllDay)
{
    const QString day = Dates::fullDayText(time.date());
    return isAllDay ? day
                    : qtTrId("qtn_dcal_day_and_time").arg(day, DaskelLocale::formatShortTime(time));
}

QString span(const QDateTime &start, const QDateTime &end, bool isAllDay)
{
    // The end of an all-day one is the day after its last.
    const QDateTime last = isAllDay && end.date() > start.date() ? end.addDays(-1) : end;
    QString first = moment(start, isAllDay);
    if (!last.isValid() || last == start || (isAllDay && last.date() == start.date()))
        return first;
    const bool isOneDay = last.date() == start.date();
    return qtTrId("qtn_dcal_from_to")
        .arg(first, isOneDay ? DaskelLocale::formatShortTime(last) : moment(last, isAllDay));
}

QString interval(const KCalCore::Recurrence &recurrence)
{
    const int frequency = recurrence.frequency();
    switch (recurrence.recurrenceType()) {
    case KCalCore::Recurrence::rMinutely:
        return qtTrId("qtn_dcal_every_minutes", frequency);
    case KCalCore::Recurrence::rHourly:
        return qtTrId("qtn_dcal_every_hours", frequency);
    case KCalCore::Recurrence::rDaily:
        return qtTrId("qtn_dcal_every_days", frequency);
    case KCalCore::Recurrence::rWeekly:
        return qtTrId("qtn_dcal_every_weeks", frequency);
    case KCalCore::Recurrence::rMonthlyDay:
    case KCalCore::Recurrence::rMonthlyPos:
        return qtTrId("qtn_dcal_every_months", frequency);
    case KCalCore::Recurrence::rYearlyDay:
    case KCalCore::Recurrence::rYearlyMonth:
    case KCalCore::Recurrence::rYearlyPos:
        return qtTrId("qtn_dcal_every_years", frequency);
    default:
        return qtTrId("qtn_dcal_repeats");
    }
}

QString weekdays(const KCalCore::Recurrence &recurrence)
{
    if (recurrence.recurrenceType() != KCalCore::Recurrence::rWeekly)
        return {};
    constexpr int daysOfWeek = 7;
    const QDate monday(2026, 11, 16);
    const QBitArray days = recurrence.days();
    QStringList names;
    for (int day = 0; day < daysOfWeek && day < days.size(); ++day) {
        if (days.testBit(day))
            names << Dates::weekdayName(monday.addDays(day));
    }
    return names.join(qtTrId("qtn_dcal_list_separator"));
}

/// Invalid for what has no end.
QDate lastDay(const KCalCore::Recurrence &recurrence)
{
    if (recurrence.duration() < 0)
        return {};
    return recurrence.allDay() ? recurrence.endDate()
                               : recurrence.endDateTime().toLocalTime().date();
}

const char *statusId(Attendee::PartStat status)
{
    switch (status) {
    case Attendee::Accepted:
        return "qtn_dcal_accepted";
    case Attendee::Declined:
        return "qtn_dcal_declined";
    case Attendee::Tentative:
        return "qtn_dcal_maybe";
    default:
        return "qtn_dcal_no_answer";
    }
}
} // namespace

QString NoteText::when(const Incidence::Ptr &incidence, const QDateTime &start)
{
    if (const auto todo = incidence.dynamicCast<KCalCore::Todo>()) {
        const bool isOccurrence = todo->recurs() && start.isValid();
        const QDateTime due = isOccurrence ? start : todo->dtDue();
        return due.isValid() ? qtTrId("qtn_dcal_due").arg(moment(due.toLocalTime(), todo->allDay()))
                             : QString();
    }
    const QDateTime occurrence =
        incidence->recurs() ? mKCal::previousOccurrence(incidence, start) : incidence->dtStart();
    if (!occurrence.isValid())
        return start.isValid() ? moment(start, incidence->allDay()) : QString();
    if (incidence->type() == Incidence::TypeJournal)
        return moment(occurrence.toLocalTime(), true);
    return span(occurrence.toLocalTime(), mKCal::occurrenceEnd(incidence, occurrence).toLocalTime(),
                incidence->allDay());
}

QString NoteText::repetition(const Incidence &incidence)
{
    if (!incidence.recurs())
        return {};
    const KCalCore::Recurrence &recurrence = *incidence.recurrence();
    QString text = interval(recurrence);
    const QString days = weekdays(recurrence);
    if (!days.isEmpty())
        text = qtTrId("qtn_dcal_repeats_on").arg(text, days);
    if (recurrence.duration() > 0)
        text = qtTrId("qtn_dcal_repeats_times", recurrence.duration()).arg(text);
    else if (lastDay(recurrence).isValid())
        text = qtTrId("qtn_dcal_repeats_until").arg(text, Dates::dateText(lastDay(recurrence)));
    return text;
}

QString NoteText::reminder(const KCalCore::Alarm &alarm)
{
    if (alarm.hasTime())
        return moment(alarm.time().toLocalTime(), false);
    const int offset =
        alarm.hasEndOffset() ? alarm.endOffset().asSeconds() : alarm.startOffset().asSeconds();
    if (offset == 0)
        return qtTrId("qtn_dcal_at_start");
    const int distance = qAbs(offset);
    const bool isBefore = offset < 0;
    if (distance % secondsPerDay == 0) {
        const int days = distance / secondsPerDay;
        return isBefore ? qtTrId("qtn_dcal_days_before", days)
                        : qtTrId("qtn_dcal_days_after", days);
    }
    if (distance % secondsPerHour == 0) {
        const int hours = distance / secondsPerHour;
        return isBefore ? qtTrId("qtn_dcal_hours_before", hours)
                        : qtTrId("qtn_dcal_hours_after", hours);
    }
    const int minutes = distance / secondsPerMinute;
    return isBefore ? qtTrId("qtn_dcal_minutes_before", minutes)
                    : qtTrId("qtn_dcal_minutes_after", minutes);
}

QString NoteText::participant(const Attendee &attendee)
{
    const QString name = attendee.name().isEmpty() ? attendee.email() : attendee.name();
    return qtTrId("qtn_dcal_participant").arg(name, qtTrId(statusId(attendee.status())));
}
