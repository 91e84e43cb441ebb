// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef SYSTEMTIME_SYSTEMTIMESOURCE_H
#define SYSTEMTIME_SYSTEMTIMESOURCE_H

#include "clockwatch.h"
#include "kernelclock.h"
#include "timedatedwatch.h"
#include "zonewatch.h"

#include <systemtime/timesource.h>

#include <QDBusConnection>

#include <functional>
#include <memory>

namespace Ostra
{
namespace Timed
{
/// Joins the kernel's clock, the zone files and the time service into one source.
class SystemTimeSource : public TimeSource
{
    Q_OBJECT
public:
    /// @p bus is called from the event loop, not here: a program that ends before its loop runs
    /// never pays for the connection.
    SystemTimeSource(std::unique_ptr<KernelClock> clock, const ZoneFiles &zoneFiles,
                     const std::function<QDBusConnection()> &bus, QObject *parent = nullptr);
    ~SystemTimeSource() override;

    static std::unique_ptr<TimeSource> ofThisMachine();

private:
    void onTimezoneAnnounced(const QString &zone);
    void tellZone(const QString &zone);

    ClockWatch m_clock;
    ZoneWatch m_zoneFiles;
    std::unique_ptr<TimedatedWatch> m_service;
    QString m_toldZone;
};
} // namespace Timed
} // namespace Ostra

#endif
