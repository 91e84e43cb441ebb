// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testenvironment.h"

#include <kcalcompat/clock.h>
#include <kcalcompat/ksystemtimezones.h>

using Ostra::Timed::TimeSource;

TestEnvironment::TestEnvironment(const QDate &today, const QByteArray &zone)
    : m_zoneBefore(qgetenv("TZ"))
{
    QLocale::setDefault(QLocale::c());
    setZone(zone);
    setToday(today);
    TimeSource::setFactory([this] {
        auto source = std::make_unique<TimeSource>();
        m_source = source.get();
        return source;
    });
}

TestEnvironment::~TestEnvironment()
{
    TimeSource::setFactory({});
    KCalCompat::Clock::setSource({});
    setZone(m_zoneBefore);
    QLocale::setDefault(m_localeBefore);
}

void TestEnvironment::setToday(const QDate &today)
{
    QDateTime noon = QDateTime(today, QTime(12, 0), KSystemTimeZones::local()).toUTC();
    KCalCompat::Clock::setSource([noon] { return noon; });
}

void TestEnvironment::setZone(const QByteArray &zone)
{
    if (zone.isEmpty())
        qunsetenv("TZ");
    else
        qputenv("TZ", zone);
    KSystemTimeZones().configChanged();
}

void TestEnvironment::jumpClock(qint64 seconds)
{
    Q_EMIT m_source->clockJumped(seconds);
}

void TestEnvironment::changeZone(const QByteArray &zone)
{
    setZone(zone);
    Q_EMIT m_source->zoneChanged();
}
