// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "focusfollower.h"

#include <touchcore/mpannableviewport.h>

#include <QGraphicsScene>
#include <QGraphicsView>

FocusFollower::FocusFollower(MPannableViewport *viewport) : m_viewport(viewport)
{
    m_cursorCheck.setSingleShot(true);
    connect(&m_cursorCheck, &QTimer::timeout, this, &FocusFollower::followCursor);
}

void FocusFollower::setScene(QGraphicsScene *scene)
{
    disconnect(m_connection);
    if (!scene)
        return;
    m_connection = connect(scene, &QGraphicsScene::focusItemChanged, this,
                           [this](QGraphicsItem *, QGraphicsItem *, Qt::FocusReason reason) {
                               // What was touched is in view, and must not move away below the
                               // finger.
                               if (reason != Qt::MouseFocusReason)
                                   follow();
                           });
}

void FocusFollower::follow()
{
    const QGraphicsItem *item = focused();
    if (!item)
        return;
    const QRectF area = item->mapRectToItem(m_viewport->widget(), item->boundingRect());
    m_cursorArea = cursorArea();
    // Of what is too large, only the cursor can be kept in view.
    if (area.height() <= m_viewport->size().height())
        m_viewport->ensureVisible(area);
    else if (!m_cursorArea.isEmpty())
        m_viewport->ensureVisible(m_cursorArea);
}

/// Only where the cursor moved: a key that it did not want may have panned the text out of view.
void FocusFollower::followCursor()
{
    const QRectF area = cursorArea();
    if (area == m_cursorArea)
        return;
    m_cursorArea = area;
    if (!area.isEmpty())
        m_viewport->ensureVisible(area);
}

QGraphicsItem *FocusFollower::focused() const
{
    QGraphicsItem *item = m_viewport->scene() ? m_viewport->scene()->focusItem() : nullptr;
    const QGraphicsWidget *content = m_viewport->widget();
    return item && content && content->isAncestorOf(item) ? item : nullptr;
}

QRectF FocusFollower::cursorArea() const
{
    const QGraphicsItem *item = focused();
    if (!item || !(item->flags() & QGraphicsItem::ItemAcceptsInputMethod))
        return {};
    const QList<QGraphicsView *> views = item->scene()->views();
    if (views.isEmpty())
        return {};
    const QRect seen =
        views.first()->inputMethodQuery(Qt::ImCursorRectangle).toRectF().toAlignedRect();
    return m_viewport->widget()->mapRectFromScene(views.first()->mapToScene(seen).boundingRect());
}
