// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MLOCALE_P_H
#define TOUCHCORE_MLOCALE_P_H

#include "mlocaleformats.h"

#include <touchcore/mlocale.h>

#include <QStringList>

#include <memory>

class MLocalePrivate
{
public:
    /// Formats and texts of \a localeName, or of the environment when it is empty.
    explicit MLocalePrivate(const QString &localeName);
    /// The settings and catalogues of \a other.
    MLocalePrivate(const MLocalePrivate &other);
    MLocalePrivate &operator=(const MLocalePrivate &) = delete;

    /// Takes over the settings and catalogues of \a other. The desktop's setting stays what is
    /// known here, if it is followed here. True when the settings differ afterwards.
    bool assign(const MLocalePrivate &other);

    MLocale::TimeFormat24h clock() const;
    /// Made when they are first needed.
    const MLocaleFormats &formats() const;
    /// To be called when what they depend on has changed.
    void forgetFormats() { m_formats.reset(); }

    QString name;
    QStringList languages;
    QStringList catalogues;
    MLocale::TimeFormat24h chosenClock = MLocale::LocaleDefaultTimeFormat24h;
    MLocale::TimeFormat24h desktopClock = MLocale::LocaleDefaultTimeFormat24h;
    bool followsDesktop = false;

private:
    mutable std::unique_ptr<MLocaleFormats> m_formats;
};

#endif
