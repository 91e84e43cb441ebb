// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "themevalues.h"

#include <QJsonArray>
#include <QSizeF>

#include <touchcore/mscalableimage.h>

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

bool isSize(int type)
{
    return type == QMetaType::QSize || type == QMetaType::QSizeF;
}

QVariant sizeOf(const QJsonArray &list, int type)
{
    if (list.size() != 2 || !list[0].isDouble() || !list[1].isDouble())
        return {};
    const QSizeF size(list[0].toDouble(), list[1].toDouble());
    return type == QMetaType::QSize ? QVariant(size.toSize()) : QVariant(size);
}

/// "name" or ["name", left, top, right, bottom].
QVariant imageOf(const QJsonValue &value)
{
    const QJsonArray list = value.toArray();
    if (value.isString())
        return QVariant::fromValue(MScalableImage(value.toString()));
    if (list.size() != 5 || !list[0].isString())
        return {};
    const QMargins borders(list[1].toInt(), list[2].toInt(), list[3].toInt(), list[4].toInt());
    return QVariant::fromValue(MScalableImage(list[0].toString(), borders));
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
    for (const WeightWord &known : weightWords) {
        if (word == QLatin1String(known.word)) {
            font->setWeight(known.weight);
            return true;
        }
    }
    return false;
}
} // namespace

QColor ThemeValues::color(const QString &text) const
{
    const int slash = text.indexOf(QLatin1Char('/'));
    const QString role = slash < 0 ? text : text.left(slash);
    const QString plain = rules->palette.value(role);
    QColor color(isDark ? rules->darkPalette.value(role, plain) : plain);
    if (!color.isValid())
        color = QColor(role);
    if (slash >= 0) {
        bool isNumber = false;
        const int percent = text.midRef(slash + 1).toInt(&isNumber);
        if (!isNumber || percent < 0 || percent > 100)
            return {};
        color.setAlphaF(percent / 100.0);
    }
    return color;
}

QFont ThemeValues::font(const QString &text) const
{
    QFont font;
    font.setPixelSize(1);
    if (!rules->fontFamilies.isEmpty())
        font.setFamilies(rules->fontFamilies);
    QString words = rules->fonts.value(text, text);
    const int quote = words.indexOf(QLatin1Char('\''));
    if (quote >= 0) {
        font.setFamily(words.mid(quote + 1).section(QLatin1Char('\''), 0, 0));
        words.truncate(quote);
    }
    bool isUnderstood = words.contains(QLatin1String("px"));
    const QStringList list = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : list)
        isUnderstood = applyWord(word, &font) && isUnderstood;
    if (!isUnderstood)
        return QFont();
    font.setPixelSize(qMax(1, qRound(font.pixelSize() * textScale)));
    return font;
}

QVariant ThemeValues::convert(const QJsonValue &value, int type) const
{
    if (type == qMetaTypeId<MScalableImage>())
        return imageOf(value);
    if (isSize(type))
        return sizeOf(value.toArray(), type);
    if (value.isString())
        return convertText(value.toString(), type);
    if (type == QMetaType::Bool)
        return value.isBool() ? QVariant(value.toBool()) : QVariant();
    if (!value.isDouble())
        return {};
    if (type == QMetaType::Int) {
        const double number = value.toDouble();
        return number == int(number) ? QVariant(int(number)) : QVariant();
    }
    return type == QMetaType::Double ? QVariant(value.toDouble()) : QVariant();
}

QVariant ThemeValues::convertText(const QString &text, int type) const
{
    const QString name = text.startsWith(QLatin1Char('@')) ? text.mid(1) : text;
    switch (type) {
    case QMetaType::QColor: {
        if (text.isEmpty())
            return QColor();
        const QColor found = color(name);
        return found.isValid() ? QVariant(found) : QVariant();
    }
    case QMetaType::QFont: {
        const QFont found = font(name);
        return found.pixelSize() > 0 ? QVariant(found) : QVariant();
    }
    case QMetaType::Int:
    case QMetaType::Double:
        return rules->measures.contains(name) ? QVariant(rules->measures.value(name)) : QVariant();
    case QMetaType::QString:
        return text;
    default:
        return {};
    }
}
