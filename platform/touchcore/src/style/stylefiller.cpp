// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "stylefiller.h"

#include <touchcore/mstyle.h>

#include <QMetaProperty>

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
    applyRulesOf(QString::fromLatin1(widgetClass->className()), style);
}

void StyleFiller::applyRulesOf(const QString &className, MStyle *style) const
{
    applyRules(className, m_values.rules->classes.value(className), style);
}

void StyleFiller::applyNamed(const QString &name, MStyle *style) const
{
    if (m_values.rules->styles.contains(name))
        applyChain({name}, style);
    else
        m_report(QStringLiteral("no theme has the style \"%1\"").arg(name));
}

void StyleFiller::applyChain(const QStringList &chain, MStyle *style) const
{
    const QString &name = chain.last();
    const QVector<ThemeRule> rules = m_values.rules->styles.value(name);
    QString base;
    for (const ThemeRule &rule : rules)
        base = rule.block.value(QLatin1String("extends")).toString(base);
    if (chain.contains(base))
        m_report(QStringLiteral("%1: the style \"%2\" extends itself").arg(rules[0].source, base));
    else if (m_values.rules->styles.contains(base))
        applyChain(chain + QStringList{base}, style);
    else if (!base.isEmpty())
        m_report(QStringLiteral("%1: %2 extends \"%3\", which no theme has")
                     .arg(rules[0].source, name, base));
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
    if (index < MStyle::staticMetaObject.propertyCount()) {
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
