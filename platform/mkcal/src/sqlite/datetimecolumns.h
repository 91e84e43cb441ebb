// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_DATETIMECOLUMNS_H
#define MKCAL_DATETIMECOLUMNS_H

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QTimeZone>

#include <memory>

namespace mKCal
{
class Statement;

/// A date-time as two columns: the wall clock in milliseconds since 1970 as if it were UTC, and a
/// zone tag: NULL floating, "Z" UTC, "+hh:mm[:ss]" a fixed offset, else the zone's name. Where name
/// and wall clock do not tell the moment (the hour that a clock change repeats, a zone that the
/// system does not know), "@+hh:mm[:ss]" follows. An invalid date-time is NULL, NULL.
namespace DateTimeColumns
{
/// Binds to @p parameter (wall clock) and the one after it (tag).
void bind(Statement &statement, int parameter, const QDateTime &dateTime);
qint64 wallClock(const QDateTime &dateTime);
/// Null when floating.
QByteArray zoneTag(const QDateTime &dateTime);
/// Whether two date-times are the same in everything: clock, kind of clock, zone, moment.
bool identical(const QDateTime &a, const QDateTime &b);
/// Seconds since 1970, UTC; those of the wall clock read as UTC when @p byWallClock; 0 without a
/// date.
qint64 seconds(const QDateTime &dateTime, bool byWallClock);
} // namespace DateTimeColumns

/// Reads date-times; holds the zones that it has met. Unreadable zones become floating, values
/// outside the years 0 to 9999 invalid; both are counted.
class DateTimeReader
{
public:
    /// From @p column (wall clock) and the one after it (tag).
    QDateTime read(const Statement &statement, int column);
    QDateTime read(qint64 wallClock, const QByteArray &tag);
    /// A moment in milliseconds since 1970.
    QDateTime readUtc(qint64 milliseconds);
    /// How many could not be read as they stand.
    int faults() const { return m_faults; }

private:
    struct Zone {
        enum Kind { Floating, Utc, Offset, Named, NamedWithOffset, Unreadable } kind = Floating;
        int offset = 0;
        QTimeZone zone;
    };
    const Zone &zoneOf(const char *tag, int length);
    static Zone parse(const QByteArray &tag);
    QDateTime make(qint64 wallClock, const Zone &zone);

    QHash<QByteArray, std::shared_ptr<const Zone>> m_zones;
    QByteArray m_lastTag;
    const Zone *m_lastZone = nullptr;
    int m_faults = 0;
};
} // namespace mKCal

#endif
