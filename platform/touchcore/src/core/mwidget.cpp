// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "objectmenuhook.h"

#include <touchcore/mwidget.h>

#include <QAction>
#include <QGraphicsScene>
#include <QGraphicsSceneContextMenuEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QVector>

#include <algorithm>

namespace
{
ObjectMenuOpener theOpener = nullptr;

/// Where the menu opens when no pointer says where.
QPointF keyboardMenuPosition(const QGraphicsWidget &widget)
{
    return widget.mapToScene(widget.rect().center());
}

bool isMenuKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Menu
        || (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

MWidget *asMWidget(QGraphicsItem *item)
{
    return item->isWidget() ? qobject_cast<MWidget *>(item->toGraphicsObject()) : nullptr;
}

/// Whether what stands below \a parent is shown, as far as it is not hidden itself.
bool isShownBelow(QGraphicsItem *parent)
{
    if (!parent || !parent->isVisible())
        return false;
    for (QGraphicsItem *item = parent; item; item = item->parentItem()) {
        if (const MWidget *widget = asMWidget(item))
            return widget->isOnDisplay();
    }
    return false;
}

struct Branch {
    QPointer<MWidget> widget;
    bool isShown; ///< all that stands above it
};

void collectWidgets(QGraphicsItem *root, bool isShown, QVector<Branch> *found)
{
    if (MWidget *widget = asMWidget(root))
        found->append({widget, isShown});
    const QList<QGraphicsItem *> children = root->childItems();
    for (QGraphicsItem *child : children)
        collectWidgets(child, isShown && root->isVisible(), found);
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
    /// Of the scene window and all else above; the widget is on display when it is visible, too.
    bool isBranchShown = false;
};

MWidget::MWidget(QGraphicsItem *parent)
    : QGraphicsWidget(parent), d(std::make_unique<MWidgetPrivate>())
{
    // It enters the display when the scene has polished it: now its class is not complete.
    d->isBranchShown = isShownBelow(parent);
}

/// While a QGraphicsWidget goes, it tells what it thinks is its parent that its size changed: a
/// parent that laid it out by hand, without a layout, is no longer there then.
MWidget::~MWidget()
{
    if (parentLayoutItem() && !parentLayoutItem()->isLayout())
        setParentLayoutItem(nullptr);
}

bool MWidget::isOnDisplay() const
{
    return d->isOnDisplay;
}

void MWidget::updateDisplayState(QGraphicsItem *root, bool isOnDisplay)
{
    // All are found first: what hears of its display may show, hide or delete others.
    QVector<Branch> branches;
    collectWidgets(root, isOnDisplay, &branches);
    for (const Branch &branch : qAsConst(branches))
        branch.widget->d->isBranchShown = branch.isShown;
    for (const Branch &branch : qAsConst(branches)) {
        if (branch.widget)
            branch.widget->announceDisplay();
    }
}

void MWidget::announceDisplay()
{
    const bool isShown = d->isBranchShown && isVisible();
    if (d->isOnDisplay == isShown)
        return;
    d->isOnDisplay = isShown;
    if (isShown)
        enterDisplayEvent();
    else
        exitDisplayEvent();
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
    QVariant result = QGraphicsWidget::itemChange(change, value);
    if (change == ItemParentHasChanged) {
        // Qt hands the direction down in the constructor only.
        if (!testAttribute(Qt::WA_SetLayoutDirection))
            unsetLayoutDirection();
        updateDisplayState(this, isShownBelow(parentItem()));
    } else if (change == ItemVisibleHasChanged) {
        updateDisplayState(this, d->isBranchShown);
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
