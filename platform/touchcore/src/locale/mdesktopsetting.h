// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MDESKTOPSETTING_H
#define MDESKTOPSETTING_H

#include <QObject>
#include <QVariant>

class QDBusPendingCallWatcher;
class QDBusVariant;

/// One setting of the desktop, by org.freedesktop.portal.Settings on the session's bus.
///
/// It is asked for without waiting, as the service may have to be started first: the value comes
/// from the event loop. Without bus or service it stays invalid, silently.
class MDesktopSetting : public QObject
{
    Q_OBJECT
public:
    MDesktopSetting(const QString &group, const QString &key, QObject *parent);

    QVariant value() const { return m_value; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void onRead(QDBusPendingCallWatcher *call);
    void take(const QVariant &value);

    const QString m_group;
    const QString m_key;
    QVariant m_value;
};

#endif
