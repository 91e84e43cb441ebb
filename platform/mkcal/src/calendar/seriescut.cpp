// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "seriescut.h"

#include <KCalendarCore/Event>
#include <KCalendarCore/Todo>

#include <algorithm>
#include <limits>

namespace mKCal
{
namespace
{
using KCalCore::Recurrence;
using KCalCore::RecurrenceRule;

/// How many occurrences are compared before a cut is believed to be right.
constexpr int comparedStarts = 100;

/// A moment in the time spec of @p model; clock time and all-day dates are read in @p clock.
QDateTime momentIn(const QDateTime &model, Msecs moment, bool wallBound, const ZoneClock &clock)
{
    const QDateTime dateTime = QDateTime::fromMSecsSinceEpoch(moment, clock.zone());
    return wallBound ? shiftedByWall(model, wallSeconds(dateTime) - wallSeconds(model))
                     : inSpecOf(model, dateTime);
}

/// Writes out what a rule takes from its start, so that it stays when the start changes.
void writeOutStart(RecurrenceRule *rule, const QDate &start)
{
    const bool namesDays = !rule->byDays().isEmpty() || !rule->byMonthDays().isEmpty()
        || !rule->byYearDays().isEmpty();
    if (namesDays) {
        return;
    }
    switch (rule->recurrenceType()) {
    case RecurrenceRule::rWeekly:
        rule->setByDays({RecurrenceRule::WDayPos(0, static_cast<short>(start.dayOfWeek()))});
        break;
    case RecurrenceRule::rYearly:
        if (rule->byMonths().isEmpty()) {
            rule->setByMonths({start.month()});
        }
        rule->setByMonthDays({start.day()});
        break;
    case RecurrenceRule::rMonthly:
        rule->setByMonthDays({start.day()});
        break;
    default:
        break;
    }
}

template <typename List, typename Predicate> List kept(List list, const Predicate &isWanted)
{
    list.erase(std::remove_if(list.begin(), list.end(),
                              [&](const auto &element) { return !isWanted(element); }),
               list.end());
    return list;
}

/// Leaves only those dates of a recurrence that @p isWanted takes.
template <typename Predicate>
void keepDates(Recurrence *recurrence, const QDateTime &model, const Predicate &isWanted)
{
    const auto isWantedDay = [&](const QDate &day) {
        return isWanted(shiftedByWall(model, model.date().daysTo(day) * 86400));
    };
    const auto added = recurrence->rDateTimes();
    QVector<KCalCore::Period> periods;
    QList<QDateTime> times;
    for (const QDateTime &dateTime : added) {
        const KCalCore::Period period = recurrence->rDateTimePeriod(dateTime);
        if (!isWanted(dateTime)) {
            continue;
        }
        if (period.isValid()) {
            periods.append(period);
        } else {
            times.append(dateTime);
        }
    }
    recurrence->setRDateTimes(times);
    for (const KCalCore::Period &period : qAsConst(periods)) {
        recurrence->addRDateTimePeriod(period);
    }
    recurrence->setRDates(kept(recurrence->rDates(), isWantedDay));
    recurrence->setExDateTimes(kept(recurrence->exDateTimes(), isWanted));
    recurrence->setExDates(kept(recurrence->exDates(), isWantedDay));
}
} // namespace

void moveTo(KCalCore::Incidence *incidence, const TimeSpan &span, const ZoneClock &clock)
{
    const bool wallBound = isWallBound(*incidence);
    const QDateTime former = anchor(*incidence);
    const QDateTime start = momentIn(former, span.start, wallBound, clock);
    if (incidence->type() == KCalCore::IncidenceBase::TypeTodo) {
        auto *todo = static_cast<KCalCore::Todo *>(incidence);
        const qint64 distance = wallSeconds(start) - wallSeconds(former);
        const QDateTime todoStart = todo->dtStart(true);
        const QDateTime due = todo->dtDue(true);
        if (todoStart.isValid()) {
            todo->setDtStart(shiftedByWall(todoStart, distance));
        }
        if (due.isValid()) {
            todo->setDtDue(shiftedByWall(due, distance), true);
        }
        return;
    }
    auto *event = dynamic_cast<KCalCore::Event *>(incidence);
    const QDateTime formerEnd = event && event->hasEndDate() ? event->dtEnd() : QDateTime();
    incidence->setDtStart(start);
    const bool isLongerOrShorter = spanOf(*incidence, clock).end != span.end;
    if (event && (formerEnd.isValid() || isLongerOrShorter)) {
        const QDateTime model = formerEnd.isValid() ? formerEnd : former;
        event->setDtEnd(momentIn(model, span.end, wallBound, clock));
    }
}

KCalCore::Incidence::Ptr carriedOn(const KCalCore::Incidence &exception,
                                   const QDateTime &recurrenceId)
{
    KCalCore::Incidence::Ptr copy(exception.clone());
    const qint64 distance = wallSeconds(recurrenceId) - wallSeconds(exception.recurrenceId());
    copy->setRecurrenceId(recurrenceId);
    if (auto *todo = dynamic_cast<KCalCore::Todo *>(copy.data())) {
        if (todo->hasDueDate()) {
            todo->setDtDue(shiftedByWall(todo->dtDue(true), distance), true);
        }
    }
    if (auto *event = dynamic_cast<KCalCore::Event *>(copy.data())) {
        if (event->hasEndDate()) {
            event->setDtEnd(shiftedByWall(event->dtEnd(), distance));
        }
    }
    if (exception.dtStart().isValid()) {
        copy->setDtStart(shiftedByWall(exception.dtStart(), distance));
    }
    return copy;
}

SeriesCut::SeriesCut(const KCalCore::Incidence::Ptr &series, const QDateTime &first,
                     const ZoneClock &clock)
    : m_series(series), m_first(first), m_clock(clock)
{
}

int SeriesCut::countBefore(const RecurrenceRule &rule) const
{
    const KCalCore::Incidence::Ptr alone(m_series->clone());
    alone->recurrence()->clear();
    alone->recurrence()->addRRule(new RecurrenceRule(rule));
    const SeriesScale scale(*alone, m_clock);
    const qint64 cut = scale.keyOfStart(m_first);
    SeriesWalk walk(*alone, scale, scale.first.toMSecsSinceEpoch(), m_first.toMSecsSinceEpoch());
    walk.goAfter(scale.keyOfStart(scale.first) - 1);
    // The start is an occurrence of the series even where the rule does not have it.
    int count = rule.dateMatchesRules(scale.first) ? 0 : -1;
    while (count < rule.duration() && walk.next() && walk.key() < cut) {
        ++count;
    }
    return count;
}

bool SeriesCut::divideRule(const RecurrenceRule &whole, RecurrenceRule *later) const
{
    if (whole.duration() > 0) {
        const int remaining = whole.duration() - countBefore(whole);
        later->setDuration(qMax(1, remaining));
        return remaining > 0;
    }
    return whole.duration() < 0 || isLater(whole.endDt());
}

void SeriesCut::divideRules(Recurrence *recurrence) const
{
    const QDate oldStart = m_series->recurrence()->startDate();
    const auto wholes = m_series->recurrence()->rRules();
    const auto parts = recurrence->rRules();
    for (int i = 0; i < parts.size(); ++i) {
        if (!wholes.at(i)->recursAt(m_first)) {
            writeOutStart(parts.at(i), oldStart);
        }
        if (!divideRule(*wholes.at(i), parts.at(i))) {
            recurrence->deleteRRule(parts.at(i));
        }
    }
    const auto excludingWholes = m_series->recurrence()->exRules();
    const auto excludingParts = recurrence->exRules();
    for (int i = 0; i < excludingParts.size(); ++i) {
        writeOutStart(excludingParts.at(i), oldStart);
        if (!divideRule(*excludingWholes.at(i), excludingParts.at(i))) {
            recurrence->deleteExRule(excludingParts.at(i));
        }
    }
}

KCalCore::Incidence::Ptr SeriesCut::laterPart() const
{
    KCalCore::Incidence::Ptr later(m_series->clone());
    later->recreate();
    const qint64 distance =
        wallSeconds(m_first) - wallSeconds(m_series->recurrence()->startDateTime());
    const bool byLength = m_series->type() == KCalCore::IncidenceBase::TypeEvent;
    const QDateTime formerStart = m_series->dtStart();
    if (byLength) {
        const QDateTime start = inOwnZone(m_first, isWallBound(*m_series), m_clock);
        moveTo(later.data(),
               {m_series->allDay() ? m_clock.dayStart(m_first.date()) : start.toMSecsSinceEpoch(),
                Length::of(*m_series).endAfter(start, m_clock)},
               m_clock);
    } else if (auto todo = later.dynamicCast<KCalCore::Todo>()) {
        const QDateTime due = todo->dtDue(true);
        const QDateTime current = todo->dtRecurrence();
        if (formerStart.isValid()) {
            todo->setDtStart(shiftedByWall(todo->dtStart(true), distance));
        }
        if (due.isValid()) {
            todo->setDtDue(shiftedByWall(due, distance), true);
        }
        todo->setDtRecurrence(current.isValid() && isLater(current) ? current : QDateTime());
    } else {
        later->setDtStart(shiftedByWall(formerStart, distance));
    }
    divideRules(later->recurrence());
    keepDates(later->recurrence(), m_first,
              [this](const QDateTime &dateTime) { return isLater(dateTime); });
    return isSameFromCutOn(*later) ? later : KCalCore::Incidence::Ptr();
}

bool SeriesCut::isSameFromCutOn(const KCalCore::Incidence &later) const
{
    const Msecs from = m_first.toMSecsSinceEpoch();
    const Msecs to = from + 3650 * msecsPerDay;
    const SeriesScale scale(*m_series, m_clock);
    SeriesWalk before(*m_series, scale, from, to);
    before.goAfter(scale.keyOfStart(m_first) - 1);
    if (!later.recurs()) {
        return before.next() && before.key() == scale.keyOfStart(m_first) && !before.next();
    }
    SeriesWalk after(later, SeriesScale(later, m_clock), from, to);
    after.goAfter(scale.keyOfStart(m_first) - 1);
    for (int i = 0; i < comparedStarts; ++i) {
        const bool goesOn = before.next();
        if (goesOn != after.next() || (goesOn && before.key() != after.key())) {
            return false;
        }
        if (!goesOn) {
            break;
        }
    }
    return true;
}

bool SeriesCut::endRule(RecurrenceRule *rule) const
{
    if (rule->duration() > 0) {
        const int done = countBefore(*rule);
        if (done > 0) {
            rule->setDuration(done);
        }
        return done > 0;
    }
    if (rule->duration() < 0 || isLater(rule->endDt())) {
        rule->setEndDt(m_series->allDay() ? shiftedByWall(m_first, -86400) : m_first.addSecs(-1));
    }
    return true;
}

void SeriesCut::endEarlier() const
{
    Recurrence *recurrence = m_series->recurrence();
    m_series->startUpdates();
    const auto rules = recurrence->rRules();
    for (RecurrenceRule *rule : rules) {
        if (!endRule(rule)) {
            recurrence->deleteRRule(rule);
        }
    }
    keepDates(recurrence, m_first,
              [this](const QDateTime &dateTime) { return !isLater(dateTime); });
    m_series->endUpdates();
}
} // namespace mKCal
