// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_MYCOLORLABEL_H
#define DASKEL_MYCOLORLABEL_H

#include <touchcore/mstylablewidget.h>

/// A swatch of one colour, such as that of a notebook.
class MyColorLabel : public MStylableWidget
{
    Q_OBJECT

public:
    explicit MyColorLabel(QGraphicsItem *parent = nullptr);

    /// Invalid (the start) and Qt::color0 paint nothing.
    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    /// 0 to 1; 1 at the start. Named apart from the opacity of the item, which its children share.
    double colorOpacity() const { return m_opacity; }
    void setColorOpacity(double opacity);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

private:
    QColor m_color;
    double m_opacity = 1;
};

#endif
