// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/componentkeys.h"

#include "calendar/seriesrules.h"
#include "sqlite/datetimecolumns.h"

#include <KCalendarCore/Event>
#include <KCalendarCore/Recurrence>
#include <KCalendarCore/Todo>

using namespace KCalCore;

namespace mKCal
{
namespace
{
constexpr qint64 daySeconds = 86400;

/// A longer count is not counted out to learn its end: that costs more than loading the series.
constexpr int longestCountedUnroll = 400;

struct Bounds {
    QDateTime start;
    QDateTime end;
};

Bounds boundsOf(const Incidence &incidence)
{
    Bounds bounds;
    if (incidence.type() == IncidenceBase::TypeTodo) {
        const auto &todo = static_cast<const Todo &>(incidence);
        const QDateTime due = todo.dtDue(true);
        bounds.start = todo.dtStart(true);
        if (!bounds.start.isValid())
            bounds.start = due;
        bounds.end = due.isValid() ? due : bounds.start;
    } else {
        bounds.start = incidence.dtStart();
        bounds.end = incidence.type() == IncidenceBase::TypeEvent
            ? static_cast<const Event &>(incidence).dtEnd()
            : bounds.start;
    }
    return bounds;
}

/// The latest moment that a single date of the recurrence reaches, 0 when there is none.
qint64 lastPeriodEnd(const Recurrence &recurrence, bool byWallClock)
{
    qint64 last = 0;
    const auto dates = recurrence.rDateTimes();
    for (const QDateTime &date : dates) {
        const Period period = recurrence.rDateTimePeriod(date);
        if (period.isValid())
            last = qMax(last, DateTimeColumns::seconds(period.end(), byWallClock));
    }
    return last;
}

qint64 firstStart(const Recurrence &recurrence, qint64 start, bool byWallClock)
{
    const auto dateTimes = recurrence.rDateTimes();
    if (!dateTimes.isEmpty())
        start = qMin(start, DateTimeColumns::seconds(dateTimes.first(), byWallClock));
    const auto dates = recurrence.rDates();
    if (!dates.isEmpty())
        start = qMin(start, dates.first().startOfDay(Qt::UTC).toSecsSinceEpoch() - daySeconds);
    return start;
}

/// The last start of a rule or a moment after it; null when none is known.
QDateTime lastStart(const RecurrenceRule &rule)
{
    if (rule.duration() <= 0)
        return rule.duration() == 0 ? rule.endDt() : QDateTime();
    const QDateTime bound = boundOfCount(rule);
    return bound.isValid() || rule.duration() > longestCountedUnroll ? bound : rule.endDt();
}

qint64 lastEnd(const Recurrence &recurrence, qint64 length, bool byWallClock)
{
    qint64 last = DateTimeColumns::seconds(recurrence.startDateTime(), byWallClock);
    const auto rules = recurrence.rRules();
    for (const RecurrenceRule *rule : rules) {
        const QDateTime start = lastStart(*rule);
        if (!start.isValid())
            return ComponentKeys::endless;
        last = qMax(last, DateTimeColumns::seconds(start, byWallClock));
    }
    const auto dateTimes = recurrence.rDateTimes();
    if (!dateTimes.isEmpty())
        last = qMax(last, DateTimeColumns::seconds(dateTimes.last(), byWallClock));
    const auto dates = recurrence.rDates();
    if (!dates.isEmpty())
        last = qMax(last, dates.last().startOfDay(Qt::UTC).toSecsSinceEpoch() + daySeconds);
    // The last start may be told in another zone than the series': a day covers the difference.
    return qMax(last + length, lastPeriodEnd(recurrence, byWallClock)) + daySeconds;
}

qint64 completedKey(const Incidence &incidence)
{
    if (incidence.type() != IncidenceBase::TypeTodo)
        return 0;
    const auto &todo = static_cast<const Todo &>(incidence);
    if (!todo.isCompleted())
        return 0;
    return todo.hasCompletedDate() ? qMax<qint64>(1, todo.completed().toSecsSinceEpoch()) : 1;
}

/// An exception is found by the time that it replaces as well as by its own.
void widenToReplaced(const Incidence &incidence, qint64 length, ComponentKeys *keys)
{
    const qint64 replaced = DateTimeColumns::seconds(incidence.recurrenceId(), incidence.allDay());
    keys->start = keys->hasStart ? qMin(keys->start, replaced) : replaced;
    keys->until =
        incidence.thisAndFuture() ? ComponentKeys::endless : qMax(keys->until, replaced + length);
    if (!keys->hasStart)
        keys->end = replaced + 1;
    keys->hasStart = true;
}
} // namespace

ComponentKeys ComponentKeys::of(const Incidence &incidence)
{
    ComponentKeys keys;
    keys.type = incidence.type();
    keys.completed = completedKey(incidence);
    const Bounds bounds = boundsOf(incidence);
    const bool byWallClock = incidence.allDay();
    qint64 length = 1;
    if (bounds.start.isValid()) {
        keys.hasStart = true;
        keys.start = DateTimeColumns::seconds(bounds.start, byWallClock);
        keys.end = qMax(keys.start + 1, DateTimeColumns::seconds(bounds.end, byWallClock));
        // A to-do may be due before it starts.
        if (bounds.end < bounds.start)
            keys.start = DateTimeColumns::seconds(bounds.end, byWallClock);
        length = keys.end - keys.start;
    }
    keys.until = keys.end;
    keys.span = length <= shortSeconds ? Short : Long;
    if (incidence.recurs()) {
        const Recurrence &recurrence = *incidence.recurrence();
        keys.span = Recurring;
        keys.start = firstStart(recurrence, keys.start, byWallClock);
        keys.until = qMax(keys.until, lastEnd(recurrence, length, byWallClock));
    }
    if (incidence.hasRecurrenceId()) {
        keys.span = Recurring;
        widenToReplaced(incidence, length, &keys);
    }
    return keys;
}

QString recIdText(const QDateTime &recurrenceId, bool allDay)
{
    if (!recurrenceId.isValid())
        return QStringLiteral("");
    const bool floating = recurrenceId.timeSpec() == Qt::LocalTime;
    if ((allDay || floating) && recurrenceId.time() == QTime(0, 0))
        return recurrenceId.toString(QStringLiteral("yyyyMMdd"));
    if (floating)
        return recurrenceId.toString(QStringLiteral("yyyyMMdd'T'HHmmss"));
    return recurrenceId.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
}

QString recIdText(const KDateTime &recurrenceId)
{
    return recIdText(recurrenceId.dateTime(), recurrenceId.isDateOnly());
}

QString recIdText(const Incidence &incidence)
{
    return recIdText(incidence.recurrenceId(), incidence.allDay());
}
} // namespace mKCal
