// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "rowheights.h"

#include <algorithm>

void RowHeights::clear()
{
    m_rows.clear();
    changedFrom(0);
}

void RowHeights::insert(int row, int count, qreal estimate)
{
    m_rows.insert(m_rows.begin() + row, size_t(count), {float(estimate), false});
    changedFrom(row);
}

void RowHeights::remove(int row, int count)
{
    m_rows.erase(m_rows.begin() + row, m_rows.begin() + row + count);
    changedFrom(row);
}

bool RowHeights::measure(int row, qreal height)
{
    m_rows[row].isMeasured = true;
    if (m_rows[row].height == float(height))
        return false;
    m_rows[row].height = float(height);
    changedFrom(row);
    return true;
}

void RowHeights::forget(int row, int count)
{
    std::for_each(m_rows.begin() + row, m_rows.begin() + row + count,
                  [](Row &forgotten) { forgotten.isMeasured = false; });
}

qreal RowHeights::top(int row) const
{
    reckonTo(row);
    return m_tops[row];
}

int RowHeights::rowAt(qreal place) const
{
    reckonTo(count());
    const auto below = std::upper_bound(m_tops.begin(), m_tops.begin() + count(), place);
    return qMin(count() - 1, qMax(0, int(below - m_tops.begin()) - 1));
}

void RowHeights::changedFrom(int row)
{
    m_tops.resize(m_rows.size() + 1);
    m_reckoned = qMin(m_reckoned, row);
}

void RowHeights::reckonTo(int row) const
{
    for (; m_reckoned < row; ++m_reckoned)
        m_tops[m_reckoned + 1] = m_tops[m_reckoned] + m_rows[m_reckoned].height;
}
