// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/db_instance.h>
#include <daskel/expandedincidencescache.h>

#include <algorithm>

using KCalCore::Incidence;
using Occurrences = ExpandedIncidencesCache::Occurrences;

namespace
{
/// Further than this from the cached range, the days between are not worth expanding.
constexpr int maxGapDays = 365;

/// The occurrences of @p incidences from @p start to the midnight before @p end. Nothing that
/// recurs more often than daily is useful in a view of days, so that is where it is cut.
Occurrences expand(Incidence::List incidences, const QDate &start, const QDate &end)
{
    const auto calendar = DbInstance::instance()->calendar();
    const KDateTime::Spec localZone = KDateTime::Spec::LocalZone();
    const int limit = static_cast<int>(start.daysTo(end));
    bool limitHit = false;
    const Occurrences unrolled =
        calendar->expandRecurrences(&incidences, KDateTime(start, QTime(0, 0), localZone),
                                    KDateTime(end, QTime(0, 0), localZone), limit, &limitHit);
    if (limitHit) {
        qWarning("There is a recurrences more frequent than a day.");
        limitHit = false;
    }
    const Occurrences pieces =
        calendar->expandMultiDay(unrolled, start, end, limit, true, &limitHit);
    if (limitHit)
        qWarning("There is a recurring multiday more frequent than a day.");
    return pieces;
}

bool isEventOrTodo(const Incidence::Ptr &incidence)
{
    return incidence->type() == KCalCore::IncidenceBase::TypeEvent
        || incidence->type() == KCalCore::IncidenceBase::TypeTodo;
}
} // namespace

class ExpandedIncidencesCachePrivate
{
public:
    explicit ExpandedIncidencesCachePrivate(ExpandedIncidencesCache *cache) : q(cache) { }

    /// Adds the days from the midnight of cachedEnd, which the range so far ends with, to @p end.
    /// What is loaded in the calendar is taken as it is.
    void extendTo(const QDate &end);
    Occurrences startingFromTo(const QDate &start, const QDate &end) const;

    QDate cachedStart;
    QDate cachedEnd;
    bool valid = false;
    Occurrences occurrences;
    ExpandedIncidencesCache *const q;
};

void ExpandedIncidencesCachePrivate::extendTo(const QDate &end)
{
    const auto calendar = DbInstance::instance()->calendar();
    const auto todos = calendar->todos(cachedEnd, end);
    const auto events = calendar->events(cachedEnd, end);
    occurrences +=
        expand(KCalCore::Calendar::mergeIncidenceList(events, todos, {}), cachedEnd, end);
    cachedEnd = end;
    valid = true;
}

Occurrences ExpandedIncidencesCachePrivate::startingFromTo(const QDate &start,
                                                           const QDate &end) const
{
    const auto startsBefore = [](const ExpandedIncidencesCache::Occurrence &occurrence,
                                 const QDate &date) {
        return occurrence.first.dtStart.date() < date;
    };
    const auto first =
        std::lower_bound(occurrences.cbegin(), occurrences.cend(), start, startsBefore);
    const auto last = std::lower_bound(first, occurrences.cend(), end.addDays(1), startsBefore);
    return occurrences.mid(static_cast<int>(first - occurrences.cbegin()),
                           static_cast<int>(last - first));
}

ExpandedIncidencesCache::ExpandedIncidencesCache()
    : d(std::make_unique<ExpandedIncidencesCachePrivate>(this))
{
}

ExpandedIncidencesCache::~ExpandedIncidencesCache() = default;

ExpandedIncidencesCache *ExpandedIncidencesCache::instance()
{
    static ExpandedIncidencesCache cache;
    return &cache;
}

Occurrences ExpandedIncidencesCache::getExpandedEventsAndTodos(const QDate &start, const QDate &end)
{
    if (!DbInstance::instance()->isEnabled() || !start.isValid() || !end.isValid())
        return {};
    const bool isFar =
        d->cachedEnd.daysTo(start) > maxGapDays || end.daysTo(d->cachedStart) > maxGapDays;
    // Days before the range are never put in front: who pages back starts a new range there, and
    // paging on from it only appends, which leaves what is cached where it is.
    if (!d->valid || isFar || start < d->cachedStart)
        return loadExpandedEventsAndTodos(start, end);
    if (end > d->cachedEnd)
        d->extendTo(end);
    return d->startingFromTo(start, end);
}

Occurrences ExpandedIncidencesCache::loadExpandedEventsAndTodos(const QDate &start,
                                                                const QDate &end)
{
    clearExpandedIncidences();
    if (!start.isValid() || !end.isValid())
        return {};
    const QDate openEnd = start == end ? end.addDays(1) : end;

    DbInstance *const db = DbInstance::instance();
    db->load(start, openEnd);
    db->loadRecurringIncidences();
    db->loadUncompletedTodos();

    const Incidence::List inRange = db->calendar()->incidences(start, openEnd);
    Incidence::List shown;
    std::copy_if(inRange.cbegin(), inRange.cend(), std::back_inserter(shown), isEventOrTodo);
    d->occurrences = expand(shown, start, openEnd);
    d->cachedStart = start;
    d->cachedEnd = openEnd;
    d->valid = true;
    return d->occurrences;
}

void ExpandedIncidencesCache::clearExpandedIncidences()
{
    d->cachedStart = QDate();
    d->cachedEnd = QDate();
    d->occurrences.clear();
    d->valid = false;
}

void ExpandedIncidencesCache::reloadCache()
{
    loadExpandedEventsAndTodos(d->cachedStart, d->cachedEnd);
}
