// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTEWIDGETITEMMODEL_P_H
#define DASKEL_NOTEWIDGETITEMMODEL_P_H

#include <daskel/abstractnoteloaderbackend.h>
#include <kcalcompat/kdatetime.h>

#include <QDateTime>
#include <QList>
#include <QString>

#include <map>

class AbstractNoteLoader;
class NoteWidgetItemModel;

/// One row: which occurrence of which incidence. It owns its children.
class IncidenceObject
{
public:
    IncidenceObject(const QDateTime &occurrenceStart, const QDateTime &occurrenceEnd,
                    const QSharedPointer<KCalCore::Incidence> &incidence);
    virtual ~IncidenceObject();
    Q_DISABLE_COPY(IncidenceObject)

    const QList<IncidenceObject *> &children() const { return m_children; }
    /// Puts \a rows before the child at \a position, in their order.
    void insertChildren(int position, const QList<IncidenceObject *> &rows);
    void deleteChildren();

    QDateTime start;
    QDateTime end;
    QString uid;
    KDateTime recurrenceId;
    IncidenceObject *parent = nullptr;

private:
    QList<IncidenceObject *> m_children;
};

/// A row above those of its group. Its date is kept as the start.
class GroupHeader : public IncidenceObject
{
public:
    GroupHeader(const QString &label, int kind, const QDateTime &date, int number);

    QString label() const { return m_label; }
    int kind() const { return m_kind; }
    /// Headers are numbered in the order in which they are made; batches are shown in that order.
    int number() const { return m_number; }

private:
    QString m_label;
    int m_kind;
    int m_number;
};

class NoteWidgetItemModelPrivate : public AbstractNoteLoaderBackend
{
public:
    NoteWidgetItemModelPrivate(NoteWidgetItemModel *model, AbstractNoteLoader *loader);
    ~NoteWidgetItemModelPrivate();
    Q_DISABLE_COPY(NoteWidgetItemModelPrivate)

    // AbstractNoteLoaderBackend
    void addGroupHeader(const QString &groupName, int kind, const QDateTime &date) override;
    void addIncidence(const QString &groupName, QDateTime *start, QDateTime *end,
                      const QSharedPointer<KCalCore::Incidence> &incidence, bool atFront) override;

    /// Moves the batch into the tree, above or below what is there, and tells the views.
    void flush(bool atTop);
    /// Empties the tree and drops what is pending, and tells the views.
    void clear();

    IncidenceObject *node(const QModelIndex &index) const;
    /// The row as the header of a group, null when it is none.
    const GroupHeader *header(const IncidenceObject *row) const;

    /// Headers by number, no header first.
    struct Earlier {
        bool operator()(const GroupHeader *a, const GroupHeader *b) const;
    };

    NoteWidgetItemModel *q;
    GroupHeader *lastGroupHeader = nullptr; ///< of the batch that is being handed over
    IncidenceObject root;
    bool insertHeaders = false;
    AbstractNoteLoader *loader;
    std::map<GroupHeader *, QList<IncidenceObject *>, Earlier> pending;
    int pendingIncidenceCount = 0;
    int pendingHeaderCount = 0;
    int headersMade = 0;

private:
    void placeHeader(GroupHeader *header, bool atTop);
    void placeRows(IncidenceObject *parent, const QList<IncidenceObject *> &rows, bool atTop);
    /// The next batch begins from nothing.
    void resetBatch();
    /// Deletes what a batch brought that was not moved into the tree.
    void dropPending();
};

#endif
