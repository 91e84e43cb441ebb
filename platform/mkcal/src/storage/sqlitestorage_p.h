// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_SQLITESTORAGE_P_H
#define MKCAL_SQLITESTORAGE_P_H

#include "sqlite/connection.h"
#include "storage/changemarker.h"
#include "storage/changerecord.h"
#include "storage/changewatcher.h"
#include "storage/foreignchanges.h"
#include "storage/incidenceloader.h"
#include "storage/loadrecord.h"
#include "storage/tables.h"

#include <mkcal/sqlitestorage.h>

#include <QObject>

#include <atomic>
#include <functional>
#include <mutex>

namespace mKCal
{
class StorageCall;

/// What is behind a SqliteStorage. Every public call is one StorageCall, which holds the lock; the
/// functions here are called inside one.
class SqliteStoragePrivate
{
public:
    SqliteStoragePrivate(SqliteStorage *storage, const ExtendedCalendar::Ptr &storedCalendar,
                         const QString &databaseName);
    ~SqliteStoragePrivate();

    /// For tests.
    static SqliteStoragePrivate &of(SqliteStorage &storage) { return *storage.d; }

    bool open();
    void close();
    /// Notes the refusal when it is not.
    bool isOpen();

    /// Notes the refusal when it is not.
    bool isWritable();

    /// What a write transaction does to the change counter.
    enum class Counter {
        Moves, ///< the stored calendar changes: all processes are to look
        Stays ///< only what no calendar shows: reminders
    };
    /// Runs @p body in a write transaction, with the number of the change that it makes. Foreign
    /// changes up to now are taken in first. All is undone when the body or the database refuses.
    bool write(Counter counter, const std::function<bool(qint64 change)> &body,
               Connection::Lock lock = Connection::Lock::Awaited);

    /// Takes in what others wrote since the last look. False on a database error.
    bool catchUp();
    /// Looks, unless a load runs elsewhere or notices are held, and notifies what was found.
    void lookForForeignChanges();
    /// Without the lock held.
    void notify(const QString &info);

    /// Reads the notebooks anew and tells the calendar. False on a database error.
    bool readNotebooks();
    void tellCalendar(const Notebook &notebook);
    /// It was deleted elsewhere.
    void forgetNotebook(const QString &uid);
    int notebookIndex(const QString &uid) const;
    /// Where an incidence without a notebook goes; empty when there is no notebook at all.
    QString fallbackNotebook() const;
    bool refuseNotebook(int code, const QString &reason);
    /// Notes the refusal when it is not.
    bool isKnownNotebook(const Notebook::Ptr &notebook);
    bool insertNotebook(const Notebook::Ptr &notebook);
    bool updateNotebook(const Notebook::Ptr &notebook, bool *changed);
    bool removeNotebook(const QString &uid);
    bool makeDefault(const QString &uid, bool *changed);
    /// Takes its incidences and their unsaved changes out of the calendar.
    void dropFromMemory(const QString &uid);
    bool notebookCallEnded(StorageCall &call, bool succeeded, bool signal, const QString &info);

    bool loadDays(const DateRange &range);
    /// The non-recurring rows that may lie in the range.
    bool readDays(const DateRange &range, const ComponentReader::Sink &sink);
    /// The events and to-dos of the range and the series that are alive in it, past the calendar.
    bool readShown(const DateRange &range, KCalCore::Incidence::List *found);
    bool loadRecurringDays(const DateRange &range);
    bool loadUid(const QString &uid);
    bool loadIds(const QVector<QPair<qint64, QString>> &idsAndFamilies);

    bool writeChanges(qint64 change);
    bool writeIncidence(const IncidenceKey &key, const ChangeRecord::Written &written,
                        qint64 change);
    bool writeDeletion(const IncidenceKey &key, qint64 change);
    bool clearTombstones(const IncidenceKey &key, bool unseen);

    /// Plans the reminders of everything that writeChanges() wrote.
    bool planChanged();
    /// Once a day: plans those of the series that the moving horizon has reached, or puts it off
    /// while somebody else writes.
    void extendHorizon();

    SqliteStorage *q;
    ExtendedCalendar::Ptr calendar;
    const QString fileName;
    const QString writerId; ///< names this storage in the database
    // One lock for the connection and everything here. It may be taken again by its holder: who
    // observes the calendar may ask the storage while it loads.
    std::recursive_mutex mutex;
    int callDepth = 0;

    Connection connection;
    std::unique_ptr<Tables> tables; ///< null while closed
    ChangeMarker marker;
    ChangeWatcher watcher;
    ChangeRecord changes;
    LoadRecord loaded;
    IncidenceLoader loader;
    ForeignChanges foreign;

    qint64 seenChange = -1; ///< all changes up to this one are in the calendar
    qint64 seenDataVersion = -1;
    bool foreignNoticeDue = false; ///< taken in, observers not told yet
    std::atomic<bool> lookDue{false}; ///< somebody looked in vain while the lock was held
    std::atomic<int> noticeHolds{0};
    bool bulkActive = false;
    bool horizonDue = false; ///< extendHorizon() was put off

    Notebook::List notebooks;
    QString defaultNotebook;

    SqliteError error;
    QList<int> saveErrors;
    QList<int> notebookErrors;
};

/// One public call: holds the storage's lock and keeps how it ended.
class StorageCall
{
public:
    explicit StorageCall(SqliteStoragePrivate &storage);
    ~StorageCall();
    StorageCall(const StorageCall &) = delete;
    StorageCall &operator=(const StorageCall &) = delete;

    /// Keeps the failure when @p succeeded is false; answers @p succeeded.
    bool ended(bool succeeded);
    /// Gives the lock up before its time, to notify.
    void release();

private:
    SqliteStoragePrivate &m_storage;
    std::unique_lock<std::recursive_mutex> m_lock;
};
} // namespace mKCal

#endif
