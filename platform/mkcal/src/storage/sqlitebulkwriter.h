// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_SQLITEBULKWRITER_H
#define MKCAL_SQLITEBULKWRITER_H

#include "sqlite/connection.h"

#include <mkcal/bulkwriter.h>

#include <QSet>

#include <memory>

namespace mKCal
{
class ReminderSchedule;
class SqliteStoragePrivate;
struct Tables;

/// Writes on a connection of its own, so that what is not committed yet never gets into the
/// calendar through a load.
class SqliteBulkWriter : public BulkWriter
{
public:
    explicit SqliteBulkWriter(SqliteStoragePrivate &storage);
    ~SqliteBulkWriter() override;

    /// Called with the storage's lock held. False, with the reason in the storage's connection,
    /// when the database cannot be written now.
    bool begin();

    KCalCore::Incidence::Ptr find(const QString &uid, const KDateTime &recurrenceId) override;
    QString notebook(const QString &uid) override;
    bool write(const KCalCore::Incidence::Ptr &incidence, const QString &notebookUid) override;
    bool remove(const QString &uid, const KDateTime &recurrenceId) override;
    bool commit() override;
    QString errorMessage() const override;

private:
    bool isWritable();
    bool insert(const KCalCore::Incidence::Ptr &incidence, const QString &notebookUid);
    /// Whether the database could be asked. An import asks for each UID several times: the last
    /// answer is kept.
    bool findNotebook(const QString &uid, QString *notebook);
    bool isKnownNotebook(const QString &uid);
    bool planInserted(const KCalCore::Incidence::Ptr &incidence, const QString &notebookUid,
                      bool isFirstOfFamily);
    bool planReminders();
    /// Gives the transaction up; answers false.
    bool fail();
    void end();

    SqliteStoragePrivate &m_storage;
    Connection m_connection;
    std::unique_ptr<Tables> m_tables;
    std::unique_ptr<ReminderSchedule> m_schedule;
    std::unique_ptr<Transaction> m_transaction;
    qint64 m_change = 0;
    QString m_lastUid; ///< what findNotebook() was asked for last
    QString m_lastNotebook;
    QString m_knownNotebook; ///< the last one that was found to be there
    QSet<QString> m_toPlan; ///< the UIDs whose reminders may have changed
    QString m_errorMessage;
};
} // namespace mKCal

#endif
