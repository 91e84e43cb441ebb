// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "longpress.h"

#include <touchcore/mwidget.h>

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QPointer>
#include <QTimerEvent>

namespace
{
const int longPressTime = 500; // milliseconds
const int touchSlop = 12; // pixels
} // namespace

LongPress::LongPress(QGraphicsView *view) : QObject(view), m_view(view) { }

void LongPress::press(const QMouseEvent &event)
{
    m_isTaken = false;
    m_timer.stop();
    if (event.button() != Qt::LeftButton)
        return;
    m_position = event.pos();
    m_screenPosition = event.globalPos();
    m_timer.start(longPressTime, this);
}

bool LongPress::move(const QMouseEvent &event)
{
    const QPoint way = event.pos() - m_position;
    if (QPoint::dotProduct(way, way) > touchSlop * touchSlop)
        m_timer.stop();
    return m_isTaken;
}

bool LongPress::release()
{
    m_timer.stop();
    const bool wasTaken = m_isTaken;
    m_isTaken = false;
    return wasTaken;
}

void LongPress::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId())
        return;
    m_timer.stop();
    const QPointer<LongPress> guard(this);
    if (!sendContextMenuEvent() || !guard)
        return;
    m_isTaken = true;
    cancelPress();
}

bool LongPress::sendContextMenuEvent() const
{
    QGraphicsScene *scene = m_view->scene();
    const QPointF scenePosition = m_view->mapToScene(m_position);
    QGraphicsSceneContextMenuEvent event(QEvent::GraphicsSceneContextMenu);
    event.setWidget(m_view->viewport());
    event.setScenePos(scenePosition);
    event.setScreenPos(m_screenPosition);
    event.setReason(QGraphicsSceneContextMenuEvent::Mouse);
    QGraphicsItem *item = scene->itemAt(scenePosition, m_view->viewportTransform());
    for (; item; item = item->parentItem()) {
        event.setPos(item->mapFromScene(scenePosition));
        event.accept();
        scene->sendEvent(item, &event);
        if (event.isAccepted())
            return true;
    }
    return false;
}

void LongPress::cancelPress() const
{
    QGraphicsItem *grabber = m_view->scene()->mouseGrabberItem();
    if (!grabber)
        return;
    if (QGraphicsObject *pressed = grabber->toGraphicsObject()) {
        MCancelEvent cancel;
        QCoreApplication::sendEvent(pressed, &cancel);
    }
    // The widget may have let go of it, or be gone.
    if (m_view->scene()->mouseGrabberItem() == grabber)
        grabber->ungrabMouse();
}
