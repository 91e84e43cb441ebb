// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MSEPARATOR_H
#define TOUCHCORE_MSEPARATOR_H

#include <touchcore/mstylablewidget.h>

/// How a separator looks. Its paddings shorten the line.
class MSeparatorStyle : public MWidgetStyle
{
    Q_OBJECT
    M_STYLE_ATTRIBUTE(QColor, color, setColor, Qt::gray)
    /// In pixels at scale 1.
    M_STYLE_ATTRIBUTE(int, thickness, setThickness, 1)
};

/// A hairline between things.
class MSeparator : public MStylableWidget
{
    Q_OBJECT
    M_STYLE(MSeparatorStyle)
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)

public:
    explicit MSeparator(QGraphicsItem *parent = nullptr,
                        Qt::Orientation orientation = Qt::Horizontal);
    ~MSeparator() override;

    /// Which way the line runs: it fills this direction and is thin in the other.
    Qt::Orientation orientation() const { return m_orientation; }
    void setOrientation(Qt::Orientation orientation);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;

private:
    void applyOrientation();

    Qt::Orientation m_orientation;
};

#endif
