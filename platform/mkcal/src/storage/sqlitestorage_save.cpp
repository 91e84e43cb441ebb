// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/sqlitebulkwriter.h"
#include "storage/sqlitestorage_p.h"

#include <kcalcompat/clock.h>

#include <algorithm>
#include <limits>
#include <sqlite3.h>

namespace mKCal
{
namespace
{
qint64 nowSeconds()
{
    return KCalCompat::Clock::now().toSecsSinceEpoch();
}

bool inOrder(const IncidenceKey &a, const IncidenceKey &b)
{
    return a.uid != b.uid ? a.uid < b.uid : a.recId < b.recId;
}

void stamp(KCalCore::Incidence &incidence)
{
    const QDateTime now = KCalCompat::Clock::now();
    if (!incidence.created().isValid())
        incidence.setCreated(now);
    incidence.setLastModified(now);
}
} // namespace

bool SqliteStoragePrivate::writeChanges(qint64 change)
{
    QList<IncidenceKey> deleted = changes.deleted().values();
    std::sort(deleted.begin(), deleted.end(), inOrder);
    for (const IncidenceKey &key : qAsConst(deleted)) {
        if (!writeDeletion(key, change))
            return false;
    }
    QList<IncidenceKey> written = changes.written().keys();
    std::sort(written.begin(), written.end(), inOrder);
    for (const IncidenceKey &key : qAsConst(written)) {
        if (!writeIncidence(key, changes.written().value(key), change))
            return false;
    }
    return planChanged();
}

bool SqliteStoragePrivate::writeDeletion(const IncidenceKey &key, qint64 change)
{
    QStringList recIds{key.recId};
    if (key.recId.isEmpty()) {
        // With a series go all its exceptions, also one that another process has just added.
        Statement &query = connection.statement(
            "SELECT recId FROM Components WHERE state = 0 AND uid = ? AND recId <> ''");
        query.bind(1, key.uid);
        while (query.next())
            recIds.append(query.text(0));
        if (query.failed() || !tables->reminders.removeAll(key.uid))
            return false;
    }
    for (const QString &recId : qAsConst(recIds)) {
        StoredComponent stored;
        if (!tables->writer.find(key.uid, recId, &stored))
            return false;
        if (stored.id != 0 && !tables->writer.retire(stored, false, change, nowSeconds()))
            return false;
    }
    return true;
}

bool SqliteStoragePrivate::writeIncidence(const IncidenceKey &key,
                                          const ChangeRecord::Written &written, qint64 change)
{
    QString notebook = calendar->notebook(written.incidence);
    if (notebook.isEmpty())
        notebook = fallbackNotebook();
    if (notebook.isEmpty()) {
        connection.noteError(SQLITE_CONSTRAINT,
                             QStringLiteral("there is no notebook to put \"%1\" into")
                                 .arg(written.incidence->summary()));
        return false;
    }
    StoredComponent stored;
    QString familyNotebook;
    if (!tables->writer.find(key.uid, key.recId, &stored)
        || !tables->writer.notebookOf(key.uid, &familyNotebook))
        return false;
    // A UID is in one notebook, with its exceptions.
    if (!familyNotebook.isEmpty() && familyNotebook != notebook
        && !tables->writer.moveToNotebook(key.uid, notebook, change))
        return false;
    stamp(*written.incidence);
    // An added incidence that is already stored was not loaded here: unseen as well.
    const bool unseen = changes.isUnseen(key) || written.isNew;
    if (stored.id != 0 && !unseen)
        return tables->writer.update(stored, *written.incidence, notebook, change);
    if (stored.id != 0 && !tables->writer.retire(stored, true, change, nowSeconds()))
        return false;
    if (stored.id == 0 && !clearTombstones(key, changes.isUnseen(key)))
        return false;
    return tables->writer.insert(*written.incidence, notebook, change);
}

bool SqliteStoragePrivate::clearTombstones(const IncidenceKey &key, bool unseen)
{
    if (!unseen)
        return tables->writer.removeTombstones(key.uid, key.recId);
    // Deleted elsewhere and changed here: the change wins, and what was deleted stays restorable.
    Statement &keep = connection.statement(
        "UPDATE Components SET state = 2 WHERE state = 1 AND uid = ? AND recId = ?");
    keep.bind(1, key.uid);
    keep.bind(2, key.recId);
    return keep.run();
}

bool SqliteStorage::save()
{
    StorageCall call(*d);
    d->saveErrors.clear();
    const bool saved = d->isOpen()
        && (d->changes.isEmpty()
            || d->write(SqliteStoragePrivate::Counter::Moves,
                        [this](qint64 change) { return d->writeChanges(change); }));
    if (!call.ended(saved)) {
        d->saveErrors = d->connection.errorCodes();
        return false;
    }
    for (const ChangeRecord::Written &written : d->changes.written())
        written.incidence->resetDirtyFields();
    d->changes.clear();
    call.release();
    notifyModified(QStringLiteral("saved"));
    return true;
}

bool SqliteStorage::hasUnsavedChanges() const
{
    const std::lock_guard<std::recursive_mutex> lock(d->mutex);
    return !d->changes.isEmpty();
}

bool SqliteStorage::undelete(const QString &uid, const KDateTime &recurrenceId)
{
    StorageCall call(*d);
    if (!d->isOpen() || !d->loadUid(uid))
        return call.ended(false);
    const QString recId = recIdText(recurrenceId);
    if (findInCalendar(*d->calendar, {uid, recId}))
        return call.ended(false);
    // A series comes back with the exceptions that went with it.
    QVector<ComponentRow> rows;
    const bool read = d->tables->reader.read(
        "state = 1 AND uid = ?1 AND (?2 = '' OR recId = ?2) ORDER BY change DESC, recId",
        {uid, recId.isNull() ? QString(QLatin1String("")) : recId},
        [&rows](const ComponentRow &row) {
            if (!rows.isEmpty() && row.change != rows.first().change)
                return false;
            rows.append(row);
            return true;
        });
    if (!call.ended(read) || rows.isEmpty())
        return false;
    for (const ComponentRow &row : qAsConst(rows)) {
        const bool known = d->calendar->hasValidNotebook(row.notebook);
        d->calendar->addIncidence(row.incidence, known ? row.notebook : d->fallbackNotebook());
    }
    return true;
}

bool SqliteStorage::purgeDeleted(const QDateTime &before, const QString &notebookUid)
{
    StorageCall call(*d);
    const qint64 limit =
        before.isValid() ? before.toSecsSinceEpoch() : std::numeric_limits<qint64>::max();
    return call.ended(d->write(SqliteStoragePrivate::Counter::Stays, [&](qint64 change) {
        return notePurged(d->connection, change) && d->tables->writer.purge(limit, notebookUid);
    }));
}

std::unique_ptr<BulkWriter> SqliteStorage::bulkWriter()
{
    StorageCall call(*d);
    auto writer = std::make_unique<SqliteBulkWriter>(*d);
    if (!call.ended(d->isOpen() && writer->begin()))
        return nullptr;
    return writer;
}
} // namespace mKCal
