// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_INCIDENCETIMES_H
#define MKCAL_INCIDENCETIMES_H

#include "zoneclock.h"

#include <kcalcompat/kcalcore.h>

namespace mKCal
{
/// A stretch of time, the end not part of it; a moment when both are equal.
struct TimeSpan {
    Msecs start = 0;
    Msecs end = 0;

    bool overlaps(Msecs from, Msecs to) const
    {
        return start < to && (end > from || (end == start && start >= from));
    }
};

/// Whether the wall clock counts and not the moment: all-day and clock-time incidences are on the
/// same date in every zone.
bool isWallBound(const KCalCore::Incidence &incidence);

/// The date-time by which an incidence is found: an event's or journal's start, the due date of a
/// to-do (its start when it has none); of the first occurrence for recurring ones. Null when there
/// is none.
QDateTime anchor(const KCalCore::Incidence &incidence);

/// How long an incidence lasts: whole days for all-day ones and for nominal durations, which keep
/// the wall clock over a clock change, seconds for all others. To-dos and journals take no time,
/// all-day ones fill their day.
struct Length {
    bool allDay = false;
    qint64 days = 0;
    qint64 seconds = 0;

    static Length of(const KCalCore::Incidence &incidence);
    /// At least as much as any occurrence lasts.
    qint64 atMostSeconds() const { return seconds + (days > 0 ? (days + 1) * 86400 : 0); }
    /// The end of what starts when the wall clock shows @p start.
    Msecs endAfter(const QDateTime &start, const ZoneClock &clock) const;
};

/// The wall clock that an incidence's date-time is read from: @p clock for those bound to the wall
/// (the result is then in its zone), otherwise its own.
QDateTime inOwnZone(const QDateTime &dateTime, bool wallBound, const ZoneClock &clock);

/// The first occurrence. Only for incidences that have an anchor().
TimeSpan spanOf(const KCalCore::Incidence &incidence, const ZoneClock &clock);
} // namespace mKCal

#endif
