// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_CONNECTION_H
#define MKCAL_CONNECTION_H

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <memory>

struct sqlite3;

namespace mKCal
{
class Statement;

/// What SQLite answered to the last call that failed.
struct SqliteError {
    int primary = 0; ///< SQLITE_BUSY and the like; 0 when nothing failed
    int extended = 0;
    QString message; ///< in words, with the file's name
};

/// One open SQLite database. Whoever owns it sees to it that one thread at a time uses it.
///
/// Statements made on it must be gone before it is closed or destroyed.
class Connection
{
public:
    enum Mode {
        ReadWriteCreate, ///< makes the folder (0700) and the file (0600) when they are missing
        ReadOnly, ///< never changes the file; a missing file is refused
        Salvage, ///< as ReadOnly, and reads what is left of a file that was cut off
    };

    Connection();
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    /// Opens @p fileName with the pragmas that every process of the calendar uses: WAL, full
    /// synchronisation, foreign keys, 5 s of patience with a lock. A database of another program
    /// is opened as it is, for Schema to refuse.
    bool open(const QString &fileName, Mode mode = ReadWriteCreate);
    void close();
    bool isOpen() const { return m_database != nullptr; }
    QString fileName() const { return m_fileName; }

    /// Runs statements without results, separated by semicolons.
    bool execute(const char *sql);

    /// The statement of that text, prepared once and kept until close(). For queries that are not
    /// nested in themselves; whoever needs one always holds a Statement of its own.
    Statement &statement(const QByteArray &sql);

    /// What to do while somebody else writes.
    enum class Lock {
        Awaited, ///< wait for it, up to 5 s
        Tried ///< refuse at once
    };
    /// Takes the write lock at once, so that what is read inside cannot be outdated when written.
    bool beginImmediate(Lock lock = Lock::Awaited);
    bool commit();
    /// Does nothing when SQLite has already rolled back by itself (full disk, failed write).
    void rollback();
    bool inTransaction() const;

    qint64 lastInsertId() const;
    /// How many rows the last statement changed.
    int changes() const;
    /// Moves when another connection has committed; stands still for own commits and while a row
    /// of a query is still held. -1 on failure.
    qint64 dataVersion();
    /// Whether the file was moved or deleted since it was opened: what is written then is lost.
    bool hasMoved() const;

    const SqliteError &lastError() const { return m_lastError; }
    /// The primary codes of everything that failed since clearErrors(), in order.
    QList<int> errorCodes() const { return m_errorCodes; }
    void clearErrors();
    /// Keeps @p code (extended) and SQLite's own words for it; for statements.
    void noteError(int code);
    /// Keeps a refusal of our own, @p text without the file's name, which is put before it.
    void noteError(int code, const QString &text);

    sqlite3 *handle() const { return m_database; }

private:
    bool openPath(const QByteArray &path, int flags);
    bool setPragmas(Mode mode);
    bool isOfAnotherProgram();
    bool useWriteAheadLog();
    void closeHandle();

    sqlite3 *m_database = nullptr;
    QString m_fileName;
    SqliteError m_lastError;
    QList<int> m_errorCodes;
    QHash<QByteArray, std::shared_ptr<Statement>> m_statements;
};

/// A write transaction that is rolled back unless it is committed.
class Transaction
{
public:
    /// Begins at once; isActive() tells whether the write lock was got.
    explicit Transaction(Connection &connection, Connection::Lock lock = Connection::Lock::Awaited);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    bool isActive() const { return m_active; }
    /// False when the database refused; everything since the begin is undone then.
    bool commit();
    void rollback();

private:
    Connection &m_connection;
    bool m_active;
};
} // namespace mKCal

#endif
