// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MTHEME_H
#define TOUCHCORE_MTHEME_H

#include <touchcore/mnamespace.h>

#include <QColor>
#include <QFont>
#include <QObject>
#include <QSharedPointer>
#include <QStringList>

#include <functional>
#include <memory>

class MStyle;
class MThemePrivate;

/// The look of the program: palettes, measures, fonts, rules for classes and named styles, and
/// pictures, read from JSON files (docs/theming.md).
///
/// One per process, on the UI thread. Each library adds a folder with its own theme, found by
/// addLibrary(); rules of later libraries stand above those of earlier ones.
class MTheme : public QObject
{
    Q_OBJECT

public:
    /// The one theme. On first use it loads the toolkit's own base theme.
    static MTheme *instance();
    ~MTheme() override;

    /// Loads the theme of \a library (such as "libdaskel") and its pictures: the folder
    /// "daskel/themes/<library>" beside the program ("../share"), else the one built into the
    /// library (":/daskel/themes/<library>"), and above it that of the person's data folder, which
    /// need hold only what differs. Answers false when nothing was found or read. A library is
    /// loaded once. Emits changed().
    bool addLibrary(const QString &library);

    /// Says that rules for the class \a className are those of \a library: its theme is loaded if
    /// it is not yet. A stylable widget calls this when it is first constructed.
    void registerStylableType(const char *className, const QString &library);

    /// Adds the rules of one theme text over those loaded so far. \a source names it in warnings.
    /// A text that is no JSON object changes nothing and answers false; an unknown section, a wrong
    /// type in it, an unknown attribute or a bad value is a warning that names source, rule and
    /// attribute. Emits changed().
    bool load(const QByteArray &json, const QString &source);
    /// What was wrong with the themes, also written as warnings.
    QStringList warnings() const;

    M::ColorScheme colorScheme() const;
    /// Shows \a scheme whatever the desktop prefers. Emits changed() when it differs.
    void setColorScheme(M::ColorScheme scheme);
    /// Goes by the desktop's preference (org.freedesktop.portal.Settings), light where there is
    /// none; follows its changes. The desktop answers later.
    void followDesktop();

    M::Orientation orientation() const;
    /// Told by the active window. Emits changed() when it differs and a rule depends on it.
    void setOrientation(M::Orientation orientation);

    /// Enlarges every font of the theme: 0.5 to 3, 1 by default. Emits changed().
    void setTextScale(qreal scale);
    qreal textScale() const;

    /// Whether things may move; then fades only. Off by default.
    bool isMotionReduced() const;
    void setMotionReduced(bool isReduced);

    /// A colour of the palette in force, such as "accent"; invalid and warned about once when there
    /// is none.
    QColor color(const QString &role) const;
    /// A constant of the theme, such as "pageMargin", in pixels at scale 1.
    int measure(const QString &name) const;
    /// A font of the theme, such as "body".
    QFont font(const QString &name) const;
    /// The file of a picture, looked up in the folders of all libraries, later ones first; empty
    /// when there is none.
    QString imageFile(const QString &id) const;

    /// Whether the picture \a id points somewhere, and so turns round in a right-to-left layout.
    bool isMirrored(const QString &id) const;

    /// The class of the view for a controller of \a widgetClass, looked up from that class towards
    /// its bases; empty when no rule names one.
    QString viewClass(const QMetaObject *widgetClass, const QString &viewType) const;

    /// The style of \a styleClass for a widget of \a widgetClass: made by \a maker, then filled by
    /// the rules of the widget's classes (base first), of the style name with what it extends, and
    /// each rule's orientation and mode blocks. Equal requests share one object.
    QSharedPointer<const MStyle> style(const std::function<MStyle *()> &maker,
                                       const QMetaObject *styleClass,
                                       const QMetaObject *widgetClass, const QString &styleName,
                                       const QByteArray &mode);
    /// How many different styles are in use.
    int styleCount() const;

Q_SIGNALS:
    /// Other rules, colours or sizes are in force. Controllers restyle themselves.
    void changed();

private:
    MTheme();
    std::unique_ptr<MThemePrivate> d;
};

#endif
