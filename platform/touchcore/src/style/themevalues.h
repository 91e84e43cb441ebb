// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_THEMEVALUES_H
#define TOUCHCORE_THEMEVALUES_H

#include "themefile.h"

#include <QColor>
#include <QFont>
#include <QVariant>

#include <optional>

/// Turns what a theme file says into typed values: colours by role, fonts by name, measures, and
/// the values of attributes.
class ThemeValues
{
public:
    const ThemeRules *rules = nullptr;
    bool isDark = false;
    qreal textScale = 1;

    /// \a role: one of the palette, or "role/percent" for a translucent one; invalid for others.
    QColor color(const QString &role) const;
    /// The font \a name of the theme; nothing when there is none or it says no size.
    std::optional<QFont> font(const QString &name) const;
    /// \a value for an attribute of the meta-type \a type; an invalid variant when it does not fit.
    QVariant convert(const QJsonValue &value, int type) const;

private:
    QVariant convertText(const QString &text, int type) const;
    QVariant convertSize(const QJsonArray &sides, int type) const;
    /// A number, or "@" and the name of a measure.
    std::optional<double> number(const QJsonValue &value) const;
    /// \a words such as "16px", "bold", "italic", "'Family'".
    std::optional<QFont> fontOf(const QString &words) const;
};

#endif
