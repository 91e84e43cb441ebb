// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MWIDGETVIEW_H
#define TOUCHCORE_MWIDGETVIEW_H

#include <touchcore/mstylecontainer.h>
#include <touchcore/mwidgetstyle.h>

#include <QObject>

#include <memory>

class MWidgetController;
class MWidgetViewPrivate;
class QPainter;

/// How a controller looks: it reads the controller's model, draws, and gives size hints, all with a
/// style from the theme.
///
/// Made by the view factory (M_REGISTER_VIEW) and owned by its controller. A derived view names its
/// style class with M_STYLE.
class MWidgetView : public QObject
{
    Q_OBJECT

public:
    explicit MWidgetView(MWidgetController *controller);
    ~MWidgetView() override;

    MWidgetController *controller() const;

    /// \a modifications: the members of the model that changed; all of them after the view was made
    /// or the model replaced. The base repaints.
    virtual void updateData(const QList<const char *> &modifications);
    /// Another style is in force. The base lays out again and repaints.
    virtual void applyStyle();

    /// Draws the background, then the contents.
    virtual void paint(QPainter *painter) const;
    /// A frame of the style: MWidgetStyle::drawBackground().
    virtual void drawBackground(QPainter *painter) const;
    virtual void drawContents(QPainter *painter) const;

    /// An invalid size leaves the hint to the controller (its layout, then Qt).
    virtual QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const;

    const MWidgetStyle *style() const
    {
        return static_cast<const MWidgetStyle *>(styleContainer().current());
    }
    MStyleContainer &styleContainer() const;
    /// Chooses the mode block of the style: "pressed", "selected", "disabled" or "" and applies it.
    void setStyleMode(const QByteArray &mode);

    /// The controller's rectangle without the style's margins and paddings.
    QRectF contentsRect() const;

    static bool contains(const QList<const char *> &members, const char *member);

protected:
    virtual MStyle *newStyle() const { return new MWidgetStyle; }

private:
    std::unique_ptr<MWidgetViewPrivate> d;
};

#endif
