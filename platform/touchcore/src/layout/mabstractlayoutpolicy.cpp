// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "layoutstandin.h"
#include "mlayout_p.h"

#include <touchcore/mabstractlayoutpolicy.h>

#include <QHash>

class MAbstractLayoutPolicyPrivate
{
public:
    MLayout *layout = nullptr;
    std::unique_ptr<QGraphicsLayout> arrangement;
    QHash<const QGraphicsLayoutItem *, LayoutStandIn *> standIns;
};

MAbstractLayoutPolicy::MAbstractLayoutPolicy(MLayout *layout, QGraphicsLayout *arrangement)
    : d(std::make_unique<MAbstractLayoutPolicyPrivate>())
{
    d->layout = layout;
    d->arrangement.reset(arrangement);
    arrangement->setContentsMargins(0, 0, 0, 0);
    // The layout direction is looked up through the parents.
    arrangement->setParentLayoutItem(layout);
    layout->d->policies.append(this);
}

MAbstractLayoutPolicy::~MAbstractLayoutPolicy()
{
    // A layout that goes looks for itself among the items of its parent.
    d->arrangement->setParentLayoutItem(nullptr);
    d->arrangement.reset();
    qDeleteAll(d->standIns);
    d->standIns.clear();
    d->layout->d->forget(this);
}

MLayout *MAbstractLayoutPolicy::layout() const
{
    return d->layout;
}

bool MAbstractLayoutPolicy::isActive() const
{
    return d->layout->policy() == this;
}

void MAbstractLayoutPolicy::activate()
{
    d->layout->setPolicy(this);
}

int MAbstractLayoutPolicy::count() const
{
    return d->standIns.size();
}

QGraphicsLayoutItem *MAbstractLayoutPolicy::itemAt(int index) const
{
    return items().value(index);
}

int MAbstractLayoutPolicy::indexOf(const QGraphicsLayoutItem *item) const
{
    return items().indexOf(const_cast<QGraphicsLayoutItem *>(item));
}

bool MAbstractLayoutPolicy::contains(const QGraphicsLayoutItem *item) const
{
    return d->standIns.contains(item);
}

void MAbstractLayoutPolicy::removeItem(QGraphicsLayoutItem *item)
{
    if (!contains(item))
        return;
    drop(item);
    d->layout->d->releaseUnheld();
    arrangementChanged();
}

void MAbstractLayoutPolicy::setContentsMargins(qreal left, qreal top, qreal right, qreal bottom)
{
    d->arrangement->setContentsMargins(left, top, right, bottom);
    arrangementChanged();
}

QGraphicsLayoutItem *MAbstractLayoutPolicy::adopt(QGraphicsLayoutItem *item)
{
    if (contains(item))
        return nullptr;
    d->layout->d->adopt(item);
    auto *standIn = new LayoutStandIn(item);
    d->standIns.insert(item, standIn);
    return standIn;
}

QGraphicsLayoutItem *MAbstractLayoutPolicy::standIn(const QGraphicsLayoutItem *item) const
{
    return d->standIns.value(item);
}

QGraphicsLayoutItem *MAbstractLayoutPolicy::itemOf(const QGraphicsLayoutItem *standIn)
{
    return static_cast<const LayoutStandIn *>(standIn)->item();
}

QGraphicsLayout *MAbstractLayoutPolicy::arrangement() const
{
    return d->arrangement.get();
}

void MAbstractLayoutPolicy::arrangementChanged()
{
    d->layout->d->updateVisibility();
    d->layout->invalidate();
}

void MAbstractLayoutPolicy::drop(QGraphicsLayoutItem *item)
{
    if (LayoutStandIn *standIn = d->standIns.take(item)) {
        removeStandIn(standIn);
        delete standIn;
    }
}

void MAbstractLayoutPolicy::arrange(const QRectF &rect)
{
    d->arrangement->setGeometry(rect);
}

QSizeF MAbstractLayoutPolicy::arrangedSizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    return d->arrangement->effectiveSizeHint(which, constraint);
}

void MAbstractLayoutPolicy::refresh()
{
    for (LayoutStandIn *standIn : qAsConst(d->standIns))
        standIn->refresh();
    d->arrangement->invalidate();
}
