// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MABSTRACTLAYOUTPOLICY_H
#define TOUCHCORE_MABSTRACTLAYOUTPOLICY_H

#include <QVector>
#include <Qt>

#include <memory>

class LayoutStandIn;
class MAbstractLayoutPolicyPrivate;
class MLayout;
class QGraphicsLayout;
class QGraphicsLayoutItem;
class QRectF;
class QSizeF;

/// One way to arrange the items of an MLayout.
///
/// Made for one layout, which owns it. An item can be in one Qt layout only, so a policy arranges
/// stand-ins in a private layout; they hand the items' size hints in and the geometry out.
class MAbstractLayoutPolicy
{
public:
    virtual ~MAbstractLayoutPolicy();
    MAbstractLayoutPolicy(const MAbstractLayoutPolicy &) = delete;
    MAbstractLayoutPolicy &operator=(const MAbstractLayoutPolicy &) = delete;

    MLayout *layout() const;
    bool isActive() const;
    /// As MLayout::setPolicy() with this policy.
    void activate();

    /// The items in the order of their places.
    virtual QVector<QGraphicsLayoutItem *> items() const = 0;
    int count() const;
    /// Null for an index out of range.
    QGraphicsLayoutItem *itemAt(int index) const;
    /// -1 when the policy does not hold \a item.
    int indexOf(const QGraphicsLayoutItem *item) const;
    bool contains(const QGraphicsLayoutItem *item) const;

    /// An item that no policy holds any more leaves the layout, visible as before it came. Unknown
    /// items are ignored.
    void removeItem(QGraphicsLayoutItem *item);

    /// 0 by default on all sides, in pixels. The margins lie inside those of the layout.
    void setContentsMargins(qreal left, qreal top, qreal right, qreal bottom);

protected:
    /// \a arrangement: the private layout, owned from now on.
    MAbstractLayoutPolicy(MLayout *layout, QGraphicsLayout *arrangement);

    /// Makes the stand-in that takes the place of \a item in the private layout, and adds the item
    /// to the MLayout. Null when the policy holds the item already.
    QGraphicsLayoutItem *adopt(QGraphicsLayoutItem *item);
    /// The stand-in of \a item, or null.
    QGraphicsLayoutItem *standIn(const QGraphicsLayoutItem *item) const;
    /// The item whose place \a standIn takes.
    static QGraphicsLayoutItem *itemOf(const QGraphicsLayoutItem *standIn);
    QGraphicsLayout *arrangement() const;
    /// To be called after the items or their arrangement changed.
    void arrangementChanged();

    /// Takes a stand-in out of the private layout.
    virtual void removeStandIn(QGraphicsLayoutItem *standIn) = 0;

private:
    friend class MLayout;
    friend class MLayoutPrivate;
    void drop(QGraphicsLayoutItem *item);
    void arrange(const QRectF &rect);
    QSizeF arrangedSizeHint(Qt::SizeHint which, const QSizeF &constraint) const;
    void refresh();

    std::unique_ptr<MAbstractLayoutPolicyPrivate> d;
};

#endif
