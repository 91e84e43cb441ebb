// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MLOCALENAME_H
#define MLOCALENAME_H

#include <QStringList>

/// The names of locales, as the environment writes them and as ICU does.
namespace MLocaleName
{
/// The name in the environment for dates and times; empty when there is none.
QString ofFormats();

/// The languages in the environment for texts, the preferred first, in ICU's names; none when the
/// environment wants no translation.
QStringList ofTexts();

/// ICU's name for \a name, which may be a POSIX name ("sr_RS.UTF-8@latin") or a BCP 47 tag
/// ("sr-Latn-RS"); British English for no language at all ("", "C", "POSIX").
QString toIcu(const QString &name);
} // namespace MLocaleName

#endif
