// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_ZONECLOCK_H
#define MKCAL_ZONECLOCK_H

#include <QDateTime>
#include <QTimeZone>

#include <array>
#include <limits>

namespace mKCal
{
/// Milliseconds since 1970-01-01T00:00:00Z.
using Msecs = qint64;

constexpr qint64 msecsPerDay = 86400000;

/// The moment that a wall clock in @p zone shows that date and time. What the clock skips when it
/// is put forward is read with the offset from before (RFC 5545, 3.3.5), so that no appointment is
/// lost: 03:30 becomes 04:30. What it shows twice when it is put back is the first.
QDateTime atWallClock(const QDate &date, const QTime &time, const QTimeZone &zone);

/// The wall clock, written as UTC, that atWallClock() reads as @p dateTime: the skipped one when
/// there is one, otherwise what is shown.
QDateTime unskipped(const QDateTime &dateTime);

/// The same as toMSecsSinceEpoch(), which looks the offset of a zone up anew at every call,
/// although the date-time knows it.
Msecs momentOf(const QDateTime &dateTime);

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
    /// The first moment of a day, whatever the clock shows then. Remembers some, so that asking for
    /// the same days again costs nothing.
    Msecs dayStart(const QDate &date) const;
    QDateTime dateTime(Msecs moment) const;
    QDate date(Msecs moment) const { return dateTime(moment).date(); }

private:
    struct KnownDay {
        qint64 day = std::numeric_limits<qint64>::min(); // Julian
        Msecs start = 0;
    };

    Msecs findDayStart(const QDate &date) const;

    QTimeZone m_zone;
    bool m_isSystem;
    mutable std::array<KnownDay, 64> m_knownDays; // each by its remainder
};
} // namespace mKCal

#endif
