// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_DASKELPAGEHEADERWIDGET_H
#define DASKEL_DASKELPAGEHEADERWIDGET_H

#include <daskel/pageheaderwidgetstyle.h>
#include <touchcore/mstylablewidget.h>

class DaskelPageHeaderWidgetPrivate;
class MButton;

/// The bar at the top of a page: a title of up to three lines, an icon before it, a button after it
/// and a line below, on a background that may carry the colour of a notebook.
class DaskelPageHeaderWidget : public MStylableWidget
{
    Q_OBJECT
    M_STYLE(PageHeaderWidgetStyle)

public:
    explicit DaskelPageHeaderWidget(QGraphicsItem *parent = nullptr);
    ~DaskelPageHeaderWidget() override;

    QString title() const;
    void setTitle(const QString &title);

    /// The name of a picture of the theme before the title; empty for none.
    QString image() const;
    void setImage(const QString &id);

    void setButtonVisible(bool isVisible);
    /// The button, for its text, its icon and its clicked().
    MButton *getButtonWidget() const;

    void setSeparatorVisible(bool isVisible);
    void setSeparatorStyle(const QString &styleName);

    /// The colour of the background. A style with a colour of its own replaces it at the next
    /// applyStyle().
    void setColor(const QColor &color);

    void applyStyle() override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

private:
    std::unique_ptr<DaskelPageHeaderWidgetPrivate> d;
};

#endif
