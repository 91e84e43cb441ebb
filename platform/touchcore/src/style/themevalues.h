// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_THEMEVALUES_H
#define TOUCHCORE_THEMEVALUES_H

#include "themefile.h"

#include <QColor>
#include <QFont>
#include <QVariant>

/// Turns what a theme file says into typed values: colours by role, fonts by name, measures, and
/// the values of attributes.
class ThemeValues
{
public:
    const ThemeRules *rules = nullptr;
    bool isDark = false;
    qreal textScale = 1;

    /// \a text: a role of the palette, "role/percent" for a translucent one, or what QColor reads.
    QColor color(const QString &text) const;
    /// \a text: a name of the fonts, or words such as "16px", "bold", "italic", "'Family'". A font
    /// without a size is invalid: pixelSize() is -1 then.
    QFont font(const QString &text) const;
    /// \a value for an attribute of the meta-type \a type; an invalid variant when it does not fit.
    QVariant convert(const QJsonValue &value, int type) const;

private:
    QVariant convertText(const QString &text, int type) const;
};

#endif
