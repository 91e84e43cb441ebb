// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef LOCALEENVIRONMENT_H
#define LOCALEENVIRONMENT_H

#include <QByteArray>
#include <QMap>

#include <ctime>

/// Makes \a variables the only ones that name a locale.
inline void setLocaleEnvironment(const QMap<QByteArray, QByteArray> &variables)
{
    for (const char *name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LC_TIME", "LANG"})
        qunsetenv(name);
    for (auto it = variables.cbegin(); it != variables.cend(); ++it)
        qputenv(it.key(), it.value());
}

/// For main(): a process in Helsinki that reads \a locale.
inline void startIn(const char *locale)
{
    setLocaleEnvironment({{"LANG", locale}});
    qputenv("TZ", "Europe/Helsinki");
    tzset();
}

#endif
