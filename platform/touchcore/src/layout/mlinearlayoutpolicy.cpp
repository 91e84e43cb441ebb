// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mlinearlayoutpolicy.h>

#include <QGraphicsLinearLayout>

MLinearLayoutPolicy::MLinearLayoutPolicy(MLayout *layout, Qt::Orientation orientation)
    : MAbstractLayoutPolicy(layout, new QGraphicsLinearLayout(orientation)),
      m_row(static_cast<QGraphicsLinearLayout *>(arrangement()))
{
    m_row->setSpacing(0);
}

MLinearLayoutPolicy::~MLinearLayoutPolicy() = default;

Qt::Orientation MLinearLayoutPolicy::orientation() const
{
    return m_row->orientation();
}

void MLinearLayoutPolicy::setOrientation(Qt::Orientation orientation)
{
    m_row->setOrientation(orientation);
    arrangementChanged();
}

void MLinearLayoutPolicy::addItem(QGraphicsLayoutItem *item, Qt::Alignment alignment)
{
    insertItem(-1, item, alignment);
}

void MLinearLayoutPolicy::insertItem(int index, QGraphicsLayoutItem *item, Qt::Alignment alignment)
{
    QGraphicsLayoutItem *standIn = adopt(item);
    if (!standIn)
        return;
    m_row->insertItem(place(index), standIn);
    m_places.insert(place(index), standIn);
    m_row->setAlignment(standIn, alignment);
    arrangementChanged();
}

QVector<QGraphicsLayoutItem *> MLinearLayoutPolicy::items() const
{
    QVector<QGraphicsLayoutItem *> held;
    for (const QGraphicsLayoutItem *standIn : m_places) {
        if (standIn)
            held.append(itemOf(standIn));
    }
    return held;
}

void MLinearLayoutPolicy::addStretch(int stretch)
{
    insertStretch(-1, stretch);
}

void MLinearLayoutPolicy::insertStretch(int index, int stretch)
{
    m_row->insertStretch(place(index), stretch);
    m_places.insert(place(index), nullptr);
    arrangementChanged();
}

void MLinearLayoutPolicy::setSpacing(qreal spacing)
{
    m_row->setSpacing(spacing);
    arrangementChanged();
}

qreal MLinearLayoutPolicy::spacing() const
{
    return m_row->spacing();
}

void MLinearLayoutPolicy::setItemSpacing(int index, qreal spacing)
{
    m_row->setItemSpacing(index, spacing);
    arrangementChanged();
}

void MLinearLayoutPolicy::setAlignment(QGraphicsLayoutItem *item, Qt::Alignment alignment)
{
    if (QGraphicsLayoutItem *place = standIn(item)) {
        m_row->setAlignment(place, alignment);
        arrangementChanged();
    }
}

void MLinearLayoutPolicy::setStretchFactor(QGraphicsLayoutItem *item, int stretch)
{
    if (QGraphicsLayoutItem *place = standIn(item)) {
        m_row->setStretchFactor(place, stretch);
        arrangementChanged();
    }
}

void MLinearLayoutPolicy::removeStandIn(QGraphicsLayoutItem *standIn)
{
    m_row->removeItem(standIn);
    m_places.removeOne(standIn);
}

int MLinearLayoutPolicy::place(int index) const
{
    return index < 0 ? m_places.size() : qMin(index, m_places.size());
}
