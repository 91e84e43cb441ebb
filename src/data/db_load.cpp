// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "db_instance_p.h"
#include "preloadrange_p.h"

#include <daskel/expandedincidencescache.h>
#include <kcalcompat/clock.h>

#include <algorithm>

void DbInstancePrivate::dropLoadRecord()
{
    loadedStart = QDate();
    loadedEnd = QDate();
    recurringLoaded = false;
    uncompletedTodosLoaded = false;
}

void DbInstancePrivate::preloadCalendar()
{
    storage->loadRecurringIncidences();
    recurringLoaded = true;
    storage->loadUncompletedTodos();
    uncompletedTodosLoaded = true;

    const QDate today = KCalCompat::Clock::now().toTimeZone(calendar->timeZone()).date();
    const Daskel::DateRange range = Daskel::calendarPreloadRange(today);
    storage->load(range.start, range.end);
    loadedStart = range.start;
    loadedEnd = range.end;
    ExpandedIncidencesCache::instance()->loadExpandedEventsAndTodos(range.start, range.end);
    finishPreload();
}

void DbInstancePrivate::preloadJournals()
{
    storage->loadJournals();
    journalsLoaded = true;
    finishPreload();
}

void DbInstancePrivate::finishPreload()
{
    enabled.store(true, std::memory_order_release);
    Q_EMIT q->dataUpdated();
    // Last: who sees it cleared may delete everything that the worker used.
    if (initRunning.load(std::memory_order_acquire)) {
        storage->releaseNotices();
        initRunning.store(false, std::memory_order_release);
    }
}

void DbInstance::load(const QDate &date)
{
    if (!d)
        return;
    tryOpenDatabase();
    if (!isEnabled())
        return;
    const bool isLoaded = d->loadedStart.isValid() && d->loadedEnd.isValid()
        && date >= d->loadedStart && date <= d->loadedEnd;
    if (!isLoaded)
        d->storage->load(date);
}

void DbInstance::load(const QDate &start, const QDate &end)
{
    if (!d)
        return;
    tryOpenDatabase();
    if (!isEnabled() || !start.isValid() || !end.isValid())
        return;
    const bool startKnown = d->loadedStart.isValid();
    const bool endKnown = d->loadedEnd.isValid();
    const QDate newStart = startKnown ? std::min(start, d->loadedStart) : start;
    const QDate newEnd = endKnown ? std::max(end, d->loadedEnd) : end;
    if (startKnown && endKnown && newStart == d->loadedStart && newEnd == d->loadedEnd)
        return;
    d->storage->load(newStart, newEnd);
    d->loadedStart = newStart;
    d->loadedEnd = newEnd;
}

bool DbInstance::loadFutureIncidences(int limit, KDateTime *last)
{
    if (!d)
        return false;
    tryOpenDatabase();
    d->waitForPreload();
    // For the first screen only: later the preload knows better what is loaded.
    if (isEnabled())
        return false;
    KDateTime lastStart;
    KDateTime *const found = last != nullptr ? last : &lastStart;
    const bool loaded = d->storage->loadFutureIncidences(limit, found);
    d->loadedEnd = found->date();
    return loaded;
}

void DbInstance::loadJournals()
{
    if (!d)
        return;
    tryOpenDatabase();
    if (!isEnabled() || d->journalsLoaded)
        return;
    d->storage->loadJournals();
    d->journalsLoaded = true;
}

void DbInstance::loadUncompletedTodos()
{
    if (!d)
        return;
    tryOpenDatabase();
    if (!isEnabled() || d->uncompletedTodosLoaded)
        return;
    d->storage->loadUncompletedTodos();
    d->uncompletedTodosLoaded = true;
}

void DbInstance::loadRecurringIncidences()
{
    if (!d)
        return;
    tryOpenDatabase();
    if (!isEnabled() || d->recurringLoaded)
        return;
    d->storage->loadRecurringIncidences();
    d->recurringLoaded = true;
}

QSharedPointer<KCalCore::Incidence> DbInstance::incidence(const QString &uid,
                                                          const KDateTime &recurrenceId)
{
    if (!d)
        return {};
    tryOpenDatabase();
    d->waitForPreload();
    if (auto known = d->calendar->incidence(uid, recurrenceId))
        return known;
    d->storage->load(uid, recurrenceId);
    return d->calendar->incidence(uid, recurrenceId);
}
