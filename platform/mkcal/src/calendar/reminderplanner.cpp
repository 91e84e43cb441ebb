// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "reminderplanner.h"

#include "occurrences.h"
#include "seriesrules.h"

#include <KCalendarCore/Todo>

#include <algorithm>

namespace mKCal
{
namespace
{
constexpr int mostReminders = 2000;
// Offsets in days keep the wall clock: a clock change makes them longer or shorter.
constexpr Msecs largestClockChange = 3 * 3600 * 1000;

bool isEnabled(const KCalCore::Alarm::Ptr &alarm)
{
    return alarm->enabled();
}

bool everRings(const KCalCore::Incidence &incidence)
{
    const bool isCompleted = incidence.type() == KCalCore::IncidenceBase::TypeTodo
        && static_cast<const KCalCore::Todo &>(incidence).isCompleted();
    return !isCompleted && incidence.status() != KCalCore::Incidence::StatusCanceled;
}

KCalCore::Duration offsetOf(const KCalCore::Alarm &alarm)
{
    return alarm.hasEndOffset() ? alarm.endOffset() : alarm.startOffset();
}

Msecs addOffset(Msecs moment, const KCalCore::Duration &offset, const ZoneClock &clock)
{
    if (!offset.isDaily()) {
        return moment + offset.asSeconds() * 1000LL;
    }
    const QDateTime shown = QDateTime::fromMSecsSinceEpoch(moment, clock.zone());
    return clock.at(shown.date().addDays(offset.asDays()), shown.time());
}

/// How long before its due date a to-do starts; 0 for all else.
Msecs leadOf(const KCalCore::Incidence &incidence)
{
    if (incidence.type() != KCalCore::IncidenceBase::TypeTodo) {
        return 0;
    }
    const auto &todo = static_cast<const KCalCore::Todo &>(incidence);
    return todo.hasStartDate() && todo.hasDueDate() ? todo.dtStart(true).msecsTo(todo.dtDue(true))
                                                    : 0;
}

/// The part of time in which the occurrences lie whose alarms ring between @p from and @p to.
TimeSpan reachOf(const KCalCore::Alarm::List &alarms, Msecs lead, Msecs from, Msecs to)
{
    TimeSpan reach{from, to};
    for (const KCalCore::Alarm::Ptr &alarm : alarms) {
        const KCalCore::Duration offset = offsetOf(*alarm);
        const Msecs slack = 1000 + (offset.isDaily() ? largestClockChange : 0);
        const Msecs distance = offset.asSeconds() * 1000LL;
        reach.start = qMin(reach.start, from - distance - slack);
        reach.end = qMax(reach.end, to - distance + lead + slack);
    }
    return reach;
}

/// Plans the reminders of one family.
class Planner
{
public:
    Planner(const QTimeZone &zone, const QDateTime &from, const QDateTime &to)
        : m_clock(zone), m_from(from.toMSecsSinceEpoch()), m_to(to.toMSecsSinceEpoch())
    {
    }

    void addSeries(const KCalCore::Incidence::Ptr &series,
                   const KCalCore::Incidence::List &exceptions);
    void addSingle(const KCalCore::Incidence::Ptr &incidence);
    ReminderList take();

private:
    void addTimed(const KCalCore::Incidence &incidence, const QDateTime &recurrenceId);
    void addRelative(const Occurrence &occurrence, const QDateTime &recurrenceId);
    void add(const KCalCore::Incidence &incidence, const QDateTime &recurrenceId, int alarm,
             Msecs time);

