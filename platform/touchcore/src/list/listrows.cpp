// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "listrows.h"

#include <QAbstractItemModel>

#include <algorithm>

void ListRows::setEstimates(qreal cellHeight, qreal headerHeight)
{
    m_cellHeight = cellHeight;
    m_headerHeight = headerHeight;
}

void ListRows::rebuild()
{
    heights.clear();
    m_groupStarts.clear();
    const int topLevelCount = m_model ? m_model->rowCount() : 0;
    if (topLevelCount > 0)
        insert(QModelIndex(), 0, topLevelCount - 1);
}

void ListRows::insert(const QModelIndex &parent, int first, int last)
{
    const int count = last - first + 1;
    if (!m_hasGroups) {
        if (!parent.isValid())
            heights.insert(first, count, m_cellHeight);
    } else if (!parent.isValid()) {
        insertGroups(first, last);
    } else if (!parent.parent().isValid()) {
        const int group = parent.row();
        heights.insert(m_groupStarts[group] + 1 + first, count, m_cellHeight);
        for (size_t later = group + 1; later < m_groupStarts.size(); ++later)
            m_groupStarts[later] += count;
    }
}

void ListRows::insertGroups(int first, int last)
{
    const int start = groupStart(first);
    std::vector<int> starts;
    int next = start;
    for (int group = first; group <= last; ++group) {
        const int children = m_model->rowCount(m_model->index(group, 0));
        starts.push_back(next);
        heights.insert(next, 1, m_headerHeight);
        heights.insert(next + 1, children, m_cellHeight);
        next += 1 + children;
    }
    for (size_t later = first; later < m_groupStarts.size(); ++later)
        m_groupStarts[later] += next - start;
    m_groupStarts.insert(m_groupStarts.begin() + first, starts.begin(), starts.end());
}

void ListRows::remove(const QModelIndex &parent, int first, int last)
{
    int start = first;
    int count = last - first + 1;
    size_t firstLater = 0;
    if (m_hasGroups && !parent.isValid()) {
        start = groupStart(first);
        count = groupStart(last + 1) - start;
        m_groupStarts.erase(m_groupStarts.begin() + first, m_groupStarts.begin() + last + 1);
        firstLater = first;
    } else if (m_hasGroups && !parent.parent().isValid()) {
        start = m_groupStarts[parent.row()] + 1 + first;
        firstLater = parent.row() + 1;
    } else if (parent.isValid()) {
        return;
    }
    heights.remove(start, count);
    for (size_t later = firstLater; later < m_groupStarts.size(); ++later)
        m_groupStarts[later] -= count;
}

int ListRows::headerOf(int row) const
{
    return m_hasGroups ? m_groupStarts[groupOf(row)] : -1;
}

int ListRows::nextHeader(int row) const
{
    return m_hasGroups ? groupStart(groupOf(row) + 1) : count();
}

QModelIndex ListRows::index(int row) const
{
    if (row < 0 || row >= count() || !m_model)
        return {};
    if (!m_hasGroups)
        return m_model->index(row, 0);
    const int group = groupOf(row);
    const QModelIndex header = m_model->index(group, 0);
    const int child = row - m_groupStarts[group] - 1;
    return child < 0 ? header : m_model->index(child, 0, header);
}

int ListRows::row(const QModelIndex &index) const
{
    if (!index.isValid() || index.model() != m_model)
        return -1;
    const QModelIndex parent = index.parent();
    if (!m_hasGroups)
        return parent.isValid() ? -1 : index.row();
    if (!parent.isValid())
        return m_groupStarts[index.row()];
    return parent.parent().isValid() ? -1 : m_groupStarts[parent.row()] + 1 + index.row();
}

int ListRows::groupOf(int row) const
{
    const auto next = std::upper_bound(m_groupStarts.begin(), m_groupStarts.end(), row);
    return int(next - m_groupStarts.begin()) - 1;
}

/// \a group may be the number of groups: where all end.
int ListRows::groupStart(int group) const
{
    return group < int(m_groupStarts.size()) ? m_groupStarts[group] : count();
}
