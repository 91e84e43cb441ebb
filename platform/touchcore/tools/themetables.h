// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef THEMETABLES_H
#define THEMETABLES_H

#include <QString>

/// Tables of what the theme in \a folder names: colours, measures, fonts, pictures, styles. In
/// Markdown.
QString themeTables(const QString &folder);

#endif
