// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "zoneclock.h"

#include <kcalcompat/firstpass.h>
#include <kcalcompat/ksystemtimezones.h>

namespace mKCal
{
namespace
{
/// The offset from UTC before a gap that @p asUtc lies in or shortly behind: a day and a half
/// reaches behind the longest one there is, the day that Apia left out in 2011.
int offsetBefore(const QDateTime &asUtc, const QTimeZone &zone)
{
    return zone.offsetFromUtc(asUtc.addSecs(-129600));
}
} // namespace

QDateTime atWallClock(const QDate &date, const QTime &time, const QTimeZone &zone)
{
    QDateTime shown(date, time, zone);
    if (shown.isValid()) {
        return KCalCompat::firstPass(shown);
    }
    if (!date.isValid()) {
        return shown;
    }
    const QDateTime asUtc(date, time, Qt::UTC);
    return asUtc.addSecs(-offsetBefore(asUtc, zone)).toTimeZone(zone);
}

QDateTime unskipped(const QDateTime &dateTime)
{
    const QTimeZone zone = zoneOf(dateTime);
    const QDateTime moment = dateTime.toUTC();
    const QDateTime wall = moment.addSecs(offsetBefore(moment, zone));
    return QDateTime(wall.date(), wall.time(), zone).isValid()
        ? QDateTime(dateTime.date(), dateTime.time(), Qt::UTC)
        : wall;
}

Msecs momentOf(const QDateTime &dateTime)
{
    if (dateTime.timeSpec() != Qt::TimeZone || !dateTime.isValid()) {
        return dateTime.toMSecsSinceEpoch();
    }
    return (wallSeconds(dateTime) - dateTime.offsetFromUtc()) * 1000 + dateTime.time().msec();
}

qint64 wallSeconds(const QDateTime &dateTime)
{
    return (dateTime.date().toJulianDay() - QDate(1970, 1, 1).toJulianDay()) * 86400
        + dateTime.time().msecsSinceStartOfDay() / 1000;
}

QTimeZone zoneOf(const QDateTime &dateTime)
{
    return dateTime.timeSpec() == Qt::LocalTime ? KSystemTimeZones::local() : dateTime.timeZone();
}

QDateTime inSpecOf(const QDateTime &model, const QDateTime &dateTime)
{
    switch (model.timeSpec()) {
    case Qt::LocalTime:
        return dateTime.toLocalTime();
    case Qt::UTC:
        return dateTime.toUTC();
    case Qt::OffsetFromUTC:
        return dateTime.toOffsetFromUtc(model.offsetFromUtc());
    case Qt::TimeZone:
        break;
    }
    return dateTime.toTimeZone(model.timeZone());
}

QDateTime shiftedByWall(const QDateTime &dateTime, qint64 seconds)
{
    const QDateTime wall = QDateTime::fromSecsSinceEpoch(wallSeconds(dateTime) + seconds, Qt::UTC);
    return inSpecOf(dateTime, atWallClock(wall.date(), wall.time(), zoneOf(dateTime)));
}

ZoneClock::ZoneClock(const QTimeZone &zone)
    : m_zone(zone.isValid() ? zone : KSystemTimeZones::local()),
      m_isSystem(m_zone == KSystemTimeZones::local())
{
}

Msecs ZoneClock::at(const QDate &date, const QTime &time) const
{
    return atWallClock(date, time, m_zone).toMSecsSinceEpoch();
}

Msecs ZoneClock::dayStart(const QDate &date) const
{
    const qint64 day = date.toJulianDay();
    KnownDay &known = m_knownDays[static_cast<quint64>(day) % m_knownDays.size()];
    if (known.day != day || !date.isValid()) {
        known = {day, findDayStart(date)};
    }
    return known.start;
}

Msecs ZoneClock::findDayStart(const QDate &date) const
{
    const QDateTime midnight(date, QTime(0, 0), m_zone);
    if (midnight.isValid()) {
        return momentOf(KCalCompat::firstPass(midnight));
    }
    const QDateTime first = date.startOfDay(m_zone);
    return first.isValid() ? first.toMSecsSinceEpoch() : at(date, QTime(0, 0));
}

QDateTime ZoneClock::dateTime(Msecs moment) const
{
    return m_isSystem ? QDateTime::fromMSecsSinceEpoch(moment)
                      : QDateTime::fromMSecsSinceEpoch(moment, m_zone);
}
} // namespace mKCal
