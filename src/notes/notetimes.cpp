// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notetimes.h"

#include "notedetails.h"

#include <daskel/daskellocale.h>
#include <daskel/notewidgetmodel.h>

namespace
{
/// In the order and with the points that are usual, whatever fields \a skeleton (Unicode TS 35)
/// names.
QString formatted(const QDate &day, const char *skeleton)
{
    const MLocale &locale = DaskelLocale::systemLocale();
    // Each day has a noon.
    return locale.formatDateTimeICU(QDateTime(day, QTime(12, 0)),
                                    locale.icuPatternFor(QLatin1String(skeleton)));
}

/// Of a year that is not \a now's; else empty.
QString otherYear(const QDate &day, const QDateTime &now)
{
    return day.year() == now.date().year() ? QString() : formatted(day, "y");
}

/// The last day on which something that ends at \a end is still there.
QDate lastDay(const QDateTime &end)
{
    return end == end.date().startOfDay() ? end.date().addDays(-1) : end.date();
}

/// Of a later day of what began before: until when.
NoteTimes continuedTimes(const NoteWidgetModel &model, const QDateTime &end)
{
    const bool endsToday = lastDay(end) == model.startTime().date();
    const bool hasTime = endsToday && !model.allDay() && end.date() == lastDay(end);
    return {qtTrId("qtn_caln_until"),
            hasTime ? DaskelLocale::formatShortTime(end) : dayAndMonth(lastDay(end))};
}

NoteTimes eventTimes(const NoteWidgetModel &model, const NoteDetails &details)
{
    const QDateTime &start = model.startTime();
    const QDateTime &end = details.occurrenceEnd;
    if (!start.isValid())
        return {};
    if (details.occurrenceStart.isValid() && details.occurrenceStart.date() < start.date())
        return continuedTimes(model, end);
    const QString first =
        model.allDay() ? qtTrId("qtn_caln_all_day") : DaskelLocale::formatShortTime(start);
    if (!end.isValid() || end <= start)
        return {first, {}};
    // A night needs no date: what ends at 02:00 ends on the next morning.
    if (lastDay(end) > start.date() && (model.allDay() || end >= start.addDays(1)))
        return {first, endText(dayAndMonth(lastDay(end)))};
    return {first, model.allDay() ? QString() : endText(DaskelLocale::formatShortTime(end))};
}

NoteTimes todoTimes(const NoteWidgetModel &model, const NoteDetails &details, const QDateTime &now)
{
    // Each occurrence of a repeating one is due when it takes place.
    const bool isOccurrence = details.isRepeating && model.startTime().isValid();
    const QDateTime dueDate = isOccurrence ? model.startTime() : model.dueDate();
    if (!dueDate.isValid())
        return {};
    // A date without a time is that date everywhere.
    const QDateTime due = model.allDay() ? dueDate : dueDate.toLocalTime();
    const bool isToday = due.date() == now.date();
    const bool isPast = model.allDay() ? due.date() < now.date() : due < now;
    NoteTimes times;
    times.first = isToday ? qtTrId("qtn_comm_today") : dayAndMonth(due.date());
    times.second = otherYear(due.date(), now);
    if (times.second.isEmpty() && !model.allDay())
        times.second = DaskelLocale::formatShortTime(due);
    times.isOverdue = isPast && !model.completed();
    return times;
}
} // namespace

QString dayAndMonth(const QDate &day)
{
    return formatted(day, "MMMd");
}

QString endText(const QString &end)
{
    return QStringLiteral("– ") + end;
}

NoteTimes noteTimes(const NoteWidgetModel &model, const NoteDetails &details, const QDateTime &now)
{
    switch (model.type()) {
    case NoteWidgetModel::EventNote:
        return eventTimes(model, details);
    case NoteWidgetModel::TodoNote:
        return todoTimes(model, details, now);
    case NoteWidgetModel::JournalNote:
        break;
    }
    const QDate day = model.startTime().date();
    return day.isValid() ? NoteTimes{dayAndMonth(day), otherYear(day, now)} : NoteTimes();
}
