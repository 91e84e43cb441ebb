// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_THEMEFILE_H
#define TOUCHCORE_THEMEFILE_H

#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QStringList>
#include <QVector>

/// One block of attributes and the file that it stands in.
struct ThemeRule {
    QString source;
    QJsonObject block;
};

/// Everything that the loaded theme files say, as they say it. Rules of one name are kept one above
/// the other in the order of loading.
struct ThemeRules {
    using Layers = QHash<QString, QVector<ThemeRule>>;

    QHash<QString, QString> palette;
    QHash<QString, QString> darkPalette;
    QHash<QString, int> measures;
    QHash<QString, QString> fonts;
    QStringList fontFamilies;
    QHash<QString, QString> views;
    QSet<QString> mirroredImages;
    Layers classes;
    Layers styles;
    /// Whether any rule says something about only one orientation.
    bool dependOnOrientation = false;
};

/// Whether \a name is that of a block that holds in one orientation.
bool isOrientationBlock(const QString &name);
/// Whether \a name is that of a block that holds in one orientation or mode of a widget.
bool isStyleBlock(const QString &name);

/// Adds what one theme text says to \a rules. A text that cannot be read changes nothing and
/// answers false. \a includes: the files that it names to be read after it. What is wrong goes to
/// \a warnings with its place.
bool readTheme(const QByteArray &json, const QString &source, ThemeRules *rules,
               QStringList *includes, QStringList *warnings);

#endif
