// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "layoutstandin.h"

#include <QGraphicsItem>

LayoutStandIn::LayoutStandIn(QGraphicsLayoutItem *item) : m_item(item)
{
    // By its graphics item the private layout sees that an item is hidden and gives up its place.
    setGraphicsItem(item->graphicsItem());
    setSizePolicy(item->sizePolicy());
}

void LayoutStandIn::refresh()
{
    if (sizePolicy() != m_item->sizePolicy())
        setSizePolicy(m_item->sizePolicy());
    updateGeometry();
}

void LayoutStandIn::setGeometry(const QRectF &rect)
{
    QGraphicsLayoutItem::setGeometry(rect);
    m_item->setGeometry(rect);
}

QSizeF LayoutStandIn::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    return m_item->effectiveSizeHint(which, constraint);
}
