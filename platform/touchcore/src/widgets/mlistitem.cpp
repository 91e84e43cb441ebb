// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "press.h"

#include <touchcore/mlistitem.h>

#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>

MListItem::MListItem(QGraphicsItem *parent) : MStylableWidget(parent)
{
    setFocusPolicy(Qt::TabFocus);
}

MListItem::~MListItem() = default;

void MListItem::setSelected(bool isSelected)
{
    m_isSelected = isSelected;
    applyMode();
}

void MListItem::setDown(bool isDown)
{
    m_isDown = isDown;
    applyMode();
}

void MListItem::applyMode()
{
    if (!isEnabled())
        setStyleMode(QByteArrayLiteral("disabled"));
    else if (m_isDown)
        setStyleMode(QByteArrayLiteral("pressed"));
    else
        setStyleMode(m_isSelected ? QByteArrayLiteral("selected") : QByteArray());
}

void MListItem::changeEvent(QEvent *event)
{
    MStylableWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        setDown(false);
}

void MListItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
    if (event->isAccepted())
        setDown(true);
}

void MListItem::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    mousePressEvent(event);
}

void MListItem::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_isDown && !isWithinReach(*this, event->pos()))
        setDown(false);
}

void MListItem::mouseReleaseEvent(QGraphicsSceneMouseEvent *)
{
    if (!m_isDown)
        return;
    setDown(false);
    Q_EMIT clicked();
}

void MListItem::contextMenuEvent(QGraphicsSceneContextMenuEvent *event)
{
    setDown(false);
    Q_EMIT longTapped(event->scenePos());
    MStylableWidget::contextMenuEvent(event);
}

void MListItem::keyPressEvent(QKeyEvent *event)
{
    if (!isTapKey(*event)) {
        MStylableWidget::keyPressEvent(event);
        return;
    }
    if (!event->isAutoRepeat())
        setDown(true);
}

void MListItem::keyReleaseEvent(QKeyEvent *event)
{
    if (!isTapKey(*event)) {
        MStylableWidget::keyReleaseEvent(event);
        return;
    }
    if (event->isAutoRepeat() || !m_isDown)
        return;
    setDown(false);
    Q_EMIT clicked();
}

void MListItem::focusOutEvent(QFocusEvent *event)
{
    setDown(false);
    MStylableWidget::focusOutEvent(event);
}

void MListItem::ungrabMouseEvent(QEvent *event)
{
    setDown(false);
    MStylableWidget::ungrabMouseEvent(event);
}

void MListItem::cancelEvent()
{
    setDown(false);
}
