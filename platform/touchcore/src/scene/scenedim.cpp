// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scenedim.h"

#include <touchcore/mscenewindow.h>

#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsSceneWheelEvent>
#include <QPainter>

SceneDim::SceneDim(MSceneWindow *window) : QGraphicsObject(window->parentItem()), m_window(window)
{
    setTakingAll(true);
    adaptToParent();
}

void SceneDim::setTakingAll(bool isTakingAll)
{
    m_isTakingAll = isTakingAll;
    setAcceptedMouseButtons(isTakingAll ? Qt::AllButtons : Qt::NoButton);
    // Else a press gives the focus to what lies below.
    setFlag(ItemStopsClickFocusPropagation, isTakingAll);
}

void SceneDim::adaptToParent()
{
    prepareGeometryChange();
    m_size = parentItem()->boundingRect().size();
}

QRectF SceneDim::boundingRect() const
{
    return {QPointF(), m_size};
}

void SceneDim::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->fillRect(boundingRect(), m_window->style()->dimColor());
}

void SceneDim::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
    m_window->pressedOutside();
}

void SceneDim::wheelEvent(QGraphicsSceneWheelEvent *event)
{
    event->setAccepted(m_isTakingAll);
}

void SceneDim::contextMenuEvent(QGraphicsSceneContextMenuEvent *event)
{
    event->setAccepted(m_isTakingAll);
}
