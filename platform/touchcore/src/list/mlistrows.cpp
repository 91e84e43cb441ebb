// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mlist_p.h"

#include <touchcore/mpannableviewport.h>

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QEvent>

#include <cmath>

void MListPrivate::followModel()
{
    modelContext.reset();
    QAbstractItemModel *model = rows.model();
    if (!model)
        return;
    modelContext = std::make_unique<QObject>();
    QObject *context = modelContext.get();
    using Model = QAbstractItemModel;
    QObject::connect(model, &Model::rowsInserted, context,
                     [this](const QModelIndex &parent, int first, int last) {
                         rows.insert(parent, first, last);
                         rowsChanged();
                     });
    QObject::connect(model, &Model::rowsRemoved, context,
                     [this](const QModelIndex &parent, int first, int last) {
                         rows.remove(parent, first, last);
                         rowsChanged();
                     });
    QObject::connect(model, &Model::rowsMoved, context, [this] { rebuildRows(); });
    QObject::connect(model, &Model::layoutChanged, context, [this] { rebuildRows(); });
    QObject::connect(model, &Model::modelReset, context, [this] { reset(); });
    QObject::connect(model, &Model::destroyed, context, [this] { q->setItemModel(nullptr); });
    QObject::connect(model, &Model::dataChanged, context,
                     [this](const QModelIndex &topLeft, const QModelIndex &bottomRight) {
                         dataChanged(topLeft, bottomRight);
                     });
}

void MListPrivate::reset()
{
    recycleAll();
    rebuildRows();
}

void MListPrivate::rebuildRows()
{
    // A finger is put on whole pixels: no text may stand between two.
    const qreal cellHeight = cellCreator ? std::ceil(cellCreator->cellSize().height()) : 0;
    const qreal headerHeight = rows.hasGroups() ? std::ceil(headerCreator->cellSize().height()) : 0;
    rows.setEstimates(cellHeight, headerHeight);
    rows.rebuild();
    rowsChanged();
}

void MListPrivate::rowsChanged()
{
    haveRowsChanged = true;
    relocateCells();
    tellHeight();
}

void MListPrivate::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight)
{
    const int first = rows.row(topLeft.siblingAtColumn(0));
    const int last = rows.row(bottomRight.siblingAtColumn(0));
    if (first < 0 || last < first)
        return;
    const QModelIndex parent = topLeft.parent();
    for (const ListCell &cell : cells) {
        const QModelIndex index = cell.index;
        if (index.parent() == parent && index.row() >= topLeft.row()
            && index.row() <= bottomRight.row())
            creatorOf(cell.isHeader).updateCell(index, cell.widget);
    }
    rows.heights.forget(first, last - first + 1);
    requestLayout();
}

void MListPrivate::tellHeight()
{
    toldHeight = rows.heights.total();
    // The viewport is the first to know: it makes room, then gives all below it their geometry. A
    // layout that came first would give the list the room that there was.
    if (viewport)
        QCoreApplication::postEvent(viewport, new QEvent(QEvent::LayoutRequest));
    q->updateGeometry();
    for (QGraphicsWidget *above = q->parentWidget(); above && above != viewport;
         above = above->parentWidget())
        static_cast<QGraphicsLayoutItem *>(above)->updateGeometry();
    requestLayout();
}

void MListPrivate::requestLayout()
{
    QCoreApplication::postEvent(q, new QEvent(QEvent::LayoutRequest));
}
