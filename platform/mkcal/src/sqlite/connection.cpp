// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/connection.h"

#include "sqlite/logging.h"
#include "sqlite/schema.h"
#include "sqlite/statement.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

Q_LOGGING_CATEGORY(lcSqlite, "mkcal.sqlite")

namespace mKCal
{
namespace
{
constexpr int busyMilliseconds = 5000;

void makePrivateFolder(const QString &folder)
{
    if (QFileInfo::exists(folder))
        return;
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

/// SQLite would make it readable for everybody. Only a file that is not there is touched: closing
/// a descriptor of an open database drops the locks of the whole process.
void makePrivateFile(const QString &fileName)
{
    const QByteArray path = QFile::encodeName(fileName);
    const int file = ::open(path.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file >= 0)
        ::close(file);
}

/// Without its folder being writable a WAL file can be read only by promising that nobody writes;
/// that holds when there is no log beside it.
QByteArray immutableUri(const QString &fileName)
{
    return QUrl::fromLocalFile(QFileInfo(fileName).absoluteFilePath()).toEncoded() + "?immutable=1";
}
} // namespace

Connection::Connection() = default;

Connection::~Connection()
{
    close();
}

bool Connection::open(const QString &fileName, Mode mode)
{
    close();
    m_fileName = fileName;
    if (mode == ReadWriteCreate) {
        makePrivateFolder(QFileInfo(fileName).absolutePath());
        makePrivateFile(fileName);
    }
    const QByteArray path = QFile::encodeName(fileName);
    if (openPath(path,
                 mode == ReadWriteCreate ? SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE
                                         : SQLITE_OPEN_READONLY)
        && setPragmas(mode))
        return true;
    const bool unwritableFolder =
        m_lastError.primary == SQLITE_CANTOPEN || m_lastError.extended == SQLITE_READONLY_DIRECTORY;
    const bool hasLog = QFileInfo(fileName + QLatin1String("-wal")).size() > 0;
    if (mode != ReadWriteCreate && unwritableFolder && !hasLog && QFileInfo(fileName).isFile()) {
        closeHandle();
        if (openPath(immutableUri(fileName), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI)
            && setPragmas(mode))
            return true;
    }
    closeHandle();
    return false;
}

bool Connection::openPath(const QByteArray &path, int flags)
{
    // The owner sees to it that one thread at a time is here; SQLite's own mutex would be taken
    // for each column of each row.
    const int code =
        sqlite3_open_v2(path.constData(), &m_database, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    if (code != SQLITE_OK) {
        noteError(m_database ? sqlite3_extended_errcode(m_database) : code);
        return false;
    }
    sqlite3_extended_result_codes(m_database, 1);
    sqlite3_busy_timeout(m_database, busyMilliseconds);
    return true;
}

bool Connection::setPragmas(Mode mode)
{
    // SQLite refuses a file that is shorter than it says, unless the schema may be mended.
    if (mode == Salvage && !execute("PRAGMA writable_schema = ON"))
        return false;
    if (mode != ReadWriteCreate)
        return execute("PRAGMA trusted_schema = OFF; SELECT count(*) FROM sqlite_master");
    return execute("PRAGMA trusted_schema = OFF; PRAGMA synchronous = FULL;"
                   " PRAGMA foreign_keys = ON; PRAGMA cache_size = -8000")
        && useWriteAheadLog();
}

/// Such a file is to be refused by its schema, unchanged.
bool Connection::isOfAnotherProgram()
{
    Statement mark(*this,
                   "SELECT application_id, (SELECT count(*) FROM sqlite_master)"
                   " FROM pragma_application_id");
    return mark.next() && mark.integer(0) != Schema::applicationId && mark.integer(1) > 0;
}

bool Connection::useWriteAheadLog()
{
    if (isOfAnotherProgram())
        return true;
    // While another process turns the log on in a new file, SQLite answers "busy" at once instead
    // of being patient.
    QElapsedTimer patience;
    patience.start();
    for (;;) {
        Statement pragma(*this, "PRAGMA journal_mode = WAL");
        if (pragma.next()) {
            const QString answer = pragma.text(0);
            if (answer == QLatin1String("wal"))
                return true;
            noteError(
                SQLITE_CANTOPEN,
                QStringLiteral("the write-ahead log cannot be used here (got \"%1\")").arg(answer));
            return false;
        }
        if ((pragma.code() & 0xff) != SQLITE_BUSY || patience.elapsed() > busyMilliseconds)
            return false;
        clearErrors();
        sqlite3_sleep(5);
    }
}

void Connection::close()
{
    closeHandle();
    m_fileName.clear();
}

void Connection::closeHandle()
{
    m_statements.clear();
    if (!m_database)
        return;
    const int code = sqlite3_close_v2(m_database);
    if (code != SQLITE_OK)
        qCWarning(lcSqlite) << m_fileName << "did not close:" << sqlite3_errstr(code);
    m_database = nullptr;
}

bool Connection::execute(const char *sql)
{
    if (!m_database) {
        noteError(SQLITE_MISUSE);
        return false;
    }
    const int code = sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        noteError(code);
    return code == SQLITE_OK;
}

Statement &Connection::statement(const QByteArray &sql)
{
    std::shared_ptr<Statement> &kept = m_statements[sql];
    if (!kept)
        kept = std::make_shared<Statement>(*this, sql);
    return *kept;
}

bool Connection::beginImmediate(Lock lock)
{
    if (lock == Lock::Awaited)
        return statement(QByteArrayLiteral("BEGIN IMMEDIATE")).run();
    sqlite3_busy_timeout(m_database, 0);
    const bool begun = statement(QByteArrayLiteral("BEGIN IMMEDIATE")).run();
    sqlite3_busy_timeout(m_database, busyMilliseconds);
    return begun;
}

bool Connection::commit()
{
    return statement(QByteArrayLiteral("COMMIT")).run();
}

void Connection::rollback()
{
    if (inTransaction())
        statement(QByteArrayLiteral("ROLLBACK")).run();
}

bool Connection::inTransaction() const
{
    return m_database && sqlite3_get_autocommit(m_database) == 0;
}

qint64 Connection::lastInsertId() const
{
    return m_database ? sqlite3_last_insert_rowid(m_database) : 0;
}

int Connection::changes() const
{
    return m_database ? sqlite3_changes(m_database) : 0;
}

qint64 Connection::dataVersion()
{
    Statement &pragma = statement(QByteArrayLiteral("PRAGMA data_version"));
    if (!pragma.next())
        return -1;
    const qint64 version = pragma.integer(0);
    pragma.reset();
    return version;
}

bool Connection::hasMoved() const
{
    int moved = 0;
    if (m_database)
        sqlite3_file_control(m_database, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

void Connection::clearErrors()
{
    m_lastError = SqliteError();
    m_errorCodes.clear();
}

void Connection::noteError(int code)
{
    const bool wordsKnown = m_database && sqlite3_extended_errcode(m_database) == code;
    noteError(code,
              QString::fromUtf8(wordsKnown ? sqlite3_errmsg(m_database) : sqlite3_errstr(code)));
}

void Connection::noteError(int code, const QString &text)
{
    m_lastError.primary = code & 0xff;
    m_lastError.extended = code;
    m_lastError.message = QStringLiteral("%1: %2").arg(m_fileName, text);
    m_errorCodes.append(m_lastError.primary);
}

Transaction::Transaction(Connection &connection, Connection::Lock lock)
    : m_connection(connection), m_active(connection.beginImmediate(lock))
{
}

Transaction::~Transaction()
{
    rollback();
}

bool Transaction::commit()
{
    if (!m_active)
        return false;
    const bool committed = m_connection.commit();
    if (!committed)
        m_connection.rollback();
    m_active = false;
    return committed;
}

void Transaction::rollback()
{
    if (m_active)
        m_connection.rollback();
    m_active = false;
}
} // namespace mKCal
