// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_STYLEFILLER_H
#define TOUCHCORE_STYLEFILLER_H

#include "themevalues.h"

#include <touchcore/mnamespace.h>

#include <functional>

class MStyle;
struct QMetaObject;

/// Fills one style with the rules that apply to one widget.
class StyleFiller
{
public:
    /// \a report is told what is wrong, with file, rule and attribute.
    StyleFiller(const ThemeValues &values, M::Orientation orientation, const QByteArray &mode,
                const std::function<void(const QString &)> &report);

    /// The rules of the widget's classes, base first.
    void applyClasses(const QMetaObject *widgetClass, MStyle *style) const;
    /// The rules of one class alone.
    void applyRulesOf(const QString &className, MStyle *style) const;
    /// The rules of a style name, after those that it extends.
    void applyNamed(const QString &name, MStyle *style) const;

private:
    /// The last style of \a chain, after what it extends; those before it are its heirs.
    void applyChain(const QStringList &chain, MStyle *style) const;
    void applyRules(const QString &name, const QVector<ThemeRule> &rules, MStyle *style) const;
    void applyBlock(const QString &place, const QJsonObject &block, MStyle *style) const;
    void applyAttribute(const QString &place, const QString &name, const QJsonValue &value,
                        MStyle *style) const;

    const ThemeValues &m_values;
    QString m_orientation;
    QString m_mode;
    std::function<void(const QString &)> m_report;
};

#endif
