// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef FAKEPORTAL_H
#define FAKEPORTAL_H

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

/// The desktop's settings as far as one of them goes.
class FakePortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    FakePortal(const QString &group, const QString &key) : m_group(group), m_key(key) { }

    bool start(QDBusConnection bus, const QVariant &value)
    {
        m_value = value;
        return bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                                  QDBusConnection::ExportAllSlots
                                      | QDBusConnection::ExportAllSignals)
            && bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    void choose(const QVariant &value)
    {
        m_value = value;
        Q_EMIT SettingChanged(m_group, m_key, QDBusVariant(value));
    }

public Q_SLOTS:
    QDBusVariant Read(const QString &group, const QString &key) const // NOLINT: the portal's name
    {
        const bool isKnown = group == m_group && key == m_key;
        return QDBusVariant(QVariant::fromValue(QDBusVariant(isKnown ? m_value : QString())));
    }

Q_SIGNALS:
    void SettingChanged(const QString &group, const QString &key, // NOLINT: the portal's name
                        const QDBusVariant &value);

private:
    const QString m_group;
    const QString m_key;
    QVariant m_value;
};

#endif
