// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "stylefiller.h"

#include <QMetaProperty>

#include <touchcore/mstyle.h>

namespace
{
const int maximumDepth = 16;
} // namespace

StyleFiller::StyleFiller(const ThemeValues &values, M::Orientation orientation,
                         const QByteArray &mode, const std::function<void(const QString &)> &report)
    : m_values(values), m_orientation(orientation == M::Landscape ? QStringLiteral("landscape")
                                                                  : QStringLiteral("portrait")),
      m_mode(QString::fromLatin1(mode)), m_report(report)
{
}

void StyleFiller::applyClasses(const QMetaObject *widgetClass, MStyle *style) const
{
    if (const QMetaObject *base = widgetClass->superClass())
        applyClasses(base, style);
    const QString name = QString::fromLatin1(widgetClass->className());
    applyRules(name, m_values.rules->classes.value(name), style);
}

void StyleFiller::applyNamed(const QString &name, MStyle *style) const
{
    applyNamed(name, style, 0);
}

void StyleFiller::applyNamed(const QString &name, MStyle *style, int depth) const
{
    const QVector<ThemeRule> rules = m_values.rules->styles.value(name);
    if (rules.isEmpty()) {
        m_report(QStringLiteral("no theme has the style \"%1\"").arg(name));
        return;
    }
    QString base;
    for (const ThemeRule &rule : rules)
        base = rule.block.value(QLatin1String("extends")).toString(base);
    if (depth == maximumDepth)
        m_report(QStringLiteral("%1: the style \"%2\" extends itself").arg(rules[0].source, name));
    else if (!base.isEmpty())
        applyNamed(base, style, depth + 1);
    applyRules(name, rules, style);
}

void StyleFiller::applyRules(const QString &name, const QVector<ThemeRule> &rules,
                             MStyle *style) const
{
    for (const ThemeRule &rule : rules) {
        const QString place = QStringLiteral("%1: %2").arg(rule.source, name);
        applyBlock(place, rule.block, style);
        applyBlock(place, rule.block.value(m_orientation).toObject(), style);
        if (!m_mode.isEmpty())
            applyBlock(place, rule.block.value(m_mode).toObject(), style);
    }
}

void StyleFiller::applyBlock(const QString &place, const QJsonObject &block, MStyle *style) const
{
    for (auto attribute = block.begin(); attribute != block.end(); ++attribute) {
        if (attribute.key() != QLatin1String("extends") && !isStyleBlock(attribute.key()))
            applyAttribute(place, attribute.key(), *attribute, style);
    }
}

void StyleFiller::applyAttribute(const QString &place, const QString &name, const QJsonValue &value,
                                 MStyle *style) const
{
    const QMetaObject *meta = style->metaObject();
    const int index = meta->indexOfProperty(name.toLatin1());
    if (index < 0) {
        m_report(QStringLiteral("%1: %2 has no attribute \"%3\"")
                     .arg(place, QString::fromLatin1(meta->className()), name));
        return;
    }
    const QMetaProperty attribute = meta->property(index);
    const QVariant converted = m_values.convert(value, attribute.userType());
    if (!converted.isValid() || !attribute.write(style, converted)) {
        m_report(QStringLiteral("%1.%2: not a value for %3")
                     .arg(place, name, QString::fromLatin1(attribute.typeName())));
    }
}
