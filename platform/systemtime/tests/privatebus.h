// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef PRIVATEBUS_H
#define PRIVATEBUS_H

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QStringList>
#include <QTest>
#include <QVariantMap>

/// A message bus of the test's own; it ends with the object.
class PrivateBus
{
public:
    PrivateBus()
    {
        m_daemon.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address"});
        if (m_daemon.waitForReadyRead())
            m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    }
    ~PrivateBus() { stop(); }
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    QString address() const { return m_address; }
    /// A connection of its own to the bus for each @p name.
    QDBusConnection connection(const QString &name) const
    {
        return QDBusConnection::connectToBus(m_address, name);
    }
    void stop()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

private:
    QProcess m_daemon;
    QString m_address;
};

/// The time service as far as its listeners see it.
class FakeTimedate
{
public:
    explicit FakeTimedate(const PrivateBus &bus) : m_bus(bus.connection("timedate1")) { }
    ~FakeTimedate() { QDBusConnection::disconnectFromBus("timedate1"); }
    FakeTimedate(const FakeTimedate &) = delete;
    FakeTimedate &operator=(const FakeTimedate &) = delete;

    bool start() { return m_bus.registerService(name()); }
    bool stop() { return m_bus.unregisterService(name()); }

    void announce(const QVariantMap &changed, const QStringList &invalidated = {},
                  const QString &interfaceName = name())
    {
        QDBusMessage message = QDBusMessage::createSignal(
            "/org/freedesktop/timedate1", "org.freedesktop.DBus.Properties", "PropertiesChanged");
        message << interfaceName << changed << invalidated;
        m_bus.send(message);
    }
    void announceZone(const QString &zone) { announce({{"Timezone", zone}}); }

private:
    static QString name() { return "org.freedesktop.timedate1"; }

    QDBusConnection m_bus;
};

#endif
