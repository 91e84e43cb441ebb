// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_ZONECLOCK_H
#define MKCAL_ZONECLOCK_H

#include <QDateTime>
#include <QTimeZone>

namespace mKCal
{
/// Milliseconds since 1970-01-01T00:00:00Z.
using Msecs = qint64;

constexpr qint64 msecsPerDay = 86400000;

/// The moment that a wall clock in @p zone shows that date and time. What the clock skips when it
/// is put forward is read with the offset from before (RFC 5545, 3.3.5), so that no appointment is
/// lost: 03:30 becomes 04:30.
QDateTime atWallClock(const QDate &date, const QTime &time, const QTimeZone &zone);

/// The wall clock, written as UTC, that atWallClock() reads as @p dateTime: the skipped one when
/// there is one, otherwise what is shown.
QDateTime unskipped(const QDateTime &dateTime);

/// What the wall clock shows, as seconds counted as if it were UTC: a measure for distances
/// between dates that no clock change bends.
qint64 wallSeconds(const QDateTime &dateTime);

/// The zone that @p dateTime is written in, for clock time the system's.
QTimeZone zoneOf(const QDateTime &dateTime);

/// The same moment, written in the time spec of @p model.
QDateTime inSpecOf(const QDateTime &model, const QDateTime &dateTime);

/// @p dateTime moved by that many seconds of the wall clock, in its time spec.
QDateTime shiftedByWall(const QDateTime &dateTime, qint64 seconds);

/// A wall clock in one zone. Its moments are written in Qt::LocalTime when that is the system's
/// zone, so that the views compare and show them without conversion.
class ZoneClock
{
public:
    explicit ZoneClock(const QTimeZone &zone);

    const QTimeZone &zone() const { return m_zone; }
    Msecs at(const QDate &date, const QTime &time) const;
    /// The first moment of a day, whatever the clock shows then.
    Msecs dayStart(const QDate &date) const;
    QDateTime dateTime(Msecs moment) const;
    QDate date(Msecs moment) const { return dateTime(moment).date(); }

private:
    QTimeZone m_zone;
    bool m_isSystem;
};
} // namespace mKCal

#endif
