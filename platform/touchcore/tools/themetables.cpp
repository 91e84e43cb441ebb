// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "themetables.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace
{
QJsonObject read(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

void writeColors(QTextStream &out, const QJsonObject &theme)
{
    const QJsonObject light = theme.value(QLatin1String("palette")).toObject();
    const QJsonObject dark = theme.value(QLatin1String("darkPalette")).toObject();
    out << "### Colours\n\n| role | light | dark |\n|---|---|---|\n";
    for (auto role = light.begin(); role != light.end(); ++role)
        out << "| `@" << role.key() << "` | " << role->toString() << " | "
            << dark.value(role.key()).toString() << " |\n";
}

void writeMeasures(QTextStream &out, const QJsonObject &theme)
{
    const QJsonObject measures = theme.value(QLatin1String("measures")).toObject();
    out << "\n### Measures\n\n| name | px |\n|---|---|\n";
    for (auto measure = measures.begin(); measure != measures.end(); ++measure)
        out << "| `@" << measure.key() << "` | " << measure->toInt() << " |\n";
}

void writeFonts(QTextStream &out, const QJsonObject &theme)
{
    const QJsonObject fonts = theme.value(QLatin1String("fonts")).toObject();
    out << "\n### Fonts\n\n| name | font |\n|---|---|\n";
    for (auto font = fonts.begin(); font != fonts.end(); ++font)
        out << "| `@" << font.key() << "` | " << font->toString() << " |\n";
}

/// The named styles of the theme and of the files that it includes.
void writeStyles(QTextStream &out, const QDir &folder, const QJsonObject &theme)
{
    out << "\n### Named styles\n";
    const QJsonArray included = theme.value(QLatin1String("include")).toArray();
    for (const QJsonValue &file : included) {
        const QJsonObject styles =
            read(folder.filePath(file.toString())).value(QLatin1String("styles")).toObject();
        if (!styles.isEmpty())
            out << "\n`" << file.toString() << "`: `" << styles.keys().join(QLatin1String("`, `"))
                << "`.\n";
    }
}

void writePictures(QTextStream &out, const QDir &folder, const QJsonObject &theme)
{
    QStringList names = QDir(folder.filePath(QStringLiteral("images")))
                            .entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
    for (QString &name : names)
        name.chop(int(qstrlen(".svg")));
    QStringList mirrored;
    const QJsonArray list = theme.value(QLatin1String("mirrored")).toArray();
    for (const QJsonValue &name : list)
        mirrored.append(name.toString());
    out << "\n### Pictures\n\n`" << names.join(QLatin1String("`, `"))
        << "`.\n\nTurned round from right to left: `" << mirrored.join(QLatin1String("`, `"))
        << "`.\n";
}
} // namespace

QString themeTables(const QString &folder)
{
    const QDir dir(folder);
    const QJsonObject theme = read(dir.filePath(QStringLiteral("theme.json")));
    QString text;
    QTextStream out(&text);
    writeColors(out, theme);
    writeMeasures(out, theme);
    writeFonts(out, theme);
    writePictures(out, dir, theme);
    writeStyles(out, dir, theme);
    return text;
}
