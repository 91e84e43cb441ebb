// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_LAYOUTSTANDIN_H
#define TOUCHCORE_LAYOUTSTANDIN_H

#include <QGraphicsLayoutItem>

/// Takes the place of an item in the private layout of a policy: asks the item for its size hints
/// and hands it its geometry. Owned by the policy; the item is not.
class LayoutStandIn : public QGraphicsLayoutItem
{
public:
    explicit LayoutStandIn(QGraphicsLayoutItem *item);

    QGraphicsLayoutItem *item() const { return m_item; }
    /// The item's hints or its size policy may have changed.
    void refresh();

    void setGeometry(const QRectF &rect) override;

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override;

private:
    QGraphicsLayoutItem *m_item;
};

#endif
