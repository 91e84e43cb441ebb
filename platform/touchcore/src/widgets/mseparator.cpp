// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mseparator.h>

#include <QPainter>

MSeparator::MSeparator(QGraphicsItem *parent, Qt::Orientation orientation)
    : MStylableWidget(parent), m_orientation(orientation)
{
    applyOrientation();
}

MSeparator::~MSeparator() = default;

void MSeparator::setOrientation(Qt::Orientation orientation)
{
    if (m_orientation == orientation)
        return;
    m_orientation = orientation;
    applyOrientation();
    updateGeometry();
    update();
}

void MSeparator::applyOrientation()
{
    if (m_orientation == Qt::Horizontal)
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    else
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

void MSeparator::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    MStylableWidget::paint(painter, option, widget);
    painter->fillRect(contentsRectangle(), style()->color());
}

QSizeF MSeparator::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    const QSizeF styled = MStylableWidget::sizeHint(which, constraint);
    if (which != Qt::MinimumSize && which != Qt::PreferredSize)
        return styled;
    const QMarginsF around = style()->margins() + style()->paddings();
    if (m_orientation == Qt::Horizontal)
        return {styled.width(), style()->thickness() + around.top() + around.bottom()};
    return {style()->thickness() + around.left() + around.right(), styled.height()};
}
