// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "desktoppreference.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace
{
const char service[] = "org.freedesktop.portal.Desktop";
const char path[] = "/org/freedesktop/portal/desktop";
const char interface[] = "org.freedesktop.portal.Settings";
const char group[] = "org.freedesktop.appearance";
const char key[] = "color-scheme";
/// The values of the setting: 0 no preference, 1 dark, 2 light.
const uint preferDark = 1;
} // namespace

DesktopPreference::DesktopPreference(QObject *parent) : QObject(parent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        QMetaObject::invokeMethod(
            this, [this] { Q_EMIT schemePreferred(M::LightScheme); }, Qt::QueuedConnection);
        return;
    }
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    question << QLatin1String(group) << QLatin1String(key);
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        watcher->deleteLater();
        take(reply.isError() ? QVariant() : reply.value().variant());
    });
}

void DesktopPreference::settingChanged(const QString &changedGroup, const QString &changedKey,
                                       const QDBusVariant &value)
{
    if (changedGroup == QLatin1String(group) && changedKey == QLatin1String(key))
        take(value.variant());
}

void DesktopPreference::take(const QVariant &value)
{
    // The portal wraps the answer of Read in a second variant.
    const QVariant inner =
        value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
    Q_EMIT schemePreferred(inner.toUInt() == preferDark ? M::DarkScheme : M::LightScheme);
}
