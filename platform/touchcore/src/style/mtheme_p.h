// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MTHEME_P_H
#define TOUCHCORE_MTHEME_P_H

#include "locale/mdesktopsetting.h"
#include "themevalues.h"

#include <touchcore/mtheme.h>

#include <QSet>

#include <memory>

class MStyle;

/// What tells one style of the cache from another.
struct StyleKey {
    const QMetaObject *styleClass;
    const QMetaObject *widgetClass;
    QString styleName;
    QByteArray mode;

    bool operator==(const StyleKey &other) const
    {
        return styleClass == other.styleClass && widgetClass == other.widgetClass
            && styleName == other.styleName && mode == other.mode;
    }
};
uint qHash(const StyleKey &key, uint seed = 0);

class MThemePrivate
{
public:
    explicit MThemePrivate(MTheme *theme);

    /// Reads the file and what it includes; the rules stand above those read before. \a outer: the
    /// files that are just being read.
    bool readFile(const QString &file, const QStringList &outer = {});
    bool read(const QByteArray &json, const QString &source, QStringList *includes);
    /// Adds a warning that was not given before.
    void warn(const QString &text);
    /// The folders with a theme of the library, the one that stands above the others last.
    static QStringList foldersOf(const QString &library);
    void setScheme(M::ColorScheme scheme);
    /// The scheme that the desktop prefers, light where it says nothing.
    void followPreference();
    /// Lets go of the desktop's preference, which may be just telling of a change.
    void stopFollowing();
    /// Forgets the styles made so far and tells the widgets.
    void restyleAll();

    MTheme *q;
    ThemeRules rules;
    ThemeValues values;
    M::Orientation orientation = M::Portrait;
    bool isMotionReduced = false;
    QStringList warnings;
    QSet<QString> libraries;
    QStringList imageFolders; ///< of later libraries first
    mutable QHash<QString, QString> imageFiles;
    QHash<StyleKey, QSharedPointer<const MStyle>> styles;
    std::unique_ptr<MDesktopSetting> preference;
};

#endif
