// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "panelayout.h"

#include <QWidget>

PaneLayout::PaneLayout(QGraphicsLayoutItem *pane, const std::function<void()> &arrange)
    : QGraphicsLayout(pane), m_arrange(arrange)
{
    setContentsMargins(0, 0, 0, 0);
}

void PaneLayout::setItem(QGraphicsLayoutItem *item)
{
    if (m_item)
        m_item->setParentLayoutItem(nullptr);
    m_item = item;
    if (item)
        addChildLayoutItem(item);
    invalidate();
}

void PaneLayout::removeAt(int)
{
    m_item = nullptr;
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
