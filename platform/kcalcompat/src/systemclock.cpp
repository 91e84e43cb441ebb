// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "systemclock_p.h"

#include <kcalcompat/clock.h>

#include <QTimeZone>

#include <algorithm>

namespace KCalCompat
{
namespace
{
// Often enough to see on which days clocks change, and not only whether.
constexpr int daysBetweenLooks = 12;
constexpr int looks = 2 * 366 / daysBetweenLooks;
constexpr int secondsPerHour = 3600;

/// Whether the zone is the one that stands for its neighbours where people choose a zone.
bool isWellKnown(const QByteArray &id)
{
    const QByteArray windowsName = QTimeZone::ianaIdToWindowsId(id);
    return !windowsName.isEmpty() && QTimeZone::windowsIdToDefaultIanaId(windowsName) == id;
}

/// Those are Qt's own: the C library does not know them.
bool isOffset(const QByteArray &id)
{
    return id.startsWith("UTC") && id.size() > 3;
}
} // namespace

SystemClock::SystemClock()
{
    const QDate today = Clock::now().date();
    m_noons.reserve(looks);
    for (int i = 0; i < looks; ++i) {
        // No clock is put forward or back at noon.
        const QDateTime noon(today.addDays(i * daysBetweenLooks), QTime(12, 0), Qt::LocalTime);
        m_noons.append({noon.toUTC(), noon.offsetFromUtc()});
        if (i > 0 && m_noons.at(i).offset != m_noons.at(i - 1).offset)
            lookAtChange(m_noons.at(i - 1), m_noons.at(i));
    }
}

void SystemClock::lookAtChange(const Look &before, const Look &after)
{
    qint64 earlier = before.moment.toSecsSinceEpoch();
    qint64 later = after.moment.toSecsSinceEpoch();
    while (later - earlier > secondsPerHour / 4) {
        const qint64 middle = (earlier + later) / 2;
        const int offset = QDateTime::fromSecsSinceEpoch(middle).offsetFromUtc();
        (offset == before.offset ? earlier : later) = middle;
    }
    for (const qint64 moment : {earlier - secondsPerHour, later + secondsPerHour}) {
        const QDateTime local = QDateTime::fromSecsSinceEpoch(moment);
        m_changes.append({local.toUTC(), local.offsetFromUtc()});
    }
}

int SystemClock::agreement(const QTimeZone &zone) const
{
    if (!zone.isValid())
        return 0;
    const auto agrees = [&zone](const Look &look) {
        return zone.offsetFromUtc(look.moment) == look.offset;
    };
    // The other way as well: Qt reads some rules right in the one and wrong in the other.
    const auto agreesBack = [&](const Look &look) {
        const QDateTime wall = look.moment.addSecs(look.offset);
        return agrees(look) && QDateTime(wall.date(), wall.time(), zone) == look.moment;
    };
    return static_cast<int>(std::count_if(m_noons.begin(), m_noons.end(), agreesBack)
                            + std::count_if(m_changes.begin(), m_changes.end(), agrees));
}

QByteArray SystemClock::standIn() const
{
    // What Qt misreads it misreads for months; single days it gets wrong in good zones, too.
    if (agreement(QTimeZone::systemTimeZone()) > (m_noons.size() + m_changes.size()) * 9 / 10)
        return {};
    const QByteArray fixed = fixedZone();
    return fixed.isNull() ? nearestZone() : fixed;
}

QByteArray SystemClock::fixedZone() const
{
    if (!m_changes.isEmpty())
        return {};
    const int offset = m_noons.first().offset;
    if (offset == 0)
        return QByteArrayLiteral("UTC");
    // Both forms count west of Greenwich.
    const char sign = offset > 0 ? '-' : '+';
    if (offset % secondsPerHour == 0)
        return "Etc/GMT" + (sign + QByteArray::number(qAbs(offset / secondsPerHour)));
    const QTime size = QTime(0, 0).addSecs(qAbs(offset));
    return "LOC" + (sign + size.toString(QStringLiteral("hh:mm")).toLatin1());
}

QByteArray SystemClock::nearestZone() const
{
    QByteArray nearest;
    int most = 0;
    const QByteArrayList ids = QTimeZone::availableTimeZoneIds();
    for (const QByteArray &id : ids) {
        const int agreeing = isOffset(id) ? 0 : 2 * agreement(QTimeZone(id));
        const int rank = agreeing > 0 && isWellKnown(id) ? agreeing + 1 : agreeing;
        if (rank > most) {
            most = rank;
            nearest = id;
        }
    }
    return nearest;
}
} // namespace KCalCompat
