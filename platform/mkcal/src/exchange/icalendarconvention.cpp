// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <kcalcompat/firstpass.h>
#include <kcalcompat/kdatetime.h>
#include <mkcal/calendarexporter.h>

#include <KCalendarCore/Event>
#include <KCalendarCore/Todo>

#include <QRegularExpression>

#include <algorithm>
#include <cstdlib>

namespace mKCal
{
using KCalCore::Alarm;
using KCalCore::Event;
using KCalCore::Incidence;
using KCalCore::Period;
using KCalCore::Recurrence;
using KCalCore::RecurrenceRule;
using KCalCore::Todo;

namespace
{
// RFC 5545 writes years with four digits; a later end comes from a DURATION without sense.
constexpr int lastYear = 9999;
constexpr int secondsOfDay = 24 * 60 * 60;

QDateTime dayStart(const QDate &date)
{
    return date.startOfDay(Qt::LocalTime);
}

bool isZoneUtc(const QDateTime &time)
{
    return time.timeSpec() == Qt::TimeZone && time.offsetFromUtc() == 0
        && time.timeZone().id() == "UTC";
}

/// ICalFormat reads a time that ends in Z into a zone called "UTC", and of a time that the clock
/// shows twice takes the second.
QDateTime asMeant(const QDateTime &time)
{
    if (isZoneUtc(time)) {
        return time.toUTC();
    }
    return time.timeSpec() == Qt::TimeZone ? KCalCompat::firstPass(time) : time;
}

bool isAsMeant(const QDateTime &time)
{
    if (time.timeSpec() != Qt::TimeZone) {
        return true;
    }
    // The offset tells the passes of an hour apart without a look into the zone.
    const QDateTime meant = asMeant(time);
    return meant.timeSpec() == Qt::TimeZone && meant.offsetFromUtc() == time.offsetFromUtc();
}

QList<QDateTime> asMeant(QList<QDateTime> times)
{
    std::transform(times.begin(), times.end(), times.begin(),
                   [](const QDateTime &time) { return asMeant(time); });
    return times;
}

/// The day that an instant means where a date belongs. Some writers put the beginning or end of the
/// day in UTC, others their own midnight.
QDate dateMeant(const QDateTime &time)
{
    const bool isInstant =
        time.timeSpec() == Qt::UTC || time.timeSpec() == Qt::OffsetFromUTC || isZoneUtc(time);
    const bool isEdgeOfDay = time.time() == QTime(0, 0) || time.time() == QTime(23, 59, 59);
    return isInstant && !isEdgeOfDay ? time.toLocalTime().date() : time.date();
}

RecurrenceRule::List allRules(const Incidence::Ptr &incidence)
{
    return incidence->recurrence()->rRules() + incidence->recurrence()->exRules();
}

bool hasUntil(const RecurrenceRule *rule)
{
    return rule->duration() == 0 && rule->endDt().isValid();
}

/// The UNTIL of a rule that was just read. ICalFormat reads dates and floating times in the local
/// zone; in a zoned series they are meant in its own, a date with the whole day.
QDateTime untilAsMeant(const RecurrenceRule *rule, const Incidence::Ptr &incidence)
{
    static const QRegularExpression pattern(QStringLiteral("UNTIL=(\\d{8})(?:T(\\d{6}))?(Z?)"));
    const auto match = pattern.match(rule->rrule());
    const QDate date = QDate::fromString(match.captured(1), QStringLiteral("yyyyMMdd"));
    const QTime time = QTime::fromString(match.captured(2), QStringLiteral("HHmmss"));
    const bool isInstant = !match.captured(3).isEmpty();
    if (incidence->allDay()) {
        return dayStart(date.isValid() && !isInstant ? date : dateMeant(rule->endDt()));
    }
    if (!date.isValid() || isInstant) {
        const bool isFloating = incidence->dtStart().timeSpec() == Qt::LocalTime;
        return isFloating ? rule->endDt().toLocalTime() : asMeant(rule->endDt());
    }
    const auto clock = KDateTime(incidence->dtStart()).timeSpec();
    const QDateTime until =
        KDateTime(date, time.isValid() ? time : QTime(23, 59, 59), clock).dateTime();
    return clock.isClockTime() ? until : until.toUTC();
}

/// A part of a rule that lists numbers (RFC 5545 section 3.3.10).
struct NumberPart {
    const QList<int> &(RecurrenceRule::*numbers)() const;
    void (RecurrenceRule::*setNumbers)(const QList<int> &);
    int lowest;
    int highest;
    bool countsFromTheEnd; ///< the same numbers below zero, too
};

constexpr NumberPart numberParts[] = {
    {&RecurrenceRule::bySeconds, &RecurrenceRule::setBySeconds, 0, 60, false},
    {&RecurrenceRule::byMinutes, &RecurrenceRule::setByMinutes, 0, 59, false},
    {&RecurrenceRule::byHours, &RecurrenceRule::setByHours, 0, 23, false},
    {&RecurrenceRule::byMonthDays, &RecurrenceRule::setByMonthDays, 1, 31, true},
    {&RecurrenceRule::byYearDays, &RecurrenceRule::setByYearDays, 1, 366, true},
    {&RecurrenceRule::byWeekNumbers, &RecurrenceRule::setByWeekNumbers, 1, 53, true},
    {&RecurrenceRule::byMonths, &RecurrenceRule::setByMonths, 1, 12, false},
    {&RecurrenceRule::bySetPos, &RecurrenceRule::setBySetPos, 1, 366, true},
};

/// Leaves out numbers that cannot be (other calendars have a thirteenth month) and repeated ones:
/// ICalFormat writes some twice, and gives their occurrences as often. False when nothing is left
/// of a part: such a rule has no occurrence, and without the part it would have too many.
bool keepPossibleNumbers(RecurrenceRule *rule)
{
    for (const NumberPart &part : numberParts) {
        const QList<int> &numbers = (rule->*part.numbers)();
        QList<int> kept;
        for (const int number : numbers) {
            const int distance = part.countsFromTheEnd ? std::abs(number) : number;
            if (distance >= part.lowest && distance <= part.highest && !kept.contains(number)) {
                kept.append(number);
            }
        }
        if (kept.isEmpty() && !numbers.isEmpty()) {
            return false;
        }
        if (kept.size() != numbers.size()) {
            (rule->*part.setNumbers)(kept);
        }
    }
    return true;
}

/// Excluded and added dates of an all-day series are dates, even where a file gives instants.
void makeDates(Recurrence *recurrence)
{
    auto excluded = recurrence->exDates();
    for (const QDateTime &time : recurrence->exDateTimes()) {
        excluded.append(dateMeant(time));
    }
    auto added = recurrence->rDates();
    for (const QDateTime &time : recurrence->rDateTimes()) {
        if (time.isValid()) {
            added.append(dateMeant(time));
        }
    }
    recurrence->setExDateTimes({});
    recurrence->setExDates(excluded);
    recurrence->setRDateTimes({});
    recurrence->setRDates(added);
}

/// Replaces each added date-time by what @p convert makes of it, with its end if it has one.
template <typename Convert> void convertAddedTimes(Recurrence *recurrence, const Convert &convert)
{
    QList<QDateTime> times;
    QList<Period> periods;
    for (const QDateTime &time : recurrence->rDateTimes()) {
        const Period period = recurrence->rDateTimePeriod(time);
        if (!period.isValid()) {
            times.append(convert(time, false));
        } else if (period.hasDuration()) {
            periods.append(Period(convert(period.start(), true), period.duration()));
        } else {
            periods.append(Period(convert(period.start(), true), convert(period.end(), true)));
        }
    }
    recurrence->setRDateTimes(times);
    for (const Period &period : qAsConst(periods)) {
        recurrence->addRDateTimePeriod(period);
    }
}

void readRule(RecurrenceRule *rule, const Incidence::Ptr &incidence)
{
    if (hasUntil(rule)) {
        rule->setEndDt(untilAsMeant(rule, incidence));
    }
    // The text says no more than the rule does now, and would not follow its changes.
    rule->setRRule(QString());
}

void readRecurrence(const Incidence::Ptr &incidence)
{
    Recurrence *recurrence = incidence->recurrence();
    for (RecurrenceRule *rule : recurrence->rRules()) {
        readRule(rule, incidence);
        if (!keepPossibleNumbers(rule)) {
            recurrence->deleteRRule(rule);
        }
    }
    for (RecurrenceRule *rule : recurrence->exRules()) {
        readRule(rule, incidence);
        if (!keepPossibleNumbers(rule)) {
            recurrence->deleteExRule(rule);
        }
    }
    if (incidence->allDay()) {
        makeDates(recurrence);
        return;
    }
    const QDateTime start = incidence->dtStart();
    const bool isZoned = start.timeSpec() == Qt::TimeZone && !isZoneUtc(start);
    convertAddedTimes(recurrence, [&](const QDateTime &time, bool ofPeriod) {
        // Periods are written in UTC, see toICalendarConvention().
        return ofPeriod && isZoned && time.timeSpec() != Qt::LocalTime
            ? time.toTimeZone(start.timeZone())
            : asMeant(time);
    });
    recurrence->setExDateTimes(asMeant(recurrence->exDateTimes()));
}

void readEventEnd(const Event::Ptr &event)
{
    const QDateTime start = event->dtStart();
    if (event->allDay()) {
        qint64 days = 1 + start.date().daysTo(event->dtEnd().date());
        if (event->hasDuration()) {
            const auto duration = event->duration();
            days = duration.isDaily()
                ? duration.value()
                : (qint64(duration.value()) + secondsOfDay - 1) / secondsOfDay;
        }
        const QDate end = start.date().addDays(std::max(days, qint64(1)));
        event->setDuration(KCalCore::Duration());
        event->setDtEnd(dayStart(end.year() <= lastYear ? end : start.date().addDays(1)));
        return;
    }
    const QDateTime end = event->dtEnd();
    if (!end.isValid() || end < start || end.date().year() > lastYear) {
        event->setDuration(KCalCore::Duration());
        event->setDtEnd(asMeant(start));
    } else if (event->hasEndDate() && !isAsMeant(end)) {
        event->setDtEnd(asMeant(end));
    }
}

/// A to-do's DURATION says when it is due (RFC 5545 section 3.6.2); our views look at that alone.
void readTodo(const Todo::Ptr &todo)
{
    // Todo::dtRecurrence() knows it already.
    todo->removeCustomProperty("LIBKCAL", "DTRECURRENCE");
    if (!isAsMeant(todo->dtRecurrence())) {
        todo->setDtRecurrence(asMeant(todo->dtRecurrence()));
    }
    if (todo->hasDuration() && !todo->hasDueDate() && todo->hasStartDate() && !todo->recurs()) {
        const QDateTime due = todo->duration().end(todo->dtStart());
        todo->setDuration(KCalCore::Duration());
        todo->setHasDuration(false);
        todo->setDtDue(due);
    }
    if (todo->hasDueDate()) {
        const QDateTime due = todo->dtDue(true);
        todo->setDtDue(todo->allDay() ? dayStart(due.date()) : asMeant(due), true);
    }
    if (todo->isCompleted()) {
        const QDateTime completed = todo->completed();
        todo->setPercentComplete(100);
        todo->setStatus(Incidence::StatusCompleted);
        if (completed.isValid() && !todo->recurs()) {
            todo->setCompleted(completed);
        }
    }
}

void readAlarms(const Incidence::Ptr &incidence)
{
    const Alarm::List alarms = incidence->alarms();
    for (const Alarm::Ptr &alarm : alarms) {
        // Alarm::enabled() knows it already.
        alarm->removeCustomProperty("KCALCORE", "ENABLED");
        if (alarm->hasTime() && isZoneUtc(alarm->time())) {
            alarm->setTime(asMeant(alarm->time()));
        }
    }
}
/// A conference whose text names no features has an empty one in ICalFormat.
void readConferences(const Incidence::Ptr &incidence)
{
    KCalCore::Conference::List conferences = incidence->conferences();
    if (conferences.isEmpty()) {
        return;
    }
    for (KCalCore::Conference &conference : conferences) {
        conference.removeFeature(QString());
    }
    incidence->setConferences(conferences);
}
/// The second pass of an hour that comes twice has no other form than UTC. What recurs from it
/// keeps its zone, by which alone it recurs as it should.
void writeSecondPasses(const Incidence::Ptr &incidence)
{
    const auto isSecondPass = [](const QDateTime &time) {
        return time.timeSpec() == Qt::TimeZone && KCalCompat::firstPass(time) != time;
    };
    const auto todo = incidence.dynamicCast<Todo>();
    const auto event = incidence.dynamicCast<Event>();
    if (isSecondPass(incidence->dtStart())) {
        incidence->setDtStart(incidence->dtStart().toUTC());
    }
    if (event && event->hasEndDate() && isSecondPass(event->dtEnd())) {
        event->setDtEnd(event->dtEnd().toUTC());
    }
    if (todo && isSecondPass(todo->dtDue(true))) {
        todo->setDtDue(todo->dtDue(true).toUTC(), true);
    }
    if (isSecondPass(incidence->recurrenceId())) {
        incidence->setRecurrenceId(incidence->recurrenceId().toUTC());
    }
}
} // namespace

Incidence::Ptr toICalendarConvention(const Incidence::Ptr &incidence)
{
    Incidence::Ptr clone(incidence->clone());
    const auto event = clone.dynamicCast<Event>();
    if (event && event->allDay() && event->hasEndDate()) {
        const QDate lastDay = event->dtEnd().date().addDays(-1);
        event->setDtEnd(dayStart(std::max(lastDay, event->dtStart().date())));
    }
    if (!clone->recurs()) {
        writeSecondPasses(clone);
        return clone;
    }
    if (clone->allDay()) {
        // ICalFormat writes the date that it is at that moment in UTC.
        for (RecurrenceRule *rule : allRules(clone)) {
            if (hasUntil(rule)) {
                rule->setEndDt(QDateTime(dateMeant(rule->endDt()), QTime(0, 0), Qt::UTC));
            }
        }
    } else {
        // ICalFormat leaves the zone of a period out.
        convertAddedTimes(clone->recurrence(), [](const QDateTime &time, bool ofPeriod) {
            return ofPeriod && time.timeSpec() != Qt::LocalTime ? time.toUTC() : time;
        });
    }
    return clone;
}

void fromICalendarConvention(const Incidence::Ptr &incidence)
{
    const QDateTime lastModified = incidence->lastModified();
    incidence->startUpdates();
    const QDateTime start = incidence->dtStart();
    if (start.isValid() && incidence->allDay()) {
        incidence->setDtStart(dayStart(start.date()));
    } else if (!isAsMeant(start)) {
        incidence->setDtStart(asMeant(start));
    }
    if (incidence->hasRecurrenceId()) {
        incidence->setRecurrenceId(asMeant(incidence->recurrenceId()));
    }
    if (incidence->recurs()) {
        readRecurrence(incidence);
    }
    if (const auto event = incidence.dynamicCast<Event>()) {
        readEventEnd(event);
    } else if (const auto todo = incidence.dynamicCast<Todo>()) {
        readTodo(todo);
    }
    readAlarms(incidence);
    readConferences(incidence);
    // Incidence::schedulingID() knows it already.
    incidence->removeCustomProperty("LIBKCAL", "ID");
    incidence->endUpdates();
    incidence->setLastModified(lastModified);
}
} // namespace mKCal
