// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "timezonerules.h"

#include "contentline.h"

#include <KCalendarCore/ICalFormat>

#include <QTimeZone>
#include <QVector>

#include <algorithm>

namespace mKCal
{
namespace
{
constexpr int hour = 3600;
constexpr int wholeDay = 24 * hour;

/// "+0530", "-001521" in seconds.
int offsetOf(const QByteArray &value)
{
    const int seconds =
        value.mid(1, 2).toInt() * hour + value.mid(3, 2).toInt() * 60 + value.mid(5, 2).toInt();
    return value.startsWith('-') ? -seconds : seconds;
}

QDateTime wallClock(const QByteArray &value)
{
    QDateTime time = QDateTime::fromString(QString::fromLatin1(value.left(15)),
                                           QStringLiteral("yyyyMMddTHHmmss"));
    time.setTimeSpec(Qt::UTC);
    return time;
}

QByteArray fixedOffsetZone(int seconds)
{
    const QTime clock = QTime(0, 0).addSecs(std::abs(seconds) % wholeDay);
    const QByteArray name =
        (seconds < 0 ? "UTC-" : "UTC+") + clock.toString(QStringLiteral("HH:mm")).toLatin1();
    return QTimeZone(name).isValid() ? name : QByteArray();
}

/// Made once: a file may bring any number of definitions.
const QVector<QTimeZone> &systemZones()
{
    static const QVector<QTimeZone> zones = [] {
        QVector<QTimeZone> all;
        for (const QByteArray &name : QTimeZone::availableTimeZoneIds()) {
            all.append(QTimeZone(name));
        }
        return all;
    }();
    return zones;
}

/// Whether the zone is the one that stands for its neighbours where people choose a zone.
bool isWellKnown(const QTimeZone &zone)
{
    const QByteArray windowsName = QTimeZone::ianaIdToWindowsId(zone.id());
    return !windowsName.isEmpty() && QTimeZone::windowsIdToDefaultIanaId(windowsName) == zone.id();
}
} // namespace

TimeZoneRules::TimeZoneRules(const QByteArray &definition)
{
    bool isInside = false;
    const QList<QByteArray> lines = ContentLine::split(definition);
    for (const QByteArray &line : lines) {
        if (line == "BEGIN:STANDARD" || line == "BEGIN:DAYLIGHT") {
            m_observances.emplace_back();
            isInside = true;
        } else if (ContentLine::isNamed(line, "END")) {
            isInside = false;
        } else if (isInside) {
            m_observances.back().read(line);
        }
    }
    for (Observance &observance : m_observances) {
        observance.dates.append(observance.start);
        if (observance.rule) {
            observance.rule->setStartDt(observance.start);
        }
    }
}

void TimeZoneRules::Observance::read(const QByteArray &line)
{
    const QByteArray name = ContentLine::name(line);
    const QByteArray value = ContentLine::value(line).trimmed();
    if (name == "DTSTART") {
        start = wallClock(value);
    } else if (name == "TZOFFSETFROM") {
        offsetBefore = offsetOf(value);
    } else if (name == "TZOFFSETTO") {
        offset = offsetOf(value);
    } else if (name == "RDATE") {
        for (const QByteArray &date : value.split(',')) {
            dates.append(wallClock(date));
        }
    } else if (name == "RRULE") {
        rule = std::make_unique<KCalendarCore::RecurrenceRule>();
        if (!KCalendarCore::ICalFormat().fromString(rule.get(), QString::fromLatin1(value))) {
            rule.reset();
        }
    }
}

/// The instant at or before @p time (UTC) when this observance began last; null when it did not.
QDateTime TimeZoneRules::Observance::lastChange(const QDateTime &time) const
{
    const QDateTime wall = time.addSecs(offsetBefore);
    QDateTime last = rule ? rule->getPreviousDate(wall.addSecs(1)) : QDateTime();
    for (const QDateTime &date : dates) {
        if (date.isValid() && date <= wall && (!last.isValid() || last < date)) {
            last = date;
        }
    }
    return last.isValid() ? last.addSecs(-offsetBefore) : last;
}

int TimeZoneRules::offsetAt(const QDateTime &time) const
{
    const Observance *current = nullptr;
    QDateTime currentSince;
    for (const Observance &observance : m_observances) {
        const QDateTime since = observance.lastChange(time);
        if (since.isValid() && (!current || currentSince < since)) {
            current = &observance;
            currentSince = since;
        }
    }
    return current ? current->offset : m_observances.front().offsetBefore;
}

/// Moments in @p year and the next that tell zones apart: both sides of each change, and midwinter
/// and midsummer.
QList<QDateTime> TimeZoneRules::tellingTimes(int year) const
{
    QList<QDateTime> times;
    for (int month = 1; month <= 24; month += 6) {
        const QDate date = QDate(year, 1, 1).addMonths(month - 1);
        times.append(QDateTime(date, QTime(12, 0), Qt::UTC));
    }
    const QDateTime begin = times.first();
    const QDateTime end = begin.addYears(2);
    for (const Observance &observance : m_observances) {
        for (QDateTime change = observance.lastChange(end); change.isValid() && change > begin;
             change = observance.lastChange(change.addSecs(-1))) {
            times.append(change.addSecs(-hour));
            times.append(change.addSecs(hour));
        }
    }
    return times;
}

QByteArray TimeZoneRules::systemZone(int year) const
{
    if (m_observances.empty()) {
        return QByteArray();
    }
    QVector<QPair<QDateTime, int>> offsets;
    bool isFixed = true;
    for (const QDateTime &time : tellingTimes(year)) {
        offsets.append({time, offsetAt(time)});
        isFixed = isFixed && offsets.constLast().second == offsets.constFirst().second;
    }
    if (isFixed) {
        return fixedOffsetZone(offsets.constFirst().second);
    }
    const auto agrees = [&offsets](const QTimeZone &zone) {
        return std::all_of(offsets.cbegin(), offsets.cend(), [&zone](const auto &it) {
            return zone.offsetFromUtc(it.first) == it.second;
        });
    };
    const QTimeZone local = QTimeZone::systemTimeZone();
    if (local.isValid() && agrees(local)) {
        return local.id();
    }
    QByteArray found;
    for (const QTimeZone &zone : systemZones()) {
        if ((found.isEmpty() || isWellKnown(zone)) && agrees(zone)) {
            found = zone.id();
            if (isWellKnown(zone)) {
                break;
            }
        }
    }
    return found;
}
} // namespace mKCal
