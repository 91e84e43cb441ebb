// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pangesture.h"

#include <touchcore/mpannableviewport.h>
#include <touchcore/mphysics2dpanning.h>

#include <QCoreApplication>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QWidget>

namespace
{
const qreal threshold = 12;

/// Ends the touch of an item that thought it was its own.
void cancelTouch(QGraphicsItem *item)
{
    if (qgraphicsitem_cast<QGraphicsProxyWidget *>(item)) {
        // What is embedded knows no cancelling, but a release far outside it does nothing.
        QGraphicsSceneMouseEvent release(QEvent::GraphicsSceneMouseRelease);
        release.setButton(Qt::LeftButton);
        release.setPos(QPointF(-QWIDGETSIZE_MAX, -QWIDGETSIZE_MAX));
        release.setScenePos(item->mapToScene(release.pos()));
        item->scene()->sendEvent(item, &release);
    } else if (QGraphicsObject *object = item->toGraphicsObject()) {
        MCancelEvent cancel;
        QCoreApplication::sendEvent(object, &cancel);
    }
}
} // namespace

bool PanGesture::filter(QGraphicsSceneMouseEvent *event)
{
    if (m_isTakingOver)
        return false;
    const QPointF pointer = m_viewport->mapFromScene(event->scenePos());
    switch (event->type()) {
    case QEvent::GraphicsSceneMousePress:
    // The second of two quick taps arrives as a double click.
    case QEvent::GraphicsSceneMouseDoubleClick:
        return press(event, pointer);
    case QEvent::GraphicsSceneMouseMove:
        return move(pointer);
    case QEvent::GraphicsSceneMouseRelease:
        return event->button() == Qt::LeftButton && release();
    default:
        return false;
    }
}

void PanGesture::abandon()
{
    m_phase = Idle;
    m_viewport->physics()->pointerRelease();
}

bool PanGesture::press(QGraphicsSceneMouseEvent *event, const QPointF &pointer)
{
    if (event->button() != Qt::LeftButton)
        return false;
    // A press is offered to one item after the other until one takes it.
    const bool isOfferedAgain = isFollowing() && pointer == m_start;
    if (!isOfferedAgain) {
        m_phase = m_viewport->physics()->isMoving() ? Panning : Undecided;
        m_start = pointer;
        m_threshold = QPointF();
        m_viewport->physics()->pointerPress(pointer);
    }
    if (m_phase == Panning)
        event->ignore();
    return m_phase == Panning;
}

bool PanGesture::move(const QPointF &pointer)
{
    if (m_phase == Undecided && isPan(pointer - m_start)) {
        const QPointF way = pointer - m_start;
        m_threshold = way * threshold / qMax(qAbs(way.x()), qAbs(way.y()));
        takeOver();
    }
    if (m_phase == Panning)
        m_viewport->physics()->pointerMove(pointer - m_threshold);
    return m_phase == Panning;
}

bool PanGesture::release()
{
    const bool wasPanning = m_phase == Panning;
    if (m_phase != Idle)
        abandon();
    if (m_viewport->scene() && m_viewport->scene()->mouseGrabberItem() == m_viewport)
        m_viewport->ungrabMouse();
    return wasPanning;
}

/// A way across the direction that can be panned is not meant as a pan: it may be that of a slider,
/// or of a viewport inside this one.
bool PanGesture::isPan(const QPointF &way) const
{
    const Qt::Orientations directions = m_viewport->pannableDirections();
    const bool isUpright = qAbs(way.y()) >= qAbs(way.x());
    if (!(directions & (isUpright ? Qt::Vertical : Qt::Horizontal)))
        return false;
    if (qMax(qAbs(way.x()), qAbs(way.y())) <= threshold)
        return false;
    const QGraphicsItem *grabber = m_viewport->scene()->mouseGrabberItem();
    const QGraphicsObject *holder = grabber ? grabber->toGraphicsObject() : nullptr;
    const auto *other = qobject_cast<const MPannableViewport *>(holder);
    return !other || other == m_viewport || !other->physics()->isMoving();
}

void PanGesture::takeOver()
{
    m_phase = Panning;
    QGraphicsItem *grabber = m_viewport->scene()->mouseGrabberItem();
    if (grabber == m_viewport)
        return;
    m_isTakingOver = true;
    if (grabber) {
        cancelTouch(grabber);
        // Its answer may have been to go away.
        if (m_viewport->scene()->mouseGrabberItem() == grabber)
            grabber->ungrabMouse();
    }
    m_viewport->grabMouse();
    m_isTakingOver = false;
}
