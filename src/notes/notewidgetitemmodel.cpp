// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notewidgetitemmodel_p.h"

#include <daskel/db_instance.h>
#include <daskel/noteloader.h>
#include <daskel/notewidgetitemmodel.h>

namespace
{
KCalCore::Incidence::Ptr storedIncidence(const IncidenceObject *row)
{
    return DbInstance::instance()->incidence(row->uid, row->recurrenceId);
}
} // namespace

NoteWidgetItemModel::NoteWidgetItemModel(AbstractNoteLoader *loader, QObject *parent)
    : QAbstractItemModel(parent), d(std::make_unique<NoteWidgetItemModelPrivate>(this, loader))
{
}

NoteWidgetItemModel::~NoteWidgetItemModel() = default;

QModelIndex NoteWidgetItemModel::index(int row, int column, const QModelIndex &parent) const
{
    const IncidenceObject *above = parent.isValid() ? d->node(parent) : &d->root;
    if (row < 0 || row >= above->children().size() || column != 0)
        return {};
    return createIndex(row, column, above->children().at(row));
}

QModelIndex NoteWidgetItemModel::parent(const QModelIndex &index) const
{
    IncidenceObject *above = index.isValid() ? d->node(index)->parent : &d->root;
    return above == &d->root ? QModelIndex()
                             : createIndex(d->root.children().indexOf(above), 0, above);
}

int NoteWidgetItemModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? d->node(parent)->children().size() : d->root.children().size();
}

int NoteWidgetItemModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant NoteWidgetItemModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const IncidenceObject *row = d->node(index);
    switch (role) {
    case IncidenceRole:
        if (const GroupHeader *header = d->header(row))
            return header->label();
        return QVariant::fromValue(storedIncidence(row));
    case StartRole:
        return row->start;
    case EndRole:
        return row->end;
    default:
        return {};
    }
}

Qt::ItemFlags NoteWidgetItemModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags base = QAbstractItemModel::flags(index);
    if (!index.isValid() || !storedIncidence(d->node(index)))
        return base;
    return base | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;
}

int NoteWidgetItemModel::noteCount() const
{
    return d->loader->incidenceCount();
}

void NoteWidgetItemModel::reload()
{
    d->clear();
    d->loader->load();
    d->flush(false);
}

int NoteWidgetItemModel::loadEarlier()
{
    d->loader->loadEarlier();
    const int brought = d->pendingIncidenceCount;
    d->flush(true);
    return brought;
}

int NoteWidgetItemModel::loadLater()
{
    d->loader->loadLater();
    const int brought = d->pendingIncidenceCount;
    d->flush(false);
    return brought;
}

int NoteWidgetItemModel::loadAtEdges(const QModelIndex &firstVisible,
                                     const QModelIndex &lastVisible)
{
    const bool isAtTop = firstVisible.row() == 0
        && (!firstVisible.parent().isValid() || firstVisible.parent().row() == 0);
    // A list without headers reaches its bottom only when nothing is visible.
    const QModelIndex lastHeader = lastVisible.parent();
    const bool isAtBottom = lastHeader.isValid() && lastHeader.row() == rowCount() - 1
        && lastVisible.row() == rowCount(lastHeader) - 1;
    if (!firstVisible.isValid() || isAtBottom) {
        loadLater();
        const bool hasMoreAbove = isAtTop && loadEarlier() > 0;
        return hasMoreAbove ? LoadedBoth : LoadedBelow;
    }
    return isAtTop && loadEarlier() > 0 ? LoadedAbove : NothingLoaded;
}
