// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/datetimecolumns.h"

#include "sqlite/logging.h"
#include "sqlite/statement.h"

#include <kcalcompat/ksystemtimezones.h>

#include <sqlite3.h>

namespace mKCal
{
namespace
{
constexpr qint64 dayMilliseconds = 86400 * 1000;
constexpr qint64 epochJulianDay = 2440588;
constexpr int maximumOffset = 16 * 3600; // what Qt takes

// RFC 5545 writes years with four digits.
const qint64 firstWallClock =
    (QDate(1, 1, 1).toJulianDay() - 366 - epochJulianDay) * dayMilliseconds;
const qint64 endWallClock =
    (QDate(9999, 12, 31).toJulianDay() + 1 - epochJulianDay) * dayMilliseconds;

QByteArray offsetText(int seconds)
{
    const QTime size = QTime(0, 0).addSecs(qAbs(seconds));
    const QString format = size.second() ? QStringLiteral("HH:mm:ss") : QStringLiteral("HH:mm");
    return (seconds < 0 ? '-' : '+') + size.toString(format).toLatin1();
}

bool readOffset(const QByteArray &text, int *seconds)
{
    if (!text.startsWith('+') && !text.startsWith('-'))
        return false;
    const QTime size =
        QTime::fromString(QString::fromLatin1(text.mid(1)),
                          text.size() > 6 ? QStringLiteral("HH:mm:ss") : QStringLiteral("HH:mm"));
    *seconds = QTime(0, 0).secsTo(size) * (text.startsWith('-') ? -1 : 1);
    return size.isValid() && qAbs(*seconds) <= maximumOffset;
}

QDate dateOf(qint64 wallClock, int *millisecondOfDay)
{
    const qint64 day = wallClock >= 0 ? wallClock / dayMilliseconds
                                      : -((-wallClock + dayMilliseconds - 1) / dayMilliseconds);
    *millisecondOfDay = int(wallClock - day * dayMilliseconds);
    return QDate::fromJulianDay(day + epochJulianDay);
}

QByteArray namedZoneTag(const QDateTime &dateTime)
{
    const QByteArray id = dateTime.timeZone().id();
    const QTimeZone known = KSystemTimeZones::zone(id);
    const bool looksOtherwise = id == "Z" || id.startsWith('+') || id.startsWith('-');
    const bool nameTells = known.isValid() && !looksOtherwise
        && QDateTime(dateTime.date(), dateTime.time(), known).offsetFromUtc()
            == dateTime.offsetFromUtc();
    return nameTells ? id : id + '@' + offsetText(dateTime.offsetFromUtc());
}
} // namespace

qint64 DateTimeColumns::wallClock(const QDateTime &dateTime)
{
    return (dateTime.date().toJulianDay() - epochJulianDay) * dayMilliseconds
        + dateTime.time().msecsSinceStartOfDay();
}

QByteArray DateTimeColumns::zoneTag(const QDateTime &dateTime)
{
    switch (dateTime.timeSpec()) {
    case Qt::LocalTime:
        break;
    case Qt::UTC:
        return QByteArrayLiteral("Z");
    case Qt::OffsetFromUTC:
        return offsetText(dateTime.offsetFromUtc());
    case Qt::TimeZone:
        return namedZoneTag(dateTime);
    }
    return {};
}

void DateTimeColumns::bind(Statement &statement, int parameter, const QDateTime &dateTime)
{
    if (dateTime.date().isValid()) {
        statement.bind(parameter, wallClock(dateTime));
        statement.bindAscii(parameter + 1, zoneTag(dateTime));
    } else {
        statement.bindNull(parameter);
        statement.bindNull(parameter + 1);
    }
}

bool DateTimeColumns::identical(const QDateTime &a, const QDateTime &b)
{
    if (!a.isValid() || !b.isValid())
        return a.isValid() == b.isValid();
    if (a.timeSpec() != b.timeSpec() || a.date() != b.date() || a.time() != b.time())
        return false;
    if (a.timeSpec() == Qt::LocalTime || a.timeSpec() == Qt::UTC)
        return true;
    return a.offsetFromUtc() == b.offsetFromUtc()
        && (a.timeSpec() != Qt::TimeZone || a.timeZone().id() == b.timeZone().id());
}

qint64 DateTimeColumns::seconds(const QDateTime &dateTime, bool byWallClock)
{
    // The end of a hostile period lies beyond all dates.
    if (!dateTime.date().isValid())
        return 0;
    if (!byWallClock && dateTime.timeSpec() != Qt::LocalTime)
        return dateTime.toSecsSinceEpoch();
    return (dateTime.date().toJulianDay() - epochJulianDay) * 86400
        + dateTime.time().msecsSinceStartOfDay() / 1000;
}

QDateTime DateTimeReader::read(const Statement &statement, int column)
{
    if (statement.isNull(column))
        return {};
    sqlite3_stmt *row = statement.handle();
    const auto *tag = reinterpret_cast<const char *>(sqlite3_column_text(row, column + 1));
    const int length = tag ? sqlite3_column_bytes(row, column + 1) : 0;
    return make(statement.integer(column), zoneOf(tag, length));
}

QDateTime DateTimeReader::read(qint64 wallClock, const QByteArray &tag)
{
    return make(wallClock, zoneOf(tag.constData(), tag.size()));
}

QDateTime DateTimeReader::readUtc(qint64 milliseconds)
{
    static const Zone utc = parse(QByteArrayLiteral("Z"));
    return make(milliseconds, utc);
}

const DateTimeReader::Zone &DateTimeReader::zoneOf(const char *tag, int length)
{
    // Neighbours in a query mostly share their zone.
    const QByteArray text = QByteArray::fromRawData(tag, length);
    if (m_lastZone && text == m_lastTag)
        return *m_lastZone;
    auto known = m_zones.find(text);
    if (known == m_zones.end()) {
        const QByteArray owned(tag, length);
        known = m_zones.insert(owned, std::make_shared<Zone>(parse(owned)));
    }
    m_lastTag = known.key();
    m_lastZone = known->get();
    return *m_lastZone;
}

DateTimeReader::Zone DateTimeReader::parse(const QByteArray &tag)
{
    Zone zone;
    if (tag.isEmpty())
        return zone;
    if (tag == "Z") {
        zone.kind = Zone::Utc;
        return zone;
    }
    if (readOffset(tag, &zone.offset)) {
        zone.kind = Zone::Offset;
        return zone;
    }
    const int mark = tag.lastIndexOf('@');
    const bool hasOffset = mark >= 0 && readOffset(tag.mid(mark + 1), &zone.offset);
    const QByteArray id = hasOffset ? tag.left(mark) : tag;
    zone.kind = hasOffset ? Zone::NamedWithOffset : Zone::Named;
    zone.zone = KSystemTimeZones::zone(id);
    if (!zone.zone.isValid() && hasOffset) {
        const QString name = QString::fromLatin1(id);
        zone.zone = QTimeZone(id, zone.offset, name, name);
    }
    if (!zone.zone.isValid()) {
        qCWarning(lcSqlite) << "cannot read the time zone" << tag.left(64) << "- taken as floating";
        zone.kind = Zone::Unreadable;
    }
    return zone;
}

QDateTime DateTimeReader::make(qint64 wallClock, const Zone &zone)
{
    if (wallClock < firstWallClock || wallClock >= endWallClock) {
        ++m_faults;
        return {};
    }
    if (zone.kind == Zone::NamedWithOffset)
        return QDateTime::fromMSecsSinceEpoch(wallClock - zone.offset * qint64(1000), zone.zone);
    if (zone.kind == Zone::Utc)
        return QDateTime::fromMSecsSinceEpoch(wallClock, Qt::UTC);
    int millisecond = 0;
    const QDate date = dateOf(wallClock, &millisecond);
    const QTime time = QTime::fromMSecsSinceStartOfDay(millisecond);
    if (zone.kind == Zone::Named)
        return QDateTime(date, time, zone.zone);
    if (zone.kind == Zone::Offset)
        return QDateTime(date, time, Qt::OffsetFromUTC, zone.offset);
    if (zone.kind == Zone::Unreadable)
        ++m_faults;
    return QDateTime(date, time, Qt::LocalTime);
}
} // namespace mKCal
