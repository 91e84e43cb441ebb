// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_DESKTOPPREFERENCE_H
#define TOUCHCORE_DESKTOPPREFERENCE_H

#include <QObject>

#include <touchcore/mnamespace.h>

class QDBusVariant;

/// The scheme that the person chose for the whole desktop: the setting "color-scheme" of
/// org.freedesktop.appearance, asked for at the settings portal without waiting for it.
class DesktopPreference : public QObject
{
    Q_OBJECT

public:
    explicit DesktopPreference(QObject *parent);

Q_SIGNALS:
    /// After the first answer and after each change; light where there is no portal.
    void schemePreferred(M::ColorScheme scheme);

private Q_SLOTS:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void take(const QVariant &value);
};

#endif
