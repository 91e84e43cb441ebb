// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "timedatedwatch.h"

#include "logging.h"

#include <QDBusError>

namespace Ostra
{
namespace Timed
{
namespace
{
/// The service and its interface have one name.
QString timedate1()
{
    return QStringLiteral("org.freedesktop.timedate1");
}
} // namespace

TimedatedWatch::TimedatedWatch(const QDBusConnection &bus, QObject *parent)
    : QObject(parent), m_bus(bus)
{
    if (!m_bus.isConnected())
        return;
    const bool listening = m_bus.connect(
        timedate1(), QStringLiteral("/org/freedesktop/timedate1"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"),
        this, SLOT(onPropertiesChanged(QString, QVariantMap, QStringList)));
    if (!listening)
        qCWarning(lcSystemTime) << "The time service cannot be heard:" << m_bus.lastError();
}

void TimedatedWatch::onPropertiesChanged(const QString &interfaceName, const QVariantMap &changed,
                                         const QStringList &invalidated)
{
    const QString timezone = QStringLiteral("Timezone");
    if (interfaceName != timedate1())
        return;
    if (changed.contains(timezone) || invalidated.contains(timezone))
        Q_EMIT timezoneAnnounced(changed.value(timezone).toString());
}
} // namespace Timed
} // namespace Ostra
