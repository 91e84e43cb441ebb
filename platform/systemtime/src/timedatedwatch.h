// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef SYSTEMTIME_TIMEDATEDWATCH_H
#define SYSTEMTIME_TIMEDATEDWATCH_H

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace Ostra
{
namespace Timed
{
/// Listens to the time service `org.freedesktop.timedate1`. Silent on a machine without a bus or
/// without the service; follows the service when it starts later or again.
class TimedatedWatch : public QObject
{
    Q_OBJECT
public:
    explicit TimedatedWatch(const QDBusConnection &bus, QObject *parent = nullptr);

Q_SIGNALS:
    /// The service says that its property "Timezone" changed. @p zone: its new value, such as
    /// "Europe/Helsinki"; empty when it does not say the value.
    void timezoneAnnounced(const QString &zone);

private Q_SLOTS:
    void onPropertiesChanged(const QString &interfaceName, const QVariantMap &changed,
                             const QStringList &invalidated);

private:
    QDBusConnection m_bus;
};
} // namespace Timed
} // namespace Ostra

#endif
