// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "themefile.h"

#include <QColor>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace
{
/// What a widget may be in; each view says in which of them it is.
const QStringList &modes()
{
    static const QStringList names{
        QStringLiteral("pressed"),  QStringLiteral("selected"), QStringLiteral("checked"),
        QStringLiteral("disabled"), QStringLiteral("error"),    QStringLiteral("current"),
        QStringLiteral("floating"),
    };
    return names;
}

/// Reads the sections of one file one by one.
class ThemeReader
{
public:
    ThemeReader(const QString &source, ThemeRules *rules, QStringList *warnings)
        : m_source(source), m_rules(*rules), m_warnings(*warnings)
    {
    }

    void read(const QJsonObject &theme, QStringList *includes)
    {
        for (auto section = theme.begin(); section != theme.end(); ++section) {
            const QString name = section.key();
            if (name == QLatin1String("include"))
                *includes += strings(name, *section);
            else if (name == QLatin1String("fontFamilies"))
                m_rules.fontFamilies = strings(name, *section);
            else if (name == QLatin1String("mirrored"))
                addMirrored(strings(name, *section));
            else if (!section->isObject())
                warn(QStringLiteral("\"%1\" must be an object").arg(name));
            else
                readTable(name, section->toObject());
        }
    }

private:
    void readTable(const QString &name, const QJsonObject &table)
    {
        if (name == QLatin1String("palette"))
            readPalette(name, table, &m_rules.palette);
        else if (name == QLatin1String("darkPalette"))
            readPalette(name, table, &m_rules.darkPalette);
        else if (name == QLatin1String("fonts"))
            readStrings(name, table, &m_rules.fonts);
        else if (name == QLatin1String("views"))
            readStrings(name, table, &m_rules.views);
        else if (name == QLatin1String("measures"))
            readMeasures(table);
        else if (name == QLatin1String("classes"))
            readRules(name, table, &m_rules.classes);
        else if (name == QLatin1String("styles"))
            readRules(name, table, &m_rules.styles);
        else
            warn(QStringLiteral("there is no section \"%1\"").arg(name));
    }

    void addMirrored(const QStringList &images)
    {
        for (const QString &image : images)
            m_rules.mirroredImages.insert(image);
    }

    QStringList strings(const QString &name, const QJsonValue &value)
    {
        QStringList texts;
        if (!value.isArray())
            warn(QStringLiteral("\"%1\" must be a list of texts").arg(name));
        const QJsonArray list = value.toArray();
        for (const QJsonValue &text : list)
            texts.append(text.toString());
        return texts;
    }

    void readStrings(const QString &name, const QJsonObject &table, QHash<QString, QString> *into)
    {
        for (auto entry = table.begin(); entry != table.end(); ++entry) {
            if (entry->isString())
                into->insert(entry.key(), entry->toString());
            else
                warn(QStringLiteral("%1.%2 must be a text").arg(name, entry.key()));
        }
    }

    void readPalette(const QString &name, const QJsonObject &table, QHash<QString, QString> *into)
    {
        for (auto entry = table.begin(); entry != table.end(); ++entry) {
            if (QColor::isValidColor(entry->toString()))
                into->insert(entry.key(), entry->toString());
            else
                warn(QStringLiteral("%1.%2 must be a colour").arg(name, entry.key()));
        }
    }

    void readMeasures(const QJsonObject &table)
    {
        for (auto entry = table.begin(); entry != table.end(); ++entry) {
            if (entry->toDouble() == entry->toInt(-1))
                m_rules.measures.insert(entry.key(), entry->toInt());
            else
                warn(QStringLiteral("measures.%1 must be a whole number").arg(entry.key()));
        }
    }

    void readRules(const QString &name, const QJsonObject &table, ThemeRules::Layers *into)
    {
        for (auto rule = table.begin(); rule != table.end(); ++rule) {
            if (!rule->isObject()) {
                warn(QStringLiteral("%1.%2 must be an object").arg(name, rule.key()));
                continue;
            }
            checkBlocks(rule.key(), rule->toObject());
            (*into)[rule.key()].append({m_source, rule->toObject()});
        }
    }

    void checkBlocks(const QString &rule, const QJsonObject &attributes)
    {
        for (auto block = attributes.begin(); block != attributes.end(); ++block) {
            if (!isStyleBlock(block.key()))
                continue;
            if (!block->isObject())
                warn(QStringLiteral("%1.%2 must be an object").arg(rule, block.key()));
            const QStringList inner = block->toObject().keys();
            if (std::any_of(inner.begin(), inner.end(), isStyleBlock))
                warn(QStringLiteral("%1.%2 cannot hold another block").arg(rule, block.key()));
            if (isOrientationBlock(block.key()))
                m_rules.dependOnOrientation = true;
        }
    }

    void warn(const QString &text) { m_warnings.append(m_source + QLatin1String(": ") + text); }

    QString m_source;
    ThemeRules &m_rules;
    QStringList &m_warnings;
};
} // namespace

bool isOrientationBlock(const QString &name)
{
    return name == QLatin1String("landscape") || name == QLatin1String("portrait");
}

bool isStyleBlock(const QString &name)
{
    return isOrientationBlock(name) || modes().contains(name);
}

bool readTheme(const QByteArray &json, const QString &source, ThemeRules *rules,
               QStringList *includes, QStringList *warnings)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        const int line = json.left(error.offset).count('\n') + 1;
        warnings->append(
            QStringLiteral("%1:%2: %3").arg(source).arg(line).arg(error.errorString()));
        return false;
    }
    if (!document.isObject()) {
        warnings->append(QStringLiteral("%1: a theme is a JSON object").arg(source));
        return false;
    }
    ThemeReader(source, rules, warnings).read(document.object(), includes);
    return true;
}
