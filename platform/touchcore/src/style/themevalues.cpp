// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "themevalues.h"

#include <touchcore/mscalableimage.h>

#include <QJsonArray>
#include <QSizeF>

namespace
{
struct WeightWord {
    const char *word;
    QFont::Weight weight;
};
constexpr WeightWord weightWords[] = {
    {"light", QFont::Light},
    {"medium", QFont::Medium},
    {"demibold", QFont::DemiBold},
    {"bold", QFont::Bold},
};

/// "name" or ["name", left, top, right, bottom].
QVariant imageOf(const QJsonValue &value)
{
    const QJsonArray list = value.toArray();
    if (value.isString())
        return QVariant::fromValue(MScalableImage(value.toString()));
    if (list.size() != 5 || !list[0].isString())
        return {};
    for (int i = 1; i < list.size(); ++i) {
        if (list[i].toInt(-1) < 0)
            return {};
    }
    const QMargins borders(list[1].toInt(), list[2].toInt(), list[3].toInt(), list[4].toInt());
    return QVariant::fromValue(MScalableImage(list[0].toString(), borders));
}

/// \a text without the percentage behind a slash, which goes to \a alpha as 0 to 1; nothing when
/// that is none.
std::optional<QString> withoutAlpha(const QString &text, double *alpha)
{
    *alpha = 1;
    const int slash = text.indexOf(QLatin1Char('/'));
    if (slash < 0)
        return text;
    bool isNumber = false;
    const int percent = text.midRef(slash + 1).toInt(&isNumber);
    *alpha = percent / 100.0;
    return isNumber && percent >= 0 && percent <= 100 ? std::optional<QString>(text.left(slash))
                                                      : std::nullopt;
}

QColor withAlpha(QColor color, double alpha)
{
    if (color.isValid() && alpha < 1)
        color.setAlphaF(color.alphaF() * alpha);
    return color;
}

bool applyWord(const QString &word, QFont *font)
{
    if (word.endsWith(QLatin1String("px"))) {
        bool isNumber = false;
        const int pixels = word.chopped(2).toInt(&isNumber);
        if (isNumber && pixels > 0)
            font->setPixelSize(pixels);
        return isNumber && pixels > 0;
    }
    if (word == QLatin1String("italic")) {
        font->setItalic(true);
        return true;
    }
    if (word == QLatin1String("strikeout")) {
        font->setStrikeOut(true);
        return true;
    }
    for (const WeightWord &known : weightWords) {
        if (word == QLatin1String(known.word)) {
            font->setWeight(known.weight);
            return true;
        }
    }
    return false;
}
} // namespace

QColor ThemeValues::color(const QString &role) const
{
    double alpha = 1;
    const std::optional<QString> name = withoutAlpha(role, &alpha);
    if (!name)
        return {};
    const QString light = rules->palette.value(*name);
    return withAlpha(QColor(isDark ? rules->darkPalette.value(*name, light) : light), alpha);
}

std::optional<QFont> ThemeValues::font(const QString &name) const
{
    return rules->fonts.contains(name) ? fontOf(rules->fonts.value(name)) : std::nullopt;
}

std::optional<QFont> ThemeValues::fontOf(const QString &words) const
{
    QFont font;
    font.setPixelSize(1);
    if (!rules->fontFamilies.isEmpty())
        font.setFamilies(rules->fontFamilies);
    const QStringList parts = words.split(QLatin1Char('\''));
    if (parts.size() == 3)
        font.setFamilies(QStringList{parts[1]} + rules->fontFamilies);
    else if (parts.size() != 1)
        return std::nullopt;
    const QString plain = parts.first() + QLatin1Char(' ') + parts.mid(2).join(QString());
    const QStringList list = plain.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    bool hasSize = false;
    for (const QString &word : list) {
        if (!applyWord(word, &font))
            return std::nullopt;
        hasSize = hasSize || word.endsWith(QLatin1String("px"));
    }
    if (!hasSize)
        return std::nullopt;
    font.setPixelSize(qMax(1, qRound(font.pixelSize() * textScale)));
    return font;
}

std::optional<double> ThemeValues::number(const QJsonValue &value) const
{
    if (value.isDouble())
        return value.toDouble();
    const QString text = value.toString();
    const auto measure = rules->measures.constFind(text.mid(1));
    if (text.startsWith(QLatin1Char('@')) && measure != rules->measures.constEnd())
        return *measure;
    return std::nullopt;
}

QVariant ThemeValues::convert(const QJsonValue &value, int type) const
{
    if (type == qMetaTypeId<MScalableImage>())
        return imageOf(value);
    switch (type) {
    case QMetaType::QSize:
    case QMetaType::QSizeF:
        return convertSize(value.toArray(), type);
    case QMetaType::Bool:
        return value.isBool() ? QVariant(value.toBool()) : QVariant();
    case QMetaType::Int: {
        const std::optional<double> found = number(value);
        return found && *found == int(*found) ? QVariant(int(*found)) : QVariant();
    }
    case QMetaType::Double: {
        const std::optional<double> found = number(value);
        return found ? QVariant(*found) : QVariant();
    }
    default:
        return value.isString() ? convertText(value.toString(), type) : QVariant();
    }
}

QVariant ThemeValues::convertSize(const QJsonArray &sides, int type) const
{
    if (sides.size() != 2)
        return {};
    const std::optional<double> width = number(sides[0]);
    const std::optional<double> height = number(sides[1]);
    if (!width || !height)
        return {};
    const QSizeF size(*width, *height);
    return type == QMetaType::QSize ? QVariant(size.toSize()) : QVariant(size);
}

QVariant ThemeValues::convertText(const QString &text, int type) const
{
    const bool isName = text.startsWith(QLatin1Char('@'));
    switch (type) {
    case QMetaType::QColor: {
        if (text.isEmpty())
            return QColor();
        double alpha = 1;
        const std::optional<QString> literal = withoutAlpha(text, &alpha);
        const QColor found =
            isName ? color(text.mid(1)) : withAlpha(QColor(literal.value_or(QString())), alpha);
        return found.isValid() ? QVariant(found) : QVariant();
    }
    case QMetaType::QFont: {
        const std::optional<QFont> found = isName ? font(text.mid(1)) : fontOf(text);
        return found ? QVariant(*found) : QVariant();
    }
    case QMetaType::QString:
        return text;
    default:
        return {};
    }
}
