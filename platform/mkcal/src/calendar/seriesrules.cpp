// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "seriesrules.h"

#include "clockchanges.h"
#include "dateindex.h"
#include "recurrenceidentity.h"

#include <kcalcompat/firstpass.h>

#include <QSet>

#include <algorithm>
#include <limits>

namespace mKCal
{
namespace
{
using KCalCore::Recurrence;
using KCalCore::RecurrenceRule;

// Beyond this many occurrences KCalendarCore gives up counting: it then goes on for ever or stops
// early, depending on the rule.
constexpr int mostCounted = 9000;

QDate addPeriods(const QDate &date, RecurrenceRule::PeriodType period, qint64 count)
{
    switch (period) {
    case RecurrenceRule::rDaily:
        return date.addDays(count);
    case RecurrenceRule::rWeekly:
        return date.addDays(count * 7);
    case RecurrenceRule::rMonthly:
        return date.day() <= 28 ? date.addMonths(static_cast<int>(count)) : QDate();
    case RecurrenceRule::rYearly:
        return date.month() != 2 || date.day() <= 28 ? date.addYears(static_cast<int>(count))
                                                     : QDate();
    default:
        return {};
    }
}

int secondsOfPeriod(RecurrenceRule::PeriodType period)
{
    switch (period) {
    case RecurrenceRule::rSecondly:
        return 1;
    case RecurrenceRule::rMinutely:
        return 60;
    case RecurrenceRule::rHourly:
        return 3600;
    default:
        return 0;
    }
}

/// How many occurrences each period has: known for rules without BY parts, for weekdays of a week
/// and for days that every month has, 0 for others.
int occurrencesPerPeriod(const RecurrenceRule &rule)
{
    const bool hasOtherParts = !rule.bySeconds().isEmpty() || !rule.byMinutes().isEmpty()
        || !rule.byHours().isEmpty() || !rule.byYearDays().isEmpty()
        || !rule.byWeekNumbers().isEmpty() || !rule.byMonths().isEmpty()
        || !rule.bySetPos().isEmpty();
    if (hasOtherParts) {
        return 0;
    }
    QSet<int> days; // a hostile rule may name one twice
    for (const RecurrenceRule::WDayPos &weekDay : rule.byDays()) {
        days.insert(weekDay.day());
    }
    if (rule.byMonthDays().isEmpty()) {
        const bool isKnown = days.isEmpty() || rule.recurrenceType() == RecurrenceRule::rWeekly;
        return isKnown ? qMax(1, days.size()) : 0;
    }
    if (!days.isEmpty() || rule.recurrenceType() != RecurrenceRule::rMonthly) {
        return 0;
    }
    for (const int day : rule.byMonthDays()) {
        days.insert(day >= 1 && day <= 28 ? day : 0);
    }
    return days.contains(0) ? 0 : days.size();
}

/// Such as 30 February: KCalendarCore looks through ten thousand years for it.
bool namesImpossibleDates(const RecurrenceRule &rule)
{
    const auto fits = [&rule](int day) {
        return std::any_of(rule.byMonths().cbegin(), rule.byMonths().cend(), [day](int month) {
            return qAbs(day) <= QDate(2000, month, 1).daysInMonth();
        });
    };
    return !rule.byMonths().isEmpty() && !rule.byMonthDays().isEmpty()
        && std::none_of(rule.byMonthDays().cbegin(), rule.byMonthDays().cend(), fits);
}

bool isUnbearable(const RecurrenceRule *rule)
{
    return rule->duration() > mostCounted || namesImpossibleDates(*rule);
}

bool isWithinDay(const RecurrenceRule *rule)
{
    return secondsOfPeriod(rule->recurrenceType()) > 0;
}

bool namesTimes(const RecurrenceRule *rule)
{
    return !rule->byHours().isEmpty() || !rule->byMinutes().isEmpty()
        || !rule->bySeconds().isEmpty();
}

template <typename Predicate> bool anyRule(const Recurrence &recurrence, const Predicate &predicate)
{
    const auto included = recurrence.rRules();
    const auto excluded = recurrence.exRules();
    return std::any_of(included.cbegin(), included.cend(), predicate)
        || std::any_of(excluded.cbegin(), excluded.cend(), predicate);
}

/// Takes what cannot be borne out of a copy of somebody's recurrence: impossible rules go, counts
/// beyond reason become an end or none.
void makeBearable(Recurrence *recurrence)
{
    const auto bear = [](RecurrenceRule *rule) {
        const QDateTime end = rule->duration() > mostCounted ? boundOfCount(*rule) : QDateTime();
        if (end.isValid()) {
            rule->setEndDt(end);
        } else if (rule->duration() > mostCounted) {
            rule->setDuration(-1);
        }
    };
    const auto included = recurrence->rRules();
    for (RecurrenceRule *rule : included) {
        if (namesImpossibleDates(*rule)) {
            recurrence->deleteRRule(rule);
        } else {
            bear(rule);
        }
    }
    const auto excluded = recurrence->exRules();
    for (RecurrenceRule *rule : excluded) {
        if (namesImpossibleDates(*rule)) {
            recurrence->deleteExRule(rule);
        } else {
            bear(rule);
        }
    }
}

/// Rewrites a copy of a recurrence so that its wall clock is counted as UTC, which skips nothing.
void countWallAsUtc(Recurrence *recurrence)
{
    const QDateTime first = recurrence->startDateTime();
    const auto asUtc = [&first](const QDateTime &dateTime) {
        const QDateTime wall = inSpecOf(first, dateTime);
        return QDateTime(wall.date(), wall.time(), Qt::UTC);
    };
    const auto allAsUtc = [&asUtc](QList<QDateTime> dateTimes) {
        std::transform(dateTimes.begin(), dateTimes.end(), dateTimes.begin(), asUtc);
        return dateTimes;
    };
    const auto endAsUtc = [&asUtc](RecurrenceRule *rule) {
        if (rule->duration() == 0) {
            rule->setEndDt(asUtc(rule->endDt()));
        }
    };
    const auto included = recurrence->rRules();
    std::for_each(included.cbegin(), included.cend(), endAsUtc);
    const auto excluded = recurrence->exRules();
    std::for_each(excluded.cbegin(), excluded.cend(), endAsUtc);
    const QList<QDateTime> addedTimes = allAsUtc(recurrence->rDateTimes());
    QList<QDateTime> excludedTimes = allAsUtc(recurrence->exDateTimes());
    const auto excludedMoments = recurrence->exDateTimes();
    for (const QDateTime &moment : excludedMoments) {
        excludedTimes.append(unskipped(inSpecOf(first, moment)));
    }
    recurrence->setStartDateTime(asUtc(first), recurrence->allDay());
    recurrence->setRDateTimes(addedTimes);
    recurrence->setExDateTimes(excludedTimes);
}

/// The last start of a rule, or a moment shortly after it; null when it has no end.
QDateTime lastOf(const RecurrenceRule &rule)
{
    if (namesImpossibleDates(rule)) {
        return rule.startDt();
    }
    if (rule.duration() <= 0) {
        return rule.duration() == 0 ? rule.endDt() : QDateTime();
    }
    const QDateTime bound = boundOfCount(rule);
    return bound.isValid() || rule.duration() > mostCounted ? bound : rule.endDt();
}
} // namespace

QDateTime boundOfCount(const RecurrenceRule &rule)
{
    const int perPeriod = occurrencesPerPeriod(rule);
    if (perPeriod == 0) {
        return {};
    }
    const qint64 count = rule.duration();
    const bool isPlain = rule.byDays().isEmpty() && rule.byMonthDays().isEmpty();
    const qint64 periods = isPlain ? count - 1 : (count + perPeriod - 1) / perPeriod;
    const qint64 steps = periods * rule.frequency();
    // Nothing that has a date goes on for so long.
    if (steps > std::numeric_limits<qint32>::max()) {
        return {};
    }
    const QDateTime start = rule.startDt();
    if (const int seconds = secondsOfPeriod(rule.recurrenceType())) {
        return start.addSecs(steps * seconds);
    }
    const QDate date = addPeriods(start.date(), rule.recurrenceType(), steps);
    return date.isValid() ? atWallClock(date, start.time(), start.timeZone()) : QDateTime();
}

TimeSpan lifeOfSeries(const KCalCore::Incidence &series, const TimeSpan &firstSpan,
                      const KCalCore::Incidence::List &exceptions, const ZoneClock &clock)
{
    TimeSpan life = firstSpan;
    const Recurrence &recurrence = *series.recurrence();
    const bool wallBound = isWallBound(series);
    const Length length = Length::of(series);
    const QDateTime first = recurrence.startDateTime();
    // The rules give starts, and a to-do occurs when it is due.
    const qint64 lead = first.isValid() ? wallSeconds(anchor(series)) - wallSeconds(first) : 0;
    const auto include = [&](const QDateTime &dateTime) {
        const QDateTime ruled = inOwnZone(inSpecOf(first, dateTime), wallBound, clock);
        const QDateTime start = lead == 0 ? ruled : shiftedByWall(ruled, lead);
        life.start = qMin(life.start, momentOf(start));
        life.end = qMax(life.end, length.endAfter(start, clock));
    };
    const auto rules = recurrence.rRules();
    for (const RecurrenceRule *rule : rules) {
        const QDateTime last = lastOf(*rule);
        if (!last.isValid()) {
            life.end = DateIndex::endless;
            break;
        }
        include(last > first ? last : first);
    }
    const auto times = recurrence.rDateTimes();
    for (const QDateTime &added : times) {
        include(added);
        const KCalCore::Period period = recurrence.rDateTimePeriod(added);
        if (period.isValid()) {
            life.end = qMax(life.end, period.end().toMSecsSinceEpoch());
        }
    }
    const auto days = recurrence.rDates();
    for (const QDate &added : days) {
        include(atWallClock(added, first.time(), first.timeZone()));
    }
    for (const KCalCore::Incidence::Ptr &exception : exceptions) {
        if (exception->thisAndFuture() && anchor(*exception).isValid()) {
            const TimeSpan moved = spanOf(*exception, clock);
            const Msecs shift = moved.start - exception->recurrenceId().toMSecsSinceEpoch();
            life.start = qMin(life.start, life.start + shift);
            if (life.end != DateIndex::endless) {
                life.end += qMax<Msecs>(0, shift) + (moved.end - moved.start);
            }
        }
    }
    return life;
}

SeriesScale::SeriesScale(const KCalCore::Incidence &series, const ZoneClock &calendarClock)
    : clock(calendarClock),
      first(series.recurs() ? series.recurrence()->startDateTime() : anchor(series)),
      zone(zoneOf(first)), isAllDay(series.allDay()),
      isWallBound(isAllDay || first.timeSpec() == Qt::LocalTime),
      countsMoments(series.recurs() && anyRule(*series.recurrence(), isWithinDay))
{
}

qint64 SeriesScale::keyOfStart(const QDateTime &start) const
{
    return isWallBound ? wallSeconds(start) : start.toSecsSinceEpoch();
}

qint64 SeriesScale::keyOf(const QDateTime &recurrenceId) const
{
    if (isAllDay) {
        const QDate day = recurrenceDate(recurrenceId, clock.zone());
        return wallSeconds(QDateTime(day, first.time(), Qt::UTC));
    }
    if (isWallBound) {
        const bool isElsewhere = recurrenceId.timeSpec() != Qt::LocalTime;
        return keyOfStart(isElsewhere ? recurrenceId.toTimeZone(clock.zone()) : recurrenceId);
    }
    // Programs that take the second of two passes for meant name it in UTC.
    return keyOfStart(countsMoments ? recurrenceId
                                    : KCalCompat::firstPass(recurrenceId.toTimeZone(zone)));
}

qint64 SeriesScale::keyAt(Msecs moment) const
{
    return keyOfStart(QDateTime::fromMSecsSinceEpoch(moment, clock.zone()));
}

SeriesWalk::SeriesWalk(const KCalCore::Incidence &series, const SeriesScale &scale, Msecs from,
                       Msecs to)
    : m_scale(scale), m_recurrence(series.recurrence())
{
    const bool isTooMuch = anyRule(*m_recurrence, isUnbearable);
    m_isWallCopy = needsWallCopy(from, to);
    if (isTooMuch || m_isWallCopy) {
        m_copy = std::make_unique<Recurrence>(*m_recurrence);
        makeBearable(m_copy.get());
        if (m_isWallCopy) {
            countWallAsUtc(m_copy.get());
        }
        m_recurrence = m_copy.get();
    }
}

bool SeriesWalk::needsWallCopy(Msecs from, Msecs to) const
{
    const ClockChanges changes = ClockChanges::of(m_scale.zone);
    if (changes.isEmpty() || m_scale.countsMoments) {
        return false;
    }
    // A skipped start does not count towards COUNT in KCalendarCore: each later end is wrong.
    const auto counts = [](const RecurrenceRule *rule) { return rule->duration() > 0; };
    const Msecs since = anyRule(*m_recurrence, counts) ? m_scale.first.toMSecsSinceEpoch() : from;
    return changes.concern(m_scale.first.time(), since, to) || anyRule(*m_recurrence, namesTimes);
}

void SeriesWalk::goAfter(qint64 key)
{
    const QDateTime wall = QDateTime::fromSecsSinceEpoch(key, Qt::UTC);
    if (m_isWallCopy && m_scale.isAllDay) {
        m_current = wall;
        return;
    }
    m_current = m_scale.isWallBound ? atWallClock(wall.date(), wall.time(), m_scale.zone)
                                    : QDateTime::fromSecsSinceEpoch(key, m_scale.zone);
    if (m_isWallCopy) {
        m_current = unskipped(m_current);
    }
}

bool SeriesWalk::next()
{
    m_current = m_recurrence->getNextDateTime(m_current);
    return m_current.isValid();
}

bool SeriesWalk::goToLast(qint64 key)
{
    goAfter(key);
    const QDateTime bound = m_current.addSecs(1);
    QDateTime last = m_recurrence->getPreviousDateTime(bound);
    // Of several RDATEs KCalendarCore finds the first, not the last.
    const auto consider = [&](const QDateTime &added) {
        const bool isBetter = added < bound && (!last.isValid() || added > last);
        if (isBetter && m_recurrence->getNextDateTime(added.addSecs(-1)) == added) {
            last = added;
        }
    };
    const auto times = m_recurrence->rDateTimes();
    std::for_each(times.cbegin(), times.cend(), consider);
    const auto days = m_recurrence->rDates();
    const QDateTime first = m_recurrence->startDateTime();
    for (const QDate &day : days) {
        consider(inSpecOf(first, atWallClock(day, first.time(), zoneOf(first))));
    }
    m_current = last;
    return last.isValid();
}

QDateTime SeriesWalk::start() const
{
    if (!m_scale.isWallBound && !m_isWallCopy) {
        return m_current;
    }
    return atWallClock(m_current.date(), m_current.time(),
                       m_scale.isWallBound ? m_scale.clock.zone() : m_scale.zone);
}

QDateTime SeriesWalk::recurrenceId() const
{
    if (!m_scale.isWallBound) {
        return start();
    }
    const QDateTime shown = atWallClock(m_current.date(), m_current.time(), m_scale.zone);
    return m_scale.first.timeSpec() == Qt::LocalTime ? shown.toLocalTime() : shown;
}
} // namespace mKCal
