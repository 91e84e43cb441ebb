// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "ksystemtimezones_p.h"
#include "systemclock_p.h"

#include <kcalcompat/ksystemtimezones.h>

#include <QDateTime>
#include <QHash>

#include <ctime>
#include <mutex>
#include <optional>

namespace
{
struct KeptZones {
    std::mutex mutex;
    QHash<QByteArray, QTimeZone> named;
    std::optional<QTimeZone> system;
    QByteArray setting; ///< what stood in TZ before the stand-in; null for nothing
    QByteArray standIn; ///< what was put there; null while that was not needed
};

KeptZones &keptZones()
{
    static KeptZones zones;
    return zones;
}

void setTz(const QByteArray &setting)
{
    if (setting.isNull())
        qunsetenv("TZ");
    else
        qputenv("TZ", setting);
    tzset();
}
} // namespace

QTimeZone KCalCompat::systemZone()
{
    KeptZones &kept = keptZones();
    const std::lock_guard<std::mutex> lock(kept.mutex);
    if (!kept.system)
        kept.system = QTimeZone::systemTimeZone();
    return *kept.system;
}

QTimeZone KSystemTimeZones::local()
{
    const QTimeZone zone = KCalCompat::systemZone();
    if (zone.isValid())
        return zone;
    return QTimeZone(QDateTime::currentDateTime().offsetFromUtc());
}

QTimeZone KSystemTimeZones::zone(const QByteArray &id)
{
    // QTimeZone takes the empty name for the system's zone.
    if (id.isEmpty())
        return {};
    KeptZones &kept = keptZones();
    const std::lock_guard<std::mutex> lock(kept.mutex);
    const auto known = kept.named.constFind(id);
    if (known != kept.named.constEnd())
        return *known;
    const QTimeZone zone(id);
    // Unknown names are not kept: a broken calendar file can hold any number of them.
    if (zone.isValid())
        kept.named.insert(id, zone);
    return zone;
}

QTimeZone KSystemTimeZones::utc()
{
    static const QTimeZone zone = QTimeZone::utc();
    return zone;
}

void KSystemTimeZones::configChanged()
{
    KeptZones &kept = keptZones();
    const std::lock_guard<std::mutex> lock(kept.mutex);
    // Whoever has set TZ since is right.
    if (!kept.standIn.isNull() && qgetenv("TZ") == kept.standIn)
        setTz(kept.setting);
    else
        tzset();
    kept.setting = qEnvironmentVariableIsSet("TZ") ? qgetenv("TZ") : QByteArray();
    kept.standIn = KCalCompat::SystemClock().standIn();
    if (!kept.standIn.isNull())
        setTz(kept.standIn);
    kept.system.reset();
}

void KSystemTimeZones::cleanup()
{
    KeptZones &kept = keptZones();
    const std::lock_guard<std::mutex> lock(kept.mutex);
    kept.named.clear();
    kept.system.reset();
}
