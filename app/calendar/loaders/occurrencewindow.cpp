// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "occurrencewindow.h"

#include <daskel/db_instance.h>

#include <QSet>

#include <algorithm>

using KCalCore::Incidence;
using KCalCore::RecurrenceRule;
using Occurrence = ExpandedIncidencesCache::Occurrence;

namespace
{
/// A cache longer than this is made anew around the view.
constexpr int maxCachedDays = 400;
/// For one incidence in one stretch: every minute of a week, and no end to something that repeats
/// every second.
constexpr int maxOccurrences = 10000;

bool repeatsWithinADay(const RecurrenceRule &rule)
{
    return rule.recurrenceType() < RecurrenceRule::rDaily || rule.byHours().size() > 1
        || rule.byMinutes().size() > 1 || rule.bySeconds().size() > 1;
}

bool reachesOverMidnight(const Incidence &incidence)
{
    if (incidence.type() != Incidence::TypeEvent)
        return false;
    const QDateTime start = incidence.dtStart().toLocalTime();
    const QDateTime end = incidence.dateTime(Incidence::RoleEnd).toLocalTime();
    return end.isValid() && end > start.date().addDays(1).startOfDay();
}

/// Whether a day may hold more than one piece of it; the cache counts a piece for each day.
bool isFrequent(const Incidence &incidence)
{
    if (!incidence.recurs())
        return false;
    const RecurrenceRule::List rules = incidence.recurrence()->rRules();
    return rules.size() > 1 || !incidence.recurrence()->rDateTimes().isEmpty()
        || reachesOverMidnight(incidence)
        || std::any_of(rules.cbegin(), rules.cend(),
                       [](const RecurrenceRule *rule) { return repeatsWithinADay(*rule); });
}

Incidence::List frequentOnes(const QDate &first, const QDate &last)
{
    Incidence::List frequent;
    const Incidence::List alive = DbInstance::instance()->calendar()->incidences(first, last);
    for (const Incidence::Ptr &incidence : alive) {
        if (incidence->type() != Incidence::TypeJournal && isFrequent(*incidence))
            frequent.append(incidence);
    }
    return frequent;
}

OccurrenceWindow::Occurrences expand(Incidence::List incidences, const QDate &first,
                                     const QDate &openEnd)
{
    const auto calendar = DbInstance::instance()->calendar();
    const KDateTime::Spec zone = KDateTime::Spec::LocalZone();
    const auto unrolled =
        calendar->expandRecurrences(&incidences, KDateTime(first, {0, 0}, zone),
                                    KDateTime(openEnd, {0, 0}, zone), maxOccurrences);
    return calendar->expandMultiDay(unrolled, first, openEnd, maxOccurrences, true);
}

/// By day; within a day what fills it, then what is due on it, then by time.
bool readsBefore(const Occurrence &a, const Occurrence &b)
{
    const auto rank = [](const Incidence &incidence) {
        if (!incidence.allDay())
            return 2;
        return incidence.type() == Incidence::TypeTodo ? 1 : 0;
    };
    const QDate dayOfA = a.first.dtStart.date();
    const QDate dayOfB = b.first.dtStart.date();
    if (dayOfA != dayOfB)
        return dayOfA < dayOfB;
    const int rankOfA = rank(*a.second);
    const int rankOfB = rank(*b.second);
    return rankOfA != rankOfB ? rankOfA < rankOfB : a.first.dtStart < b.first.dtStart;
}
} // namespace

OccurrenceWindow::Occurrences OccurrenceWindow::occurrences(const QDate &first, const QDate &last)
{
    DbInstance *const db = DbInstance::instance();
    // Of a range the cache answers what comes before the midnight that begins its last day.
    const QDate openEnd = last.addDays(1);
    db->load(first, openEnd);
    db->loadRecurringIncidences();
    makeRoom(first, openEnd);
    const Occurrences cached =
        ExpandedIncidencesCache::instance()->getExpandedEventsAndTodos(first, openEnd);

    const Incidence::List frequent = frequentOnes(first, last);
    QSet<QString> cut;
    for (const Incidence::Ptr &incidence : frequent)
        cut.insert(incidence->uid());
    Occurrences shown;
    const auto calendar = db->calendar();
    const auto take = [&](const Occurrence &occurrence) {
        const QDate day = occurrence.first.dtStart.date();
        if (day >= first && day <= last && calendar->isVisible(occurrence.second))
            shown.append(occurrence);
    };
    for (const Occurrence &occurrence : cached) {
        if (!cut.contains(occurrence.second->uid()))
            take(occurrence);
    }
    const Occurrences expanded = expand(frequent, first, openEnd);
    std::for_each(expanded.cbegin(), expanded.cend(), take);
    std::stable_sort(shown.begin(), shown.end(), readsBefore);
    return shown;
}

/// A request before the cached days makes the cache anew by itself; one behind them only adds.
void OccurrenceWindow::makeRoom(const QDate &first, const QDate &openEnd)
{
    if (m_cachedFrom.isValid() && m_cachedFrom.daysTo(openEnd) > maxCachedDays) {
        ExpandedIncidencesCache::instance()->loadExpandedEventsAndTodos(first, openEnd);
        m_cachedFrom = first;
    } else if (!m_cachedFrom.isValid() || first < m_cachedFrom) {
        m_cachedFrom = first;
    }
}
