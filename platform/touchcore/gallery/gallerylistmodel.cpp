// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "gallerylistmodel.h"

#include <QDate>

namespace
{
const char *const titles[] = {
    "Market",         "Dentist",
    "Call home",      "Bicycle shed",
    "Choir practice", "Team meeting about what the meeting next week will be about"};
const char *const places[] = {"Hall 3", "Market Square 12", "", "Third floor", "Town hall"};

/// Children carry the row of their group plus one, groups nothing.
const quintptr groupId = 0;
} // namespace

GalleryListModel::GalleryListModel(int groups, int rowsInGroup, QObject *parent)
    : QAbstractItemModel(parent), m_groups(groups), m_rowsInGroup(rowsInGroup)
{
}

void GalleryListModel::addGroupsAbove(int count)
{
    beginInsertRows(QModelIndex(), 0, count - 1);
    m_first -= count;
    m_groups += count;
    endInsertRows();
}

void GalleryListModel::addGroupsBelow(int count)
{
    beginInsertRows(QModelIndex(), m_groups, m_groups + count - 1);
    m_groups += count;
    endInsertRows();
}

QModelIndex GalleryListModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || row >= rowCount(parent) || column != 0)
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row() + 1) : groupId);
}

QModelIndex GalleryListModel::parent(const QModelIndex &index) const
{
    return !index.isValid() || index.internalId() == groupId
        ? QModelIndex()
        : createIndex(int(index.internalId()) - 1, 0, groupId);
}

int GalleryListModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return m_groups;
    return parent.internalId() == groupId ? m_rowsInGroup : 0;
}

int GalleryListModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant GalleryListModel::data(const QModelIndex &index, int role) const
{
    if (index.internalId() == groupId) {
        const QDate day = QDate(2026, 11, 21).addDays(m_first + index.row());
        return role == Qt::DisplayRole ? day.toString(QStringLiteral("dddd d MMMM yyyy"))
                                       : QVariant();
    }
    const int number = index.row() + index.parent().row();
    if (role == Qt::DisplayRole)
        return QString::fromLatin1(titles[number % 6]);
    if (role == DetailsRole)
        return QString::fromLatin1(places[number % 5]);
    return {};
}
