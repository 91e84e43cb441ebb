// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Writes the reference part of docs/theming.md: what the base theme names, and every style class
// with its attributes, types, units and defaults, from the meta-objects.

#include "sourcecomments.h"
#include "styleclasses.h"
#include "themetables.h"

#include <touchcore/mscalableimage.h>
#include <touchcore/mstyle.h>

#include <QCoreApplication>
#include <QFile>
#include <QFont>
#include <QMetaProperty>
#include <QTextStream>

#include <algorithm>
#include <memory>

namespace
{
const QString marker = QStringLiteral("<!-- The build writes what follows. -->\n");

struct TypeWord {
    int type;
    const char *word;
    const char *unit;
};

const TypeWord *wordOf(int type)
{
    static const TypeWord words[] = {
        {QMetaType::Int, "number", "px"},
        {QMetaType::Double, "number", "px"},
        {QMetaType::QSizeF, "size", "px"},
        {QMetaType::QSize, "size", "px"},
        {QMetaType::QColor, "colour", ""},
        {QMetaType::QFont, "font", ""},
        {QMetaType::Bool, "`true` or `false`", ""},
        {QMetaType::QString, "text", ""},
        {qMetaTypeId<MScalableImage>(), "picture", ""},
    };
    const auto *found = std::find_if(std::begin(words), std::end(words),
                                     [type](const TypeWord &word) { return word.type == type; });
    return found == std::end(words) ? nullptr : found;
}

/// A number is of pixels unless the attribute's name says otherwise.
QString unitOf(const TypeWord &type, const QString &attribute)
{
    static const struct {
        const char *ending;
        const char *unit;
    } units[] = {{"duration", "ms"}, {"delay", "ms"},       {"period", "ms"},   {"timeout", "ms"},
                 {"lines", "lines"}, {"opacity", "0 to 1"}, {"scale", "0 to 1"}};
    for (const auto &unit : units) {
        if (attribute.endsWith(QLatin1String(unit.ending), Qt::CaseInsensitive))
            return QLatin1String(unit.unit);
    }
    return QLatin1String(type.unit);
}

QString shown(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QSize:
    case QMetaType::QSizeF: {
        const QSizeF size = value.toSizeF();
        return QStringLiteral("[%1, %2]").arg(size.width()).arg(size.height());
    }
    case QMetaType::QColor: {
        const auto color = value.value<QColor>();
        if (!color.isValid())
            return QStringLiteral("none");
        return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
    }
    case QMetaType::QFont:
        return QStringLiteral("the system's");
    case QMetaType::QString:
        return value.toString().isEmpty() ? QStringLiteral("none") : value.toString();
    default:
        break;
    }
    if (value.canConvert<MScalableImage>())
        return QStringLiteral("none");
    return value.toString();
}

bool writeClass(QTextStream &out, const StyleClass &style, const SourceComments &comments)
{
    const QString name = QString::fromLatin1(style.meta->className());
    const QStringList users = comments.usersOf(name);
    out << "\n### " << name << "\n\n" << comments.ofClass(name);
    if (!users.isEmpty())
        out << " Of `" << users.join(QLatin1String("`, `")) << "`.";
    const QMetaObject *base = style.meta->superClass();
    if (qstrcmp(base->className(), "MStyle") != 0)
        out << " Besides all of " << base->className() << ":";
    out << "\n\n| attribute | type | unit | default | meaning |\n|---|---|---|---|---|\n";
    const std::unique_ptr<MStyle> made(style.make());
    for (int i = style.meta->propertyOffset(); i < style.meta->propertyCount(); ++i) {
        const QMetaProperty attribute = style.meta->property(i);
        const TypeWord *type = wordOf(attribute.userType());
        if (!type) {
            qCritical("%s::%s: a theme has no values of the type %s", qUtf8Printable(name),
                      attribute.name(), attribute.typeName());
            return false;
        }
        const QString comment = comments.ofAttribute(name, QString::fromLatin1(attribute.name()));
        out << "| `" << attribute.name() << "` | " << type->word << " | " << unitOf(*type, comment)
            << " | " << shown(attribute.read(made.get())) << " | " << comment << " |\n";
    }
    return true;
}

/// Empty when an attribute has a type that themes cannot give.
QString tables(const QString &sources)
{
    const SourceComments comments(sources);
    QVector<StyleClass> styles = styleClasses();
    std::sort(styles.begin(), styles.end(), [](const StyleClass &left, const StyleClass &right) {
        return qstrcmp(left.meta->className(), right.meta->className()) < 0;
    });
    QString text;
    QTextStream out(&text);
    out << "## What the base theme names\n\n"
        << themeTables(sources + QLatin1String("/themes/base")) << "\n## Style classes\n";
    for (const StyleClass &style : qAsConst(styles)) {
        if (!writeClass(out, style, comments))
            return {};
    }
    return text;
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 3) {
        qCritical("usage: touchcore_style_tables <folder of the toolkit> <file> [--check]");
        return 2;
    }
    const bool isCheck = arguments.contains(QLatin1String("--check"));
    QFile file(arguments[2]);
    if (!file.open(isCheck ? QIODevice::ReadOnly : QIODevice::ReadWrite)) {
        qCritical("%s: %s", qUtf8Printable(arguments[2]), qUtf8Printable(file.errorString()));
        return 2;
    }
    const QString before = QString::fromUtf8(file.readAll());
    const QString reference = tables(arguments[1]);
    if (reference.isEmpty() || !before.contains(marker)) {
        qCritical("There is nothing to write, or no place for it.");
        return 2;
    }
    const QString now =
        before.left(before.indexOf(marker)) + marker + QLatin1Char('\n') + reference;
    if (now == before)
        return 0;
    if (isCheck) {
        qCritical("%s is stale; write it anew with: cmake --build <build folder> --target "
                  "theming_reference",
                  qUtf8Printable(arguments[2]));
        return 1;
    }
    file.resize(0);
    file.write(now.toUtf8());
    return file.flush() ? 0 : 2;
}
