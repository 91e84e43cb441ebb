// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MSTYLABLEWIDGET_H
#define TOUCHCORE_MSTYLABLEWIDGET_H

#include <touchcore/mstylecontainer.h>
#include <touchcore/mwidgetcontroller.h>
#include <touchcore/mwidgetstyle.h>

class MStylableWidgetPrivate;

/// A widget that draws itself with a style: no model, no separate view. Panels, labels and the
/// parts of pages derive from it.
class MStylableWidget : public MWidgetController
{
    Q_OBJECT

public:
    explicit MStylableWidget(QGraphicsItem *parent = nullptr);
    ~MStylableWidget() override;

    const MWidgetStyle *style() const
    {
        return static_cast<const MWidgetStyle *>(styleContainer().current());
    }
    MStyleContainer &styleContainer() const;
    void setStyleMode(const QByteArray &mode);

    /// The widget's rectangle without the style's margins and paddings.
    QRectF contentsRectangle() const;

    /// Draws the frame of the style.
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

protected:
    /// Another style is in force: the base takes over margins and sizes, lays out and repaints.
    /// Overriders call it last. First called before the widget is first shown or laid out.
    virtual void applyStyle();
    virtual MStyle *newStyle() const { return new MWidgetStyle; }

    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    void changeEvent(QEvent *event) override;
    int focusOffset() const override;
    void polishEvent() override;
    void restyle() override;

private:
    std::unique_ptr<MStylableWidgetPrivate> d;
};

#endif
