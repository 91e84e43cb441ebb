// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mlocalename.h"

#include <QHash>

#include <unicode/locid.h>

namespace
{
/// The first of \a variables that is set. As in the C library, an empty one is not.
QString firstSet(std::initializer_list<const char *> variables)
{
    for (const char *variable : variables) {
        QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty())
            return value;
    }
    return {};
}

bool namesNoLanguage(const QString &name)
{
    const QString language = name.section(QLatin1Char('.'), 0, 0);
    return language.isEmpty() || language == QLatin1String("C")
        || language == QLatin1String("POSIX");
}

/// Writes the modifier that names a script the way ICU does, and leaves out one that does not
/// matter, such as "@euro"; ICU's own keywords ("@calendar=gregorian") stay.
QString withoutModifier(const QString &name)
{
    static const QHash<QString, QString> scripts{
        {QStringLiteral("latin"), QStringLiteral("Latn")},
        {QStringLiteral("iqtelif"), QStringLiteral("Latn")},
        {QStringLiteral("cyrillic"), QStringLiteral("Cyrl")},
        {QStringLiteral("devanagari"), QStringLiteral("Deva")},
    };
    const QString modifier = name.section(QLatin1Char('@'), 1);
    if (modifier.isEmpty() || modifier.contains(QLatin1Char('='))
        || modifier == QLatin1String("valencia"))
        return name;
    QString plain = name.section(QLatin1Char('@'), 0, 0).section(QLatin1Char('.'), 0, 0);
    const QString script = scripts.value(modifier);
    if (!script.isEmpty()) {
        const int language = plain.indexOf(QLatin1Char('_'));
        plain.insert(language < 0 ? plain.size() : language, QLatin1Char('_') + script);
    }
    return plain;
}
} // namespace

QString MLocaleName::ofFormats()
{
    return firstSet({"LC_ALL", "LC_TIME", "LANG"});
}

QStringList MLocaleName::ofTexts()
{
    const QString name = firstSet({"LC_ALL", "LC_MESSAGES", "LANG"});
    // Who asks for "C" wants no translation, whatever LANGUAGE says; gettext has it so.
    if (namesNoLanguage(name))
        return {};
    QStringList languages;
    const QStringList preferred =
        qEnvironmentVariable("LANGUAGE").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    for (const QString &language : preferred) {
        if (!namesNoLanguage(language))
            languages << toIcu(language);
    }
    languages << toIcu(name);
    languages.removeDuplicates();
    return languages;
}

QString MLocaleName::toIcu(const QString &name)
{
    if (namesNoLanguage(name))
        return QStringLiteral("en_GB");
    const QByteArray plain = withoutModifier(name).toLatin1();
    return QString::fromLatin1(icu::Locale::createCanonical(plain.constData()).getName());
}
