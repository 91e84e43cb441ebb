// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MCELLCREATOR_H
#define TOUCHCORE_MCELLCREATOR_H

#include <touchcore/mwidget.h>
#include <touchcore/mwidgetrecycler.h>

#include <QModelIndex>
#include <QSizeF>

#include <memory>

/// Makes the cells of a list, or its group headers: a widget per row that is in view.
///
/// Given to a list, which owns it then. A cell's height is its preferred height for the list's
/// width. Cells are no stops of the Tab key: the list is one for all of them, and passes keys on to
/// the cell of the current row.
class MCellCreator
{
public:
    MCellCreator() = default;
    virtual ~MCellCreator() = default;
    Q_DISABLE_COPY(MCellCreator)

    /// A cell that shows the row \a index: one of \a recycler if it has one of the class, else a
    /// new one. Whatever differs between rows has to be set, as the cell may have shown another
    /// one. The list owns it.
    virtual MWidget *createCell(const QModelIndex &index, MWidgetRecycler &recycler) const = 0;
    /// The data of the row \a index changed, which \a cell shows.
    virtual void updateCell(const QModelIndex &index, MWidget *cell) const = 0;
    /// The size to reckon with for rows that have not been in view yet.
    virtual QSizeF cellSize() const = 0;
    /// \a cell went out of view. The base does nothing.
    virtual void cellRecycled(MWidget *cell) const;
    /// The row of \a cell was selected or is no longer. The base sets the property "selected" of
    /// the cell or of its model, where there is one.
    virtual void setCellSelected(MWidget *cell, bool isSelected) const;
};

/// A creator of cells of one class \a Cell, which only has to fill them (updateCell()).
template <typename Cell> class MAbstractCellCreator : public MCellCreator
{
public:
    MWidget *createCell(const QModelIndex &index, MWidgetRecycler &recycler) const override
    {
        MWidget *cell = recycler.take(Cell::staticMetaObject.className());
        if (!cell)
            cell = new Cell;
        updateCell(index, cell);
        return cell;
    }

    /// The preferred size of an empty cell, measured once.
    QSizeF cellSize() const override
    {
        if (!m_size.isValid())
            m_size = std::make_unique<Cell>()->effectiveSizeHint(Qt::PreferredSize);
        return m_size;
    }

private:
    mutable QSizeF m_size;
};

#endif
