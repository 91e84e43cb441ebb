// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef GALLERYLISTMODEL_H
#define GALLERYLISTMODEL_H

#include <QAbstractItemModel>

/// Days with appointments that nobody has: groups numbered from any number on, each with the same
/// count of rows.
class GalleryListModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role { DetailsRole = Qt::UserRole };

    GalleryListModel(int groups, int rowsInGroup, QObject *parent = nullptr);

    void addGroupsAbove(int count);
    void addGroupsBelow(int count);

    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    int m_first = 0; ///< the number of the first group
    int m_groups;
    int m_rowsInGroup;
};

#endif
