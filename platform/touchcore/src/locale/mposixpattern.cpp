// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mposixpattern.h"

#include "mlocaleformats.h"

#include <QVector>

#include <algorithm>
#include <iterator>

namespace
{
struct Conversion {
    char letter;
    const char *pattern;
    const char *unpadded = nullptr; ///< with the flag "-", where that matters
};

constexpr Conversion conversions[] = {
    {'a', "EEE"},      {'A', "EEEE"},     {'b', "MMM"},        {'B', "MMMM"},     {'d', "dd", "d"},
    {'D', "MM/dd/yy"}, {'e', "d"},        {'F', "yyyy-MM-dd"}, {'g', "YY"},       {'G', "Y"},
    {'h', "MMM"},      {'H', "HH", "H"},  {'I', "hh", "h"},    {'j', "DDD", "D"}, {'k', "H"},
    {'l', "h"},        {'m', "MM", "M"},  {'M', "mm", "m"},    {'p', "a"},        {'R', "HH:mm"},
    {'S', "ss", "s"},  {'T', "HH:mm:ss"}, {'V', "ww", "w"},    {'y', "yy"},       {'Y', "y"},
    {'z', "Z"},        {'Z', "z"},
};

QString patternOf(QChar letter, bool padded)
{
    const auto *found =
        std::find_if(std::begin(conversions), std::end(conversions),
                     [&](const Conversion &conversion) { return letter == conversion.letter; });
    if (found == std::end(conversions))
        return {};
    return QLatin1String(padded || found->unpadded == nullptr ? found->pattern : found->unpadded);
}

/// What the conversions stand for that every locale writes in its own way.
QString localePatternOf(QChar letter, const MLocaleFormats &formats, MLocale::CalendarType type)
{
    switch (letter.unicode()) {
    case 'c':
        return formats.pattern(MLocale::DateMedium, MLocale::TimeMedium, type);
    case 'x':
        return formats.pattern(MLocale::DateShort, MLocale::TimeNone, type);
    case 'X':
        return formats.pattern(MLocale::DateNone, MLocale::TimeMedium, type);
    case 'r':
        return formats.timePattern(MLocale::TimeMedium, MLocale::TwelveHourTimeFormat24h);
    default:
        return {};
    }
}

QString textOf(QChar letter)
{
    switch (letter.unicode()) {
    case '%':
        return QStringLiteral("%");
    case 'n':
        return QStringLiteral("\n");
    case 't':
        return QStringLiteral("\t");
    default:
        return {};
    }
}

/// Parts of a pattern in their order: fields, and texts in between.
class Parts
{
public:
    void addText(const QString &text)
    {
        if (m_parts.isEmpty() || m_parts.last().isField)
            m_parts.append({QString(), false});
        m_parts.last().text += text;
    }
    void addField(const QString &pattern) { m_parts.append({pattern, true}); }

    /// Languages such as Finnish inflect a month beside its day and a weekday within a date.
    QString pattern() const
    {
        QString result;
        for (const Part &part : m_parts)
            result += part.isField ? standAlone(part.text) : quoted(part.text);
        return result;
    }

private:
    struct Part {
        QString text;
        bool isField;
    };

    QString standAlone(QString field) const
    {
        const bool hasDay = std::any_of(m_parts.begin(), m_parts.end(), [](const Part &part) {
            return part.isField && part.text.contains(QLatin1Char('d'));
        });
        const auto fields = std::count_if(m_parts.begin(), m_parts.end(),
                                          [](const Part &part) { return part.isField; });
        if (field.startsWith(QLatin1String("MMM")) && !hasDay)
            field.replace(QLatin1Char('M'), QLatin1Char('L'));
        else if (field.startsWith(QLatin1String("EEE")) && fields == 1)
            field.replace(QLatin1Char('E'), QLatin1Char('c'));
        return field;
    }
    static QString quoted(QString text)
    {
        text.replace(QLatin1Char('\''), QLatin1String("''"));
        return QLatin1Char('\'') + text + QLatin1Char('\'');
    }

    QVector<Part> m_parts;
};
} // namespace

QString icuPatternFromPosix(const QString &posix, const MLocaleFormats &formats,
                            MLocale::CalendarType type)
{
    const QLatin1String flags("-EO_0^");
    Parts parts;
    for (int i = 0; i < posix.size(); ++i) {
        if (posix.at(i) != QLatin1Char('%')) {
            parts.addText(posix.at(i));
            continue;
        }
        const int start = i++;
        bool padded = true;
        for (; i < posix.size() && flags.contains(posix.at(i)); ++i)
            padded = padded && posix.at(i) != QLatin1Char('-');
        const QChar letter = i < posix.size() ? posix.at(i) : QChar();
        QString field = patternOf(letter, padded);
        if (field.isEmpty())
            field = localePatternOf(letter, formats, type);
        const QString text = textOf(letter);
        if (!field.isEmpty())
            parts.addField(field);
        else
            parts.addText(text.isEmpty() ? posix.mid(start, i - start + 1) : text);
    }
    return parts.pattern();
}
