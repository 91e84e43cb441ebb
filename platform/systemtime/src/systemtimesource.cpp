// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "systemtimesource.h"

#include <QTimer>

#include <utility>

namespace Ostra
{
namespace Timed
{
SystemTimeSource::SystemTimeSource(std::unique_ptr<KernelClock> clock, const ZoneFiles &zoneFiles,
                                   const std::function<QDBusConnection()> &bus, QObject *parent)
    : TimeSource(parent), m_clock(std::move(clock)), m_zoneFiles(zoneFiles),
      m_toldZone(m_zoneFiles.zoneName())
{
    connect(&m_clock, &ClockWatch::jumped, this, &TimeSource::clockJumped);
    connect(&m_clock, &ClockWatch::resumed, this, &TimeSource::resumed);
    connect(&m_zoneFiles, &ZoneWatch::changed, this, [this] { tellZone(m_zoneFiles.zoneName()); });
    QTimer::singleShot(0, this, [this, bus] {
        m_service = std::make_unique<TimedatedWatch>(bus());
        connect(m_service.get(), &TimedatedWatch::timezoneAnnounced, this,
                &SystemTimeSource::onTimezoneAnnounced);
    });
}

SystemTimeSource::~SystemTimeSource() = default;

std::unique_ptr<TimeSource> SystemTimeSource::ofThisMachine()
{
    return std::make_unique<SystemTimeSource>(std::make_unique<KernelClock>(), ZoneFiles(),
                                              &QDBusConnection::systemBus);
}

void SystemTimeSource::onTimezoneAnnounced(const QString &zone)
{
    // The service replaces the zone file, then speaks: mostly the file has told everything, or is
    // about to. Only a zone that the files do not show (they may be hidden from a confined
    // program) is news.
    m_zoneFiles.check();
    if (!zone.isEmpty() && zone != m_toldZone)
        tellZone(zone);
}

void SystemTimeSource::tellZone(const QString &zone)
{
    m_toldZone = zone;
    Q_EMIT zoneChanged();
}
} // namespace Timed
} // namespace Ostra
