// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_EXPANDEDINCIDENCESCACHE_H
#define DASKEL_EXPANDEDINCIDENCESCACHE_H

#include <mkcal/extendedcalendar.h>

#include <QObject>

#include <memory>

class ExpandedIncidencesCachePrivate;

/// What a person sees on each day of a stretch of time: events and to-dos with recurrences unrolled
/// and longer items split per day, worked out once for all month and week views.
///
/// One for the process. DbInstance fills it during the preload, on the worker thread, and renews it
/// when data, clock or zone change; from then on it belongs to the UI thread. Before the database
/// is enabled it answers nothing.
///
/// The occurrences of a range are those before the midnight that begins its last day; a range of
/// one day is that whole day. Who shows days up to and including the last asks for one day more.
class ExpandedIncidencesCache : public QObject
{
    Q_OBJECT
public:
    /// One occurrence, or one day's piece of it, with its start and (exclusive) end, and the
    /// incidence that it is of.
    using Occurrence = mKCal::ExtendedCalendar::ExpandedIncidence;
    /// Ordered by start.
    using Occurrences = QVector<Occurrence>;

    static ExpandedIncidencesCache *instance();

    /// The occurrences that start on a date from @p start to @p end. Free of charge inside the
    /// cached range. Up to 365 days after it the range grows; anything else makes [@p start,
    /// @p end] the new range. Empty for invalid dates.
    Occurrences getExpandedEventsAndTodos(const QDate &start, const QDate &end);
    /// Makes [@p start, @p end] the cached range, expands it anew and returns all of it. Warns when
    /// something recurs more often than there are days: it is listed that often only. Invalid dates
    /// leave the cache empty.
    Occurrences loadExpandedEventsAndTodos(const QDate &start, const QDate &end);
    void clearExpandedIncidences();
    /// Expands the cached range anew.
    void reloadCache();

private:
    ExpandedIncidencesCache();
    ~ExpandedIncidencesCache() override;
    Q_DISABLE_COPY(ExpandedIncidencesCache)

    std::unique_ptr<ExpandedIncidencesCachePrivate> d;
};

#endif
