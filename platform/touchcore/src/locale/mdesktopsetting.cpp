// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mdesktopsetting.h"

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
} // namespace

MDesktopSetting::MDesktopSetting(const QString &group, const QString &key, QObject *parent)
    : QObject(parent), m_group(group), m_key(key)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(QLatin1String(service), QLatin1String(path), QLatin1String(interface),
                QStringLiteral("SettingChanged"), this,
                SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read =
        QDBusMessage::createMethodCall(QLatin1String(service), QLatin1String(path),
                                       QLatin1String(interface), QStringLiteral("Read"));
    read << group << key;
    auto *call = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, &MDesktopSetting::onRead);
}

void MDesktopSetting::onSettingChanged(const QString &group, const QString &key,
                                       const QDBusVariant &value)
{
    if (group == m_group && key == m_key)
        take(value.variant());
}

void MDesktopSetting::onRead(QDBusPendingCallWatcher *call)
{
    call->deleteLater();
    const QDBusPendingReply<QDBusVariant> reply = *call;
    if (reply.isError())
        return;
    // Read() wraps the value twice, which is its documented flaw.
    QVariant value = reply.value().variant();
    if (value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    take(value);
}

void MDesktopSetting::take(const QVariant &value)
{
    if (value == m_value)
        return;
    m_value = value;
    Q_EMIT changed();
}
