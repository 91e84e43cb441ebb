// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mgridlayoutpolicy.h>

#include <QGraphicsGridLayout>

MGridLayoutPolicy::MGridLayoutPolicy(MLayout *layout)
    : MAbstractLayoutPolicy(layout, new QGraphicsGridLayout),
      m_grid(static_cast<QGraphicsGridLayout *>(arrangement()))
{
    m_grid->setSpacing(0);
}

MGridLayoutPolicy::~MGridLayoutPolicy() = default;

void MGridLayoutPolicy::addItem(QGraphicsLayoutItem *item, int row, int column, int rowSpan,
                                int columnSpan, Qt::Alignment alignment)
{
    if (row < 0 || column < 0 || rowSpan < 1 || columnSpan < 1 || itemAtCell(row, column)) {
        qWarning("MGridLayoutPolicy: the cell %d, %d cannot take an item.", row, column);
        return;
    }
    QGraphicsLayoutItem *standIn = adopt(item);
    if (!standIn)
        return;
    m_grid->addItem(standIn, row, column, rowSpan, columnSpan, alignment);
    arrangementChanged();
}

QVector<QGraphicsLayoutItem *> MGridLayoutPolicy::items() const
{
    QVector<QGraphicsLayoutItem *> held;
    for (int i = 0; i < m_grid->count(); ++i)
        held.append(itemOf(m_grid->itemAt(i)));
    return held;
}

QGraphicsLayoutItem *MGridLayoutPolicy::itemAtCell(int row, int column) const
{
    if (row >= m_grid->rowCount() || column >= m_grid->columnCount())
        return nullptr;
    const QGraphicsLayoutItem *standIn = m_grid->itemAt(row, column);
    return standIn ? itemOf(standIn) : nullptr;
}

int MGridLayoutPolicy::rowCount() const
{
    return m_grid->rowCount();
}

int MGridLayoutPolicy::columnCount() const
{
    return m_grid->columnCount();
}

void MGridLayoutPolicy::setSpacing(qreal spacing)
{
    m_grid->setSpacing(spacing);
    arrangementChanged();
}

void MGridLayoutPolicy::setHorizontalSpacing(qreal spacing)
{
    m_grid->setHorizontalSpacing(spacing);
    arrangementChanged();
}

void MGridLayoutPolicy::setVerticalSpacing(qreal spacing)
{
    m_grid->setVerticalSpacing(spacing);
    arrangementChanged();
}

void MGridLayoutPolicy::setRowStretchFactor(int row, int stretch)
{
    m_grid->setRowStretchFactor(row, stretch);
    arrangementChanged();
}

void MGridLayoutPolicy::setColumnStretchFactor(int column, int stretch)
{
    m_grid->setColumnStretchFactor(column, stretch);
    arrangementChanged();
}

void MGridLayoutPolicy::setRowFixedHeight(int row, qreal height)
{
    m_grid->setRowFixedHeight(row, height);
    arrangementChanged();
}

void MGridLayoutPolicy::setColumnFixedWidth(int column, qreal width)
{
    m_grid->setColumnFixedWidth(column, width);
    arrangementChanged();
}

void MGridLayoutPolicy::removeStandIn(QGraphicsLayoutItem *standIn)
{
    for (int i = 0; i < m_grid->count(); ++i) {
        if (m_grid->itemAt(i) == standIn) {
            m_grid->removeAt(i);
            return;
        }
    }
}
