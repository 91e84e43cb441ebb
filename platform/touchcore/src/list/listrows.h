// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_LISTROWS_H
#define TOUCHCORE_LISTROWS_H

#include "rowheights.h"

#include <QModelIndex>
#include <QPointer>

/// The rows of a list from the first to the last: those of a model with one level, or with two,
/// headers and their children in one sequence. Told of each change of the model, after it happened.
class ListRows
{
public:
    QAbstractItemModel *model() const { return m_model; }
    void setModel(QAbstractItemModel *model) { m_model = model; }
    bool hasGroups() const { return m_hasGroups; }
    void setHasGroups(bool hasGroups) { m_hasGroups = hasGroups; }
    void setEstimates(qreal cellHeight, qreal headerHeight);

    /// Reads all rows anew; no height is known then.
    void rebuild();
    void insert(const QModelIndex &parent, int first, int last);
    void remove(const QModelIndex &parent, int first, int last);

    int count() const { return heights.count(); }
    bool isHeader(int row) const { return headerOf(row) == row; }
    /// The row of the header above \a row, or \a row if it is one; -1 without groups.
    int headerOf(int row) const;
    /// The row of the next header below \a row, count() if there is none.
    int nextHeader(int row) const;
    QModelIndex index(int row) const;
    /// -1 when the list has no row for \a index.
    int row(const QModelIndex &index) const;

    RowHeights heights;

private:
    int groupOf(int row) const;
    int groupStart(int group) const;
    void insertGroups(int first, int last);

    QPointer<QAbstractItemModel> m_model;
    bool m_hasGroups = false;
    qreal m_cellHeight = 0;
    qreal m_headerHeight = 0;
    /// The row of each header.
    std::vector<int> m_groupStarts;
};

#endif
