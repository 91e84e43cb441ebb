// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/schema.h"
#include "storage/sqlitestorage_p.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <QUuid>

#include <sqlite3.h>

namespace mKCal
{
namespace
{
struct DefaultFile {
    std::mutex mutex;
    QString name;
    bool isFixed = false;
};

DefaultFile &theDefaultFile()
{
    static DefaultFile file;
    return file;
}
} // namespace

SqliteStoragePrivate::SqliteStoragePrivate(SqliteStorage *storage,
                                           const ExtendedCalendar::Ptr &storedCalendar,
                                           const QString &databaseName)
    : q(storage), calendar(storedCalendar), fileName(databaseName),
      writerId(QUuid::createUuid().toString(QUuid::WithoutBraces)), marker(databaseName),
      changes(storedCalendar), loader(storedCalendar, changes, [this] { readNotebooks(); }),
      foreign(connection, storedCalendar, changes, loaded, loader)
{
    calendar->setUpdateLastModifiedOnChange(false);
    QObject::connect(&watcher, &ChangeWatcher::touched, &watcher,
                     [this] { lookForForeignChanges(); });
    QObject::connect(
        calendar.data(), &ExtendedCalendar::closed, &watcher,
        [this] {
            const std::lock_guard<std::recursive_mutex> lock(mutex);
            changes.clear();
            loaded.clear();
        },
        Qt::DirectConnection);
}

SqliteStoragePrivate::~SqliteStoragePrivate()
{
    close();
}

bool SqliteStoragePrivate::open()
{
    if (tables)
        return true;
    if (!connection.open(fileName) || !Schema::prepare(connection)) {
        connection.close();
        return false;
    }
    tables = std::make_unique<Tables>(connection);
    const qint64 dataVersion = connection.dataVersion();
    ChangeMark mark;
    if (dataVersion < 0 || !tables->meta.readMark(&mark) || !readNotebooks()) {
        close();
        return false;
    }
    // What was loaded before the database was closed is brought up to date by the next look,
    // unless another file has taken its place since.
    const bool goesOn = seenChange >= 0 && seenChange <= mark.counter;
    if (!goesOn) {
        loaded.clear();
        seenChange = mark.counter;
    }
    seenDataVersion = goesOn ? -1 : dataVersion;
    marker.open();
    extendHorizon();
    connection.clearErrors();
    watcher.watch({marker.fileName(), fileName + QLatin1String("-wal")});
    return true;
}

void SqliteStoragePrivate::close()
{
    tables.reset();
    connection.close();
}

bool SqliteStoragePrivate::isOpen()
{
    if (!tables)
        connection.noteError(SQLITE_CANTOPEN, QStringLiteral("the calendar database is not open"));
    return tables != nullptr;
}

bool SqliteStoragePrivate::isWritable()
{
    if (!isOpen())
        return false;
    if (bulkActive) {
        connection.noteError(SQLITE_BUSY,
                             QStringLiteral("many incidences are just being written to the "
                                            "calendar database; try again when that is done"));
        return false;
    }
    if (connection.hasMoved()) {
        connection.noteError(SQLITE_READONLY_DBMOVED,
                             QStringLiteral("the calendar database was moved or deleted while it "
                                            "was open; what is written now would be lost"));
        return false;
    }
    return true;
}

bool SqliteStoragePrivate::write(Counter counter, const std::function<bool(qint64)> &body,
                                 Connection::Lock lock)
{
    if (!isWritable())
        return false;
    Transaction transaction(connection, lock);
    if (!transaction.isActive() || !catchUp())
        return false;
    qint64 change = seenChange;
    if (counter == Counter::Moves && !tables->meta.bump(writerId, &change))
        return false;
    if (!body(change) || !transaction.commit())
        return false;
    seenChange = change;
    if (counter == Counter::Moves)
        marker.touch();
    if (horizonDue)
        extendHorizon();
    return true;
}

bool SqliteStoragePrivate::catchUp()
{
    ChangeMark mark;
    if (!tables->meta.readMark(&mark))
        return false;
    if (mark.counter == seenChange)
        return true;
    if (!readNotebooks() || !foreign.apply(*tables, seenChange))
        return false;
    seenChange = mark.counter;
    foreignNoticeDue = true;
    watcher.requestLook();
    return true;
}

void SqliteStoragePrivate::lookForForeignChanges()
{
    // Said first: whoever holds the lock or the notices asks for it when done.
    lookDue = true;
    std::unique_lock<std::recursive_mutex> lock(mutex, std::try_to_lock);
    if (!lock || noticeHolds > 0 || callDepth > 0)
        return;
    lookDue = false;
    if (!tables)
        return;
    const qint64 dataVersion = connection.dataVersion();
    if (dataVersion != seenDataVersion && catchUp())
        seenDataVersion = dataVersion;
    if (horizonDue)
        extendHorizon();
    const bool hasNews = foreignNoticeDue;
    foreignNoticeDue = false;
    lock.unlock();
    if (hasNews)
        notify(QStringLiteral("changed by another process"));
}

void SqliteStoragePrivate::notify(const QString &info)
{
    q->notifyModified(info);
}

StorageCall::StorageCall(SqliteStoragePrivate &storage) : m_storage(storage), m_lock(storage.mutex)
{
    if (m_storage.callDepth++ == 0)
        m_storage.connection.clearErrors();
}

StorageCall::~StorageCall()
{
    release();
}

bool StorageCall::ended(bool succeeded)
{
    m_storage.error = succeeded ? SqliteError() : m_storage.connection.lastError();
    // A connection that is closed has no file to name.
    if (m_storage.error.message.startsWith(QLatin1Char(':')))
        m_storage.error.message.prepend(m_storage.fileName);
    return succeeded;
}

void StorageCall::release()
{
    if (!m_lock)
        return;
    --m_storage.callDepth;
    m_lock.unlock();
    if (m_storage.lookDue.exchange(false))
        m_storage.watcher.requestLook();
}

SqliteStorage::SqliteStorage(const ExtendedCalendar::Ptr &calendar, const QString &databaseName)
    : ExtendedStorage(calendar),
      d(std::make_unique<SqliteStoragePrivate>(this, calendar, databaseName))
{
}

SqliteStorage::~SqliteStorage() = default;

QString SqliteStorage::defaultFile()
{
    DefaultFile &file = theDefaultFile();
    const std::lock_guard<std::mutex> lock(file.mutex);
    if (!file.isFixed) {
        file.isFixed = true;
        file.name = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
            + QLatin1String("/daskel/calendar.db");
    }
    return file.name;
}

bool SqliteStorage::setDefaultFile(const QString &databaseName)
{
    DefaultFile &file = theDefaultFile();
    const std::lock_guard<std::mutex> lock(file.mutex);
    if (file.isFixed || databaseName.isEmpty())
        return false;
    file.isFixed = true;
    file.name = databaseName;
    return true;
}

ExtendedStorage::Ptr ExtendedCalendar::defaultStorage(const Ptr &calendar)
{
    return QSharedPointer<SqliteStorage>::create(calendar);
}

QString SqliteStorage::databaseName() const
{
    return d->fileName;
}

QList<int> SqliteStorage::saveErrors() const
{
    const std::lock_guard<std::recursive_mutex> lock(d->mutex);
    return d->saveErrors;
}

QList<int> SqliteStorage::modifyNotebookErrors() const
{
    const std::lock_guard<std::recursive_mutex> lock(d->mutex);
    return d->notebookErrors;
}

int SqliteStorage::errorCode() const
{
    const std::lock_guard<std::recursive_mutex> lock(d->mutex);
    return d->error.primary;
}

QString SqliteStorage::errorMessage() const
{
    const std::lock_guard<std::recursive_mutex> lock(d->mutex);
    return d->error.message;
}

bool SqliteStorage::open()
{
    StorageCall call(*d);
    return call.ended(d->open());
}

bool SqliteStorage::close()
{
    StorageCall call(*d);
    d->watcher.stop();
    d->close();
    return call.ended(true);
}

bool SqliteStorage::isOpen() const
{
    const std::lock_guard<std::recursive_mutex> lock(d->mutex);
    return d->tables != nullptr;
}

void SqliteStorage::holdNotices()
{
    // Whoever looks right now gets done first.
    const std::lock_guard<std::recursive_mutex> lock(d->mutex);
    ++d->noticeHolds;
}

void SqliteStorage::releaseNotices()
{
    if (--d->noticeHolds == 0 && d->lookDue.exchange(false))
        d->watcher.requestLook();
}
} // namespace mKCal
