// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MGRIDLAYOUTPOLICY_H
#define TOUCHCORE_MGRIDLAYOUTPOLICY_H

#include <touchcore/mabstractlayoutpolicy.h>

#include <Qt>

class QGraphicsGridLayout;

/// Rows and columns, numbered from 0; the first column stands at the start of the layout direction.
class MGridLayoutPolicy : public MAbstractLayoutPolicy
{
public:
    explicit MGridLayoutPolicy(MLayout *layout);
    ~MGridLayoutPolicy() override;

    /// An item that is in the policy already stays where it is. A cell that is taken is refused
    /// with a warning, as is a span below 1.
    void addItem(QGraphicsLayoutItem *item, int row, int column, int rowSpan = 1,
                 int columnSpan = 1, Qt::Alignment alignment = Qt::Alignment());
    QVector<QGraphicsLayoutItem *> items() const override;
    /// The item of a cell, or null.
    QGraphicsLayoutItem *itemAtCell(int row, int column) const;
    int rowCount() const;
    int columnCount() const;

    /// Between rows and between columns, in pixels; 0 by default.
    void setSpacing(qreal spacing);
    void setHorizontalSpacing(qreal spacing);
    void setVerticalSpacing(qreal spacing);

    void setRowStretchFactor(int row, int stretch);
    void setColumnStretchFactor(int column, int stretch);
    /// In pixels.
    void setRowFixedHeight(int row, qreal height);
    void setColumnFixedWidth(int column, qreal width);

protected:
    void removeStandIn(QGraphicsLayoutItem *standIn) override;

private:
    QGraphicsGridLayout *m_grid;
};

#endif