    ZoneClock m_clock;
    Msecs m_from;
    Msecs m_to;
    ReminderList m_reminders;
};

void Planner::add(const KCalCore::Incidence &incidence, const QDateTime &recurrenceId, int alarm,
                  Msecs time)
{
    if (time < m_from || time >= m_to) {
        return;
    }
    Reminder reminder;
    reminder.uid = incidence.uid();
    reminder.recurrenceId = recurrenceId.isValid() ? KDateTime(recurrenceId) : KDateTime();
    reminder.alarm = alarm;
    reminder.time = QDateTime::fromMSecsSinceEpoch(time, Qt::UTC);
    m_reminders.append(reminder);
}

void Planner::addTimed(const KCalCore::Incidence &incidence, const QDateTime &recurrenceId)
{
    const KCalCore::Alarm::List alarms = incidence.alarms();
    for (int i = 0; i < alarms.size(); ++i) {
        const KCalCore::Alarm &alarm = *alarms.at(i);
        if (alarm.enabled() && alarm.hasTime()) {
            const QDateTime time =
                inOwnZone(alarm.time(), alarm.time().timeSpec() == Qt::LocalTime, m_clock);
            add(incidence, recurrenceId, i, time.toMSecsSinceEpoch());
        }
    }
}

void Planner::addRelative(const Occurrence &occurrence, const QDateTime &recurrenceId)
{
    const KCalCore::Incidence &incidence = *occurrence.incidence;
    const bool isTodo = incidence.type() == KCalCore::IncidenceBase::TypeTodo;
    const Msecs start = occurrence.span.start - leadOf(incidence);
    const Msecs end = isTodo ? occurrence.span.start : occurrence.span.end;
    const KCalCore::Alarm::List alarms = incidence.alarms();
    for (int i = 0; i < alarms.size(); ++i) {
        const KCalCore::Alarm &alarm = *alarms.at(i);
        if (alarm.enabled() && !alarm.hasTime()) {
            add(incidence, recurrenceId, i,
                addOffset(alarm.hasEndOffset() ? end : start, offsetOf(alarm), m_clock));
        }
    }
}

void Planner::addSingle(const KCalCore::Incidence::Ptr &incidence)
{
    if (!everRings(*incidence)) {
        return;
    }
    addTimed(*incidence, incidence->recurrenceId());
    if (anchor(*incidence).isValid()) {
        addRelative({spanOf(*incidence, m_clock), incidence}, incidence->recurrenceId());
    }
}

void Planner::addSeries(const KCalCore::Incidence::Ptr &series,
                        const KCalCore::Incidence::List &exceptions)
{
    if (!everRings(*series)) {
        return;
    }
    addTimed(*series, {});
    if (!anchor(*series).isValid()) {
        return;
    }
    KCalCore::Alarm::List alarms = series->alarms();
    Msecs lead = leadOf(*series);
    for (const KCalCore::Incidence::Ptr &exception : exceptions) {
        if (exception->thisAndFuture()) {
            alarms += exception->alarms();
            lead = qMax(lead, leadOf(*exception));
        }
    }
    if (std::none_of(alarms.cbegin(), alarms.cend(), isEnabled)) {
        return;
    }
    // Of a to-do that recurs, what lies before its current occurrence is done.
    const auto todo = series.dynamicCast<KCalCore::Todo>();
    const QDateTime current = todo ? todo->dtRecurrence() : QDateTime();
    const TimeSpan reach = reachOf(alarms, lead, m_from, m_to);
    // KCalendarCore counts a series that is over out, only to find that nothing follows.
    const TimeSpan life = lifeOfSeries(*series, spanOf(*series, m_clock), exceptions, m_clock);
    if (life.end < reach.start || life.start > reach.end) {
        return;
    }
    const auto plan = [&](const Occurrence &occurrence, const SeriesWalk &walk) {
        const QDateTime recurrenceId = walk.recurrenceId();
        const bool isDone = current.isValid() && recurrenceId < current;
        if (!isDone && everRings(*occurrence.incidence)) {
            addRelative(occurrence, recurrenceId);
        }
        return m_reminders.size() < mostReminders ? SeriesOccurrences::Continue
                                                  : SeriesOccurrences::Stop;
    };
    SeriesOccurrences(series, exceptions, m_clock).visit(reach.start, reach.end, plan);
}

ReminderList Planner::take()
{
    std::stable_sort(m_reminders.begin(), m_reminders.end(),
                     [](const Reminder &a, const Reminder &b) { return a.time < b.time; });
    return std::move(m_reminders);
}
} // namespace

ReminderList planReminders(const KCalCore::Incidence::List &family, const QTimeZone &zone,
                           const QDateTime &from, const QDateTime &to)
{
    Planner planner(zone, from, to);
    KCalCore::Incidence::List exceptions;
    std::copy_if(family.cbegin(), family.cend(), std::back_inserter(exceptions),
                 [](const auto &member) { return member->hasRecurrenceId(); });
    for (const KCalCore::Incidence::Ptr &member : family) {
        if (member->recurs() && !member->hasRecurrenceId()) {
            planner.addSeries(member, exceptions);
        } else {
            planner.addSingle(member);
        }
    }
    return planner.take();
}
} // namespace mKCal
