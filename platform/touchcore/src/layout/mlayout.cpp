// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "layoutorientation.h"
#include "mlayout_p.h"

#include <touchcore/mabstractlayoutpolicy.h>
#include <touchcore/mtheme.h>

#include <QGraphicsItem>
#include <QWidget>

namespace
{
/// Every layout there is: few enough to tell each when the window is turned.
QSet<MLayoutPrivate *> &layouts()
{
    static QSet<MLayoutPrivate *> known;
    return known;
}
} // namespace

void setLayoutOrientation(M::Orientation orientation)
{
    const QSet<MLayoutPrivate *> known = layouts();
    for (MLayoutPrivate *layout : known)
        layout->choosePolicy(orientation);
}

MLayoutPrivate::MLayoutPrivate(MLayout *layout) : q(layout)
{
    layouts().insert(this);
}

MLayoutPrivate::~MLayoutPrivate()
{
    layouts().remove(this);
}

void MLayoutPrivate::choosePolicy(M::Orientation orientation)
{
    q->setPolicy(orientation == M::Landscape ? landscapePolicy : portraitPolicy);
}

void MLayoutPrivate::adopt(QGraphicsLayoutItem *item)
{
    if (items.contains(item))
        return;
    q->addChildLayoutItem(item);
    items.append(item);
}

void MLayoutPrivate::releaseUnheld()
{
    const QVector<QGraphicsLayoutItem *> known = items;
    for (QGraphicsLayoutItem *item : known) {
        bool isHeld = false;
        for (const MAbstractLayoutPolicy *holder : qAsConst(policies))
            isHeld = isHeld || holder->contains(item);
        if (!isHeld)
            release(item);
    }
    updateVisibility();
}

void MLayoutPrivate::release(QGraphicsLayoutItem *item)
{
    items.removeOne(item);
    item->setParentLayoutItem(nullptr);
    // An item that is being destroyed has left its parent already.
    if (hiddenItems.remove(item) && item->graphicsItem()->parentItem())
        item->graphicsItem()->show();
}

void MLayoutPrivate::updateVisibility()
{
    if (!policy)
        return;
    for (QGraphicsLayoutItem *item : qAsConst(items)) {
        QGraphicsItem *shown = item->graphicsItem();
        if (!shown)
            continue;
        if (policy->contains(item)) {
            if (hiddenItems.remove(item))
                shown->show();
        } else if (shown->isVisible()) {
            shown->hide();
            hiddenItems.insert(item);
        }
    }
}

void MLayoutPrivate::refreshPolicies()
{
    for (MAbstractLayoutPolicy *known : qAsConst(policies))
        known->refresh();
}

void MLayoutPrivate::forget(MAbstractLayoutPolicy *gone)
{
    policies.removeOne(gone);
    for (MAbstractLayoutPolicy **role : {&policy, &landscapePolicy, &portraitPolicy}) {
        if (*role == gone)
            *role = nullptr;
    }
    releaseUnheld();
}

MLayout::MLayout(QGraphicsLayoutItem *parent)
    : QGraphicsLayout(parent), d(std::make_unique<MLayoutPrivate>(this))
{
    setContentsMargins(0, 0, 0, 0);
}

MLayout::~MLayout()
{
    d->policy = nullptr;
    QVector<QGraphicsLayoutItem *> items;
    items.swap(d->items);
    while (!d->policies.isEmpty())
        delete d->policies.last();
    for (QGraphicsLayoutItem *item : qAsConst(items)) {
        // A widget that is being destroyed has taken its children out of its layout already.
        if (item->parentLayoutItem() == this)
            d->release(item);
        if (item->ownedByLayout())
            delete item;
    }
}

void MLayout::setPolicy(MAbstractLayoutPolicy *policy)
{
    if (!policy || policy == d->policy)
        return;
    Q_ASSERT(policy->layout() == this);
    d->policy = policy;
    d->updateVisibility();
    invalidate();
}

MAbstractLayoutPolicy *MLayout::policy() const
{
    return d->policy;
}

void MLayout::setLandscapePolicy(MAbstractLayoutPolicy *policy)
{
    d->landscapePolicy = policy;
    d->choosePolicy(MTheme::instance()->orientation());
}

MAbstractLayoutPolicy *MLayout::landscapePolicy() const
{
    return d->landscapePolicy;
}

void MLayout::setPortraitPolicy(MAbstractLayoutPolicy *policy)
{
    d->portraitPolicy = policy;
    d->choosePolicy(MTheme::instance()->orientation());
}

MAbstractLayoutPolicy *MLayout::portraitPolicy() const
{
    return d->portraitPolicy;
}

int MLayout::count() const
{
    return d->items.size();
}

QGraphicsLayoutItem *MLayout::itemAt(int index) const
{
    return d->items.value(index);
}

void MLayout::removeAt(int index)
{
    if (QGraphicsLayoutItem *item = d->items.value(index))
        removeItem(item);
}

void MLayout::removeItem(QGraphicsLayoutItem *item)
{
    if (!d->items.contains(item))
        return;
    for (MAbstractLayoutPolicy *policy : qAsConst(d->policies))
        policy->drop(item);
    d->release(item);
    invalidate();
}

void MLayout::setGeometry(const QRectF &rect)
{
    QGraphicsLayout::setGeometry(rect);
    if (!d->policy)
        return;
    qreal left, top, right, bottom;
    getContentsMargins(&left, &top, &right, &bottom);
    d->policy->arrange(geometry().adjusted(left, top, -right, -bottom));
}

void MLayout::invalidate()
{
    d->refreshPolicies();
    QGraphicsLayout::invalidate();
}

void MLayout::updateGeometry()
{
    // Inside another layout this is all that is called when an item's hints change.
    d->refreshPolicies();
    QGraphicsLayout::updateGeometry();
}

QSizeF MLayout::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    if (!d->policy)
        return which == Qt::MaximumSize ? QSizeF(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : QSizeF(0, 0);
    qreal left, top, right, bottom;
    getContentsMargins(&left, &top, &right, &bottom);
    const QSizeF margins(left + right, top + bottom);
    const QSizeF inner(constraint.width() < 0 ? -1 : constraint.width() - margins.width(),
                       constraint.height() < 0 ? -1 : constraint.height() - margins.height());
    return d->policy->arrangedSizeHint(which, inner) + margins;
}
