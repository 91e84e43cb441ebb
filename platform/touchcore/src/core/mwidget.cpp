// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "objectmenuhook.h"

#include <QAction>
#include <QGraphicsScene>
#include <QGraphicsSceneContextMenuEvent>
#include <QKeyEvent>

#include <algorithm>
#include <touchcore/mwidget.h>

namespace
{
ObjectMenuOpener theOpener = nullptr;

/// The menu stands beside the middle of the widget's start when no pointer says where.
QPointF keyboardMenuPosition(const QGraphicsWidget &widget)
{
    return widget.mapToScene(widget.rect().center());
}

bool isMenuKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Menu
        || (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}
} // namespace

void setObjectMenuOpener(ObjectMenuOpener opener)
{
    theOpener = opener;
}

class MWidgetPrivate
{
public:
    bool isOnDisplay = false;
    /// Told by the scene window above; the widget is on display when it is visible, too.
    bool isSceneWindowShown = false;
};

MWidget::MWidget(QGraphicsItem *parent)
    : QGraphicsWidget(parent), d(std::make_unique<MWidgetPrivate>())
{
    if (const auto *parentWidget = parent ? dynamic_cast<MWidget *>(parent) : nullptr)
        d->isSceneWindowShown = parentWidget->d->isSceneWindowShown;
}

MWidget::~MWidget() = default;

bool MWidget::isOnDisplay() const
{
    return d->isOnDisplay;
}

void MWidget::updateDisplayState(QGraphicsItem *root, bool isOnDisplay)
{
    const bool isShown = isOnDisplay && root->isVisible();
    if (auto *widget =
            root->isWidget() ? qobject_cast<MWidget *>(root->toGraphicsObject()) : nullptr) {
        widget->d->isSceneWindowShown = isOnDisplay;
        if (widget->d->isOnDisplay != isShown) {
            widget->d->isOnDisplay = isShown;
            if (isShown)
                widget->enterDisplayEvent();
            else
                widget->exitDisplayEvent();
        }
    }
    const QList<QGraphicsItem *> children = root->childItems();
    for (QGraphicsItem *child : children)
        updateDisplayState(child, isShown);
}

bool MWidget::openObjectMenu(const QPointF &scenePosition)
{
    const QList<QAction *> offered = actions();
    const bool hasVisible = std::any_of(offered.begin(), offered.end(),
                                        [](const QAction *action) { return action->isVisible(); });
    return hasVisible && theOpener && theOpener(this, scenePosition);
}

void MWidget::enterDisplayEvent()
{
    Q_EMIT displayEntered();
}

void MWidget::exitDisplayEvent()
{
    Q_EMIT displayExited();
}

void MWidget::cancelEvent() { }

void MWidget::contextMenuEvent(QGraphicsSceneContextMenuEvent *event)
{
    event->setAccepted(openObjectMenu(event->scenePos()));
}

void MWidget::keyPressEvent(QKeyEvent *event)
{
    if (isMenuKey(*event) && openObjectMenu(keyboardMenuPosition(*this)))
        event->accept();
    else
        QGraphicsWidget::keyPressEvent(event);
}

QVariant MWidget::itemChange(GraphicsItemChange change, const QVariant &value)
{
    const QVariant result = QGraphicsWidget::itemChange(change, value);
    if (change == ItemParentHasChanged) {
        auto *above = dynamic_cast<MWidget *>(parentItem());
        updateDisplayState(this, above && above->d->isOnDisplay);
    } else if (change == ItemVisibleHasChanged) {
        updateDisplayState(this, d->isSceneWindowShown);
    }
    return result;
}

bool MWidget::event(QEvent *event)
{
    if (event->type() == MCancelEvent::eventType()) {
        cancelEvent();
        return true;
    }
    return QGraphicsWidget::event(event);
}

MCancelEvent::MCancelEvent() : QEvent(eventType()) { }

QEvent::Type MCancelEvent::eventType()
{
    static const auto type = QEvent::Type(QEvent::registerEventType());
    return type;
}
