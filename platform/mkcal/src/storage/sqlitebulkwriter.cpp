// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/sqlitebulkwriter.h"

#include "storage/reminderschedule.h"
#include "storage/sqlitestorage_p.h"

#include <kcalcompat/clock.h>

#include <sqlite3.h>

namespace mKCal
{
SqliteBulkWriter::SqliteBulkWriter(SqliteStoragePrivate &storage) : m_storage(storage) { }

SqliteBulkWriter::~SqliteBulkWriter()
{
    end();
}

bool SqliteBulkWriter::begin()
{
    if (!m_storage.isWritable())
        return false;
    if (!m_connection.open(m_storage.fileName)) {
        m_storage.connection.noteError(m_connection.lastError().extended);
        return false;
    }
    // Rows of a large import lie all over the indexes: with few pages at hand most are read again.
    m_connection.execute("PRAGMA cache_size = -32000");
    m_tables = std::make_unique<Tables>(m_connection);
    m_schedule =
        std::make_unique<ReminderSchedule>(m_connection, *m_tables, m_storage.calendar->timeZone());
    m_transaction = std::make_unique<Transaction>(m_connection);
    if (!m_transaction->isActive() || !m_tables->meta.bump(m_storage.writerId, &m_change)) {
        m_storage.connection.noteError(m_connection.lastError().extended);
        return false;
    }
    m_storage.bulkActive = true;
    return true;
}

bool SqliteBulkWriter::isWritable()
{
    return m_transaction && m_transaction->isActive();
}

KCalCore::Incidence::Ptr SqliteBulkWriter::find(const QString &uid, const KDateTime &recurrenceId)
{
    KCalCore::Incidence::Ptr found;
    QString home;
    if (!isWritable() || !findNotebook(uid, &home) || home.isEmpty())
        return found;
    const bool read =
        m_tables->reader.read("state = 0 AND uid = ? AND recId = ?", {uid, recIdText(recurrenceId)},
                              [&found](const ComponentRow &row) {
                                  found = row.incidence;
                                  return true;
                              });
    if (!read)
        fail();
    return found;
}

QString SqliteBulkWriter::notebook(const QString &uid)
{
    QString notebook;
    if (isWritable())
        findNotebook(uid, &notebook);
    return notebook;
}

bool SqliteBulkWriter::findNotebook(const QString &uid, QString *notebook)
{
    if (uid.isEmpty() || uid != m_lastUid) {
        if (!m_tables->writer.notebookOf(uid, &m_lastNotebook))
            return fail();
        m_lastUid = uid;
    }
    *notebook = m_lastNotebook;
    return true;
}

bool SqliteBulkWriter::write(const KCalCore::Incidence::Ptr &incidence, const QString &notebookUid)
{
    if (!isWritable() || !incidence)
        return false;
    const QDateTime now = KCalCompat::Clock::now();
    if (!incidence->created().isValid())
        incidence->setCreated(now);
    if (!incidence->lastModified().isValid())
        incidence->setLastModified(now);
    QString home;
    if (!findNotebook(incidence->uid(), &home))
        return false;
    StoredComponent stored;
    if (!home.isEmpty() && !m_tables->writer.find(incidence->uid(), recIdText(*incidence), &stored))
        return fail();
    if (stored.id == 0) {
        const QString target = home.isEmpty() ? notebookUid : home;
        return insert(incidence, target) && planInserted(incidence, target, home.isEmpty());
    }
    m_toPlan.insert(incidence->uid());
    return m_tables->writer.update(stored, *incidence, stored.notebook, m_change) || fail();
}

bool SqliteBulkWriter::insert(const KCalCore::Incidence::Ptr &incidence, const QString &notebookUid)
{
    if (!isKnownNotebook(notebookUid))
        return false;
    m_lastUid = incidence->uid();
    m_lastNotebook = notebookUid;
    return (m_tables->writer.removeTombstones(incidence->uid(), recIdText(*incidence))
            && m_tables->writer.insert(*incidence, notebookUid, m_change))
        || fail();
}

/// Most of an import rings nothing or has no family: nothing is to be read again to plan it.
bool SqliteBulkWriter::planInserted(const KCalCore::Incidence::Ptr &incidence,
                                    const QString &notebookUid, bool isFirstOfFamily)
{
    const bool isAlone = isFirstOfFamily && !incidence->hasRecurrenceId();
    if (isAlone && !incidence->hasEnabledAlarms())
        return true;
    if (isAlone && !incidence->recurs())
        return m_schedule->plan(incidence->uid(), {incidence}, notebookUid) || fail();
    m_toPlan.insert(incidence->uid());
    return true;
}

bool SqliteBulkWriter::isKnownNotebook(const QString &uid)
{
    if (uid == m_knownNotebook && !uid.isEmpty())
        return true;
    bool isKnown = false;
    if (!m_tables->notebooks.exists(uid, &isKnown))
        return fail();
    if (isKnown)
        m_knownNotebook = uid;
    else
        m_errorMessage =
            QStringLiteral("%1: there is no notebook \"%2\"").arg(m_storage.fileName, uid);
    return isKnown;
}

bool SqliteBulkWriter::remove(const QString &uid, const KDateTime &recurrenceId)
{
    if (!isWritable())
        return false;
    m_lastUid.clear();
    const QString recId = recIdText(recurrenceId);
    QStringList recIds{recId};
    if (recId.isEmpty()) {
        // With a series go its exceptions.
        Statement &query = m_connection.statement(
            "SELECT recId FROM Components WHERE state = 0 AND uid = ? AND recId <> ''");
        query.bind(1, uid);
        while (query.next())
            recIds.append(query.text(0));
        if (query.failed() || !m_tables->reminders.removeAll(uid))
            return fail();
    }
    const qint64 now = KCalCompat::Clock::now().toSecsSinceEpoch();
    for (const QString &one : qAsConst(recIds)) {
        StoredComponent stored;
        if (!m_tables->writer.find(uid, one, &stored)
            || (stored.id != 0 && !m_tables->writer.retire(stored, false, m_change, now)))
            return fail();
    }
    m_toPlan.insert(uid);
    return true;
}

bool SqliteBulkWriter::planReminders()
{
    for (const QString &uid : qAsConst(m_toPlan)) {
        if (!m_schedule->planStored(uid))
            return false;
    }
    return true;
}

bool SqliteBulkWriter::commit()
{
    if (!isWritable())
        return false;
    if (!planReminders() || !m_transaction->commit())
        return fail();
    end();
    StorageCall call(m_storage);
    m_storage.marker.touch();
    // The calendar takes in what was written here just as it does what others write. When that
    // cannot be read now, the next look does it: the transaction is stored in any case.
    if (m_storage.isOpen() && m_storage.catchUp())
        m_storage.foreignNoticeDue = false;
    call.release();
    m_storage.notify(QStringLiteral("many incidences written"));
    return true;
}

bool SqliteBulkWriter::fail()
{
    m_errorMessage = m_connection.lastError().message;
    end();
    return false;
}

void SqliteBulkWriter::end()
{
    if (!m_transaction)
        return;
    m_transaction.reset();
    m_schedule.reset();
    m_tables.reset();
    m_connection.close();
    const std::lock_guard<std::recursive_mutex> lock(m_storage.mutex);
    m_storage.bulkActive = false;
}

QString SqliteBulkWriter::errorMessage() const
{
    return m_errorMessage;
}
} // namespace mKCal
