// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "themefile.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace
{
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
            readStrings(name, table, &m_rules.palette);
        else if (name == QLatin1String("darkPalette"))
            readStrings(name, table, &m_rules.darkPalette);
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

    void readMeasures(const QJsonObject &table)
    {
        for (auto entry = table.begin(); entry != table.end(); ++entry) {
            if (entry->isDouble())
                m_rules.measures.insert(entry.key(), entry->toInt());
            else
                warn(QStringLiteral("measures.%1 must be a number").arg(entry.key()));
        }
    }

    void readRules(const QString &name, const QJsonObject &table, ThemeRules::Layers *into)
    {
        for (auto rule = table.begin(); rule != table.end(); ++rule) {
            if (!rule->isObject()) {
                warn(QStringLiteral("%1.%2 must be an object").arg(name, rule.key()));
                continue;
            }
            const QJsonObject block = rule->toObject();
            m_rules.dependOnOrientation = m_rules.dependOnOrientation
                || block.contains(QLatin1String("landscape"))
                || block.contains(QLatin1String("portrait"));
            (*into)[rule.key()].append({m_source, block});
        }
    }

    void warn(const QString &text) { m_warnings.append(m_source + QLatin1String(": ") + text); }

    QString m_source;
    ThemeRules &m_rules;
    QStringList &m_warnings;
};
} // namespace

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
