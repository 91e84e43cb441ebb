// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_ROWHEIGHTS_H
#define TOUCHCORE_ROWHEIGHTS_H

#include <QtGlobal>

#include <vector>

/// The heights of a list's rows, estimated until a row is measured, and where each row begins.
///
/// The beginnings are sums, worked out up to the furthest row asked for, and again from the first
/// row that changed.
class RowHeights
{
public:
    int count() const { return int(m_rows.size()); }
    void clear();
    void insert(int row, int count, qreal estimate);
    void remove(int row, int count);

    qreal height(int row) const { return m_rows[row].height; }
    bool isMeasured(int row) const { return m_rows[row].isMeasured; }
    /// Answers whether the height differs from what was reckoned with.
    bool measure(int row, qreal height);
    /// The heights have to be measured again, and serve as estimates until then.
    void forget(int row, int count);

    /// \a row may be count(): where all end.
    qreal top(int row) const;
    qreal total() const { return top(count()); }
    /// The row at \a place, bounded to the first and last one; -1 without rows.
    int rowAt(qreal place) const;

private:
    struct Row {
        float height;
        bool isMeasured;
    };

    void changedFrom(int row);
    void reckonTo(int row) const;

    std::vector<Row> m_rows;
    /// Valid up to and including m_reckoned.
    mutable std::vector<qreal> m_tops{0};
    mutable int m_reckoned = 0;
};

#endif
