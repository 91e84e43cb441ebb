// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_TESTS_LISTSCREEN_H
#define TOUCHCORE_TESTS_LISTSCREEN_H

#include "touchscreen.h"

#include <touchcore/mcellcreator.h>
#include <touchcore/mlist.h>
#include <touchcore/mpannableviewport.h>

#include <QItemSelectionModel>
#include <QStandardItemModel>

/// A cell that shows the display text, as high as the row's user data says (50 without).
class Row : public MWidget
{
    Q_OBJECT
    Q_PROPERTY(bool selected MEMBER isSelected)

public:
    explicit Row(QGraphicsItem *parent = nullptr) : MWidget(parent) { ++made; }

    void setHeight(qreal newHeight)
    {
        height = newHeight;
        updateGeometry();
    }

    QString text;
    qreal height = 50;
    bool isSelected = false;
    static inline int made = 0;

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override
    {
        if (which == Qt::MaximumSize)
            return {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
        // Half as wide, twice as high.
        const qreal wrapped = constraint.width() > 0 ? height * 360 / constraint.width() : height;
        return which == Qt::PreferredSize ? QSizeF(100, wrapped) : QSizeF(0, 0);
    }
};

class RowCreator : public MAbstractCellCreator<Row>
{
public:
    void updateCell(const QModelIndex &index, MWidget *cell) const override
    {
        auto *row = static_cast<Row *>(cell);
        row->text = index.data().toString();
        const QVariant height = index.data(Qt::UserRole);
        row->setHeight(height.isValid() ? height.toReal() : 50);
    }
    QSizeF cellSize() const override { return {100, 50}; }
};

/// A list of 360 by 400 pixels in a viewport that begins 100 pixels below the window's top.
class ListScreen : public TouchScreen
{
public:
    explicit ListScreen(MList *shownList = new MList)
        : viewport(new MPannableViewport), list(shownList)
    {
        Row::made = 0;
        scene.addItem(viewport);
        viewport->setGeometry(0, 100, 360, 400);
        viewport->setWidget(list);
        viewport->physics()->advance(0);
        list->setCellCreator(new RowCreator);
        list->setHeaderCreator(new RowCreator);
    }

    /// Groups "0", "1" ... of \a rowsPerGroup rows "0.0", "0.1" ...; flat without groups.
    void fill(int groups, int rowsPerGroup, qreal (*heightOf)(int) = nullptr)
    {
        list->setItemModel(nullptr);
        model.clear();
        int number = 0;
        for (int group = 0; group < groups; ++group)
            model.appendRow(newGroup(QString::number(group), rowsPerGroup, heightOf, &number));
        list->setShowGroups(rowsPerGroup > 0);
        list->setItemModel(&model);
        layOut();
    }

    static QStandardItem *newRow(const QString &text, qreal height = 50)
    {
        auto *item = new QStandardItem(text);
        item->setData(height, Qt::UserRole);
        return item;
    }

    static QStandardItem *newGroup(const QString &name, int count, qreal (*heightOf)(int) = nullptr,
                                   int *number = nullptr)
    {
        int own = 0;
        int *next = number ? number : &own;
        QStandardItem *group = newRow(name, heightOf ? heightOf((*next)++) : 50);
        for (int i = 0; i < count; ++i)
            group->appendRow(newRow(QStringLiteral("%1.%2").arg(name).arg(i),
                                    heightOf ? heightOf((*next)++) : 50));
        return group;
    }

    QModelIndex index(int group, int row = -1) const
    {
        const QModelIndex header = model.index(group, 0);
        return row < 0 ? header : model.index(row, 0, header);
    }

    qreal y() const { return viewport->position().y(); }
    MPhysics2DPanning *physics() const { return viewport->physics(); }
    Row *cellAt(const QModelIndex &place) const { return static_cast<Row *>(list->cellAt(place)); }
    /// Where a row is seen, counted from the viewport's top.
    qreal seenAt(const QModelIndex &place) const
    {
        const Row *cell = cellAt(place);
        return cell ? cell->mapToItem(viewport, 0, 0).y() : qQNaN();
    }

    /// All rows of the model, from the first to the last.
    QModelIndexList allRows() const
    {
        QModelIndexList rows;
        for (int group = 0; group < model.rowCount(); ++group) {
            rows << index(group);
            for (int row = 0; list->showGroups() && row < model.rowCount(index(group)); ++row)
                rows << index(group, row);
        }
        return rows;
    }

    /// What is wrong with what is seen: each row in its cell, one below the other without a gap,
    /// from the top of the view to its end, and nothing else. Empty when all is right.
    QString fault() const
    {
        const QModelIndexList rows = allRows();
        const QModelIndexList visible = list->visibleItems();
        int next = visible.isEmpty() ? 0 : rows.indexOf(visible.first());
        qreal end = qQNaN();
        for (const QModelIndex &shown : visible) {
            const Row *cell = cellAt(shown);
            if (shown != rows.value(next++))
                return QStringLiteral("%1 is out of order").arg(shown.data().toString());
            if (!cell || !cell->isVisible() || cell->text != shown.data().toString())
                return QStringLiteral("no cell shows %1").arg(shown.data().toString());
            if (list->indexOf(cell) != shown)
                return QStringLiteral("the cell does not know %1").arg(shown.data().toString());
            if (cell->size() != QSizeF(360, shown.data(Qt::UserRole).toReal()))
                return QStringLiteral("%1 has another size").arg(cell->text);
            const bool isFree = !list->stickyHeaders() || shown.parent().isValid();
            if (isFree && !qIsNaN(end) && seenAt(shown) != end)
                return QStringLiteral("%1 is not below its neighbour").arg(cell->text);
            end = isFree ? seenAt(shown) + cell->size().height() : qQNaN();
        }
        if (!rows.isEmpty() && (visible.isEmpty() || (end < 400 && next < rows.size())))
            return QStringLiteral("rows are missing");
        const qreal start = visible.isEmpty() ? 0 : seenAt(visible.first());
        if (!list->stickyHeaders() && start > 0 && !(visible.first() == rows.first()))
            return QStringLiteral("rows are missing above");
        int shownCells = 0;
        const QList<QGraphicsItem *> cells = list->childItems();
        for (const QGraphicsItem *cell : cells)
            shownCells += cell->isVisible() ? 1 : 0;
        if (shownCells > visible.size() + (list->stickyHeaders() ? 1 : 0))
            return QStringLiteral("more cells than rows in view");
        return QString();
    }

    QStandardItemModel model;
    MPannableViewport *viewport;
    MList *list;
};

#endif
