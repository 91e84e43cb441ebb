// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "panelayout.h"

#include <QGraphicsWidget>
#include <QWidget>

PaneLayout::PaneLayout(QGraphicsLayoutItem *pane, const std::function<void()> &arrange)
    : QGraphicsLayout(pane), m_arrange(arrange)
{
    setContentsMargins(0, 0, 0, 0);
}

void PaneLayout::setWidget(QGraphicsWidget *widget)
{
    if (m_widget)
        m_widget->setParentLayoutItem(nullptr);
    m_widget = widget;
    if (widget)
        addChildLayoutItem(widget);
}

QGraphicsLayoutItem *PaneLayout::itemAt(int index) const
{
    return index == 0 ? m_widget : nullptr;
}

void PaneLayout::removeAt(int)
{
    m_widget = nullptr;
    invalidate();
}

void PaneLayout::setGeometry(const QRectF &rect)
{
    QGraphicsLayout::setGeometry(rect);
    m_arrange();
}

QSizeF PaneLayout::sizeHint(Qt::SizeHint which, const QSizeF &) const
{
    return which == Qt::MaximumSize ? QSizeF(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : QSizeF(0, 0);
}
