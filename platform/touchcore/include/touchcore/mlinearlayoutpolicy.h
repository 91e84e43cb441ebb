// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MLINEARLAYOUTPOLICY_H
#define TOUCHCORE_MLINEARLAYOUTPOLICY_H

#include <touchcore/mabstractlayoutpolicy.h>

#include <Qt>

class QGraphicsLinearLayout;

/// A row or a column. Rows run from the start of the layout direction.
class MLinearLayoutPolicy : public MAbstractLayoutPolicy
{
public:
    MLinearLayoutPolicy(MLayout *layout, Qt::Orientation orientation);
    ~MLinearLayoutPolicy() override;

    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation orientation);

    /// An item that is in the policy already stays where it is.
    void addItem(QGraphicsLayoutItem *item, Qt::Alignment alignment = Qt::Alignment());
    /// \a index counts items and stretches; below 0 or past the last one adds at the end.
    void insertItem(int index, QGraphicsLayoutItem *item,
                    Qt::Alignment alignment = Qt::Alignment());
    QVector<QGraphicsLayoutItem *> items() const override;

    /// Room that takes its share, by \a stretch, of what the items leave.
    void addStretch(int stretch = 1);
    void insertStretch(int index, int stretch = 1);

    /// Between two items, in pixels; 0 by default.
    void setSpacing(qreal spacing);
    qreal spacing() const;
    /// In place of spacing() between the item at \a index and the next.
    void setItemSpacing(int index, qreal spacing);

    /// Calls for an item that the policy does not hold are ignored.
    void setAlignment(QGraphicsLayoutItem *item, Qt::Alignment alignment);
    void setStretchFactor(QGraphicsLayoutItem *item, int stretch);

protected:
    void removeStandIn(QGraphicsLayoutItem *standIn) override;

private:
    int place(int index) const;

    QGraphicsLinearLayout *m_row;
    /// What stands in the row in its order, null for a stretch: the row counts only its items, in
    /// the order in which they came.
    QVector<QGraphicsLayoutItem *> m_places;
};

#endif
