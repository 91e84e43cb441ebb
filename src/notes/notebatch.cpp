// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "daskelassert.h"
#include "notewidgetitemmodel_p.h"

#include <daskel/noteloader.h>
#include <daskel/notewidgetitemmodel.h>

#include <utility>

IncidenceObject::IncidenceObject(const QDateTime &occurrenceStart, const QDateTime &occurrenceEnd,
                                 const QSharedPointer<KCalCore::Incidence> &incidence)
    : start(occurrenceStart), end(occurrenceEnd)
{
    if (incidence) {
        uid = incidence->uid();
        recurrenceId = KDateTime(incidence->recurrenceId());
    }
}

IncidenceObject::~IncidenceObject()
{
    qDeleteAll(m_children);
}

void IncidenceObject::insertChildren(int position, const QList<IncidenceObject *> &rows)
{
    for (IncidenceObject *row : rows)
        row->parent = this;
    m_children = m_children.mid(0, position) + rows + m_children.mid(position);
}

void IncidenceObject::deleteChildren()
{
    qDeleteAll(m_children);
    m_children.clear();
}

GroupHeader::GroupHeader(const QString &label, int kind, const QDateTime &date, int number)
    : IncidenceObject(date, {}, {}), m_label(label), m_kind(kind), m_number(number)
{
}

bool NoteWidgetItemModelPrivate::Earlier::operator()(const GroupHeader *a,
                                                     const GroupHeader *b) const
{
    return (a ? a->number() : -1) < (b ? b->number() : -1);
}

NoteWidgetItemModelPrivate::NoteWidgetItemModelPrivate(NoteWidgetItemModel *model,
                                                       AbstractNoteLoader *noteLoader)
    : q(model), root({}, {}, {}), loader(noteLoader)
{
    loader->setBackend(this);
}

NoteWidgetItemModelPrivate::~NoteWidgetItemModelPrivate()
{
    dropPending();
}

void NoteWidgetItemModelPrivate::addGroupHeader(const QString &groupName, int kind,
                                                const QDateTime &date)
{
    if (lastGroupHeader && lastGroupHeader->label() == groupName)
        return;
    // A header that got no rows is never shown.
    if (pending.find(lastGroupHeader) == pending.end())
        delete lastGroupHeader;
    lastGroupHeader = nullptr;
    if (groupName.isEmpty())
        return;
    lastGroupHeader = new GroupHeader(groupName, kind, date, headersMade++);
    ++pendingHeaderCount;
}

void NoteWidgetItemModelPrivate::addIncidence(const QString &groupName, QDateTime *start,
                                              QDateTime *end,
                                              const QSharedPointer<KCalCore::Incidence> &incidence,
                                              bool atFront)
{
    DASKEL_ASSERT(groupName.isEmpty() || (lastGroupHeader && groupName == lastGroupHeader->label()),
                  "notewidgetitemmodel", 353);
    auto *row =
        new IncidenceObject(start ? *start : QDateTime(), end ? *end : QDateTime(), incidence);
    QList<IncidenceObject *> &rows = pending[lastGroupHeader];
    if (atFront)
        rows.prepend(row);
    else
        rows.append(row);
    ++pendingIncidenceCount;
}

void NoteWidgetItemModelPrivate::flush(bool atTop)
{
    if (pendingIncidenceCount > 0 && pendingHeaderCount > 0)
        insertHeaders = true;
    const auto batch = std::exchange(pending, {});
    if (batch.find(lastGroupHeader) == batch.end())
        delete lastGroupHeader;
    resetBatch();
    for (const auto &[header, rows] : batch) {
        IncidenceObject *parent = &root;
        if (header) {
            DASKEL_ASSERT(insertHeaders, "notewidgetitemmodel", 71);
            placeHeader(header, atTop);
            parent = header;
        } else {
            DASKEL_ASSERT(!insertHeaders, "notewidgetitemmodel", 86);
        }
        placeRows(parent, rows, atTop);
    }
}

void NoteWidgetItemModelPrivate::placeHeader(GroupHeader *header, bool atTop)
{
    int parentRow = root.children().indexOf(header);
    if (parentRow < 0) {
        const int row = atTop ? 0 : root.children().size();
        q->beginInsertRows(QModelIndex(), row, row);
        root.insertChildren(row, {header});
        q->endInsertRows();
        parentRow = root.children().indexOf(header);
        DASKEL_ASSERT(parentRow >= 0, "notewidgetitemmodel", 81);
    }
    DASKEL_ASSERT(parentRow >= 0, "notewidgetitemmodel", 83);
}

void NoteWidgetItemModelPrivate::placeRows(IncidenceObject *parent,
                                           const QList<IncidenceObject *> &rows, bool atTop)
{
    const int first = atTop ? 0 : parent->children().size();
    const QModelIndex parentIndex = parent == &root
        ? QModelIndex()
        : q->createIndex(root.children().indexOf(parent), 0, parent);
    q->beginInsertRows(parentIndex, first, first + rows.size() - 1);
    parent->insertChildren(first, rows);
    q->endInsertRows();
}

void NoteWidgetItemModelPrivate::clear()
{
    if (!root.children().isEmpty()) {
        const int lastIndex = root.children().size() - 1;
        DASKEL_ASSERT(lastIndex >= 0, "notewidgetitemmodel", 111);
        q->beginRemoveRows(QModelIndex(), 0, lastIndex);
        root.deleteChildren();
        q->endRemoveRows();
    }
    dropPending();
    // NOLINTNEXTLINE(readability-container-size-empty): what it says is fixed.
    DASKEL_ASSERT(!root.children().size(), "notewidgetitemmodel", 119);
    DASKEL_ASSERT(!lastGroupHeader, "notewidgetitemmodel", 120);
}

void NoteWidgetItemModelPrivate::dropPending()
{
    if (pending.find(lastGroupHeader) == pending.end())
        delete lastGroupHeader;
    for (const auto &[header, rows] : pending) {
        qDeleteAll(rows);
        delete header;
    }
    pending.clear();
    resetBatch();
}

void NoteWidgetItemModelPrivate::resetBatch()
{
    lastGroupHeader = nullptr;
    pendingIncidenceCount = 0;
    pendingHeaderCount = 0;
}

IncidenceObject *NoteWidgetItemModelPrivate::node(const QModelIndex &index) const
{
    return static_cast<IncidenceObject *>(index.internalPointer());
}

const GroupHeader *NoteWidgetItemModelPrivate::header(const IncidenceObject *row) const
{
    return row->parent == &root ? dynamic_cast<const GroupHeader *>(row) : nullptr;
}
