// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "rawdatabase.h"

#include "bench.h"

#include <sqlite3.h>

namespace
{
/// The child tables in the order of the bits of Components.flags.
constexpr const char *childTables[] = {"Alarm", "Attendee",   "Rule",      "Dates",
                                       "Props", "Attachment", "Conference"};

void touchColumns(sqlite3_stmt *statement)
{
    const int count = sqlite3_data_count(statement);
    for (int i = 0; i < count; ++i) {
        switch (sqlite3_column_type(statement, i)) {
        case SQLITE_INTEGER:
            sqlite3_column_int64(statement, i);
            break;
        case SQLITE_FLOAT:
            sqlite3_column_double(statement, i);
            break;
        case SQLITE_NULL:
            break;
        default:
            sqlite3_column_text(statement, i);
            sqlite3_column_bytes(statement, i);
        }
    }
}

int statementCount = 0;

int countStatement(unsigned, void *, void *, void *)
{
    ++statementCount;
    return 0;
}

int watchConnection(sqlite3 *database, char **, const struct sqlite3_api_routines *)
{
    return sqlite3_trace_v2(database, SQLITE_TRACE_STMT, countStatement, nullptr);
}

const auto watcher = reinterpret_cast<void (*)()>(watchConnection);
} // namespace

RawDatabase::RawDatabase(const QString &fileName)
{
    require(sqlite3_open(fileName.toUtf8().constData(), &m_database) == SQLITE_OK, fileName);
    constexpr const char *pragmas = "PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL;"
                                    "PRAGMA busy_timeout=5000; PRAGMA foreign_keys=ON";
    require(sqlite3_exec(m_database, pragmas, nullptr, nullptr, nullptr) == SQLITE_OK, fileName);
    m_begin = prepare("BEGIN IMMEDIATE");
    m_update = prepare("UPDATE Components SET summary = ? WHERE id = ?");
    m_commit = prepare("COMMIT");
}

RawDatabase::~RawDatabase()
{
    for (sqlite3_stmt *statement : std::as_const(m_statements)) {
        sqlite3_finalize(statement);
    }
    sqlite3_close(m_database);
}

sqlite3_stmt *RawDatabase::prepare(const QByteArray &sql)
{
    sqlite3_stmt *statement = nullptr;
    require(sqlite3_prepare_v2(m_database, sql.constData(), -1, &statement, nullptr) == SQLITE_OK,
            QString::fromUtf8(sqlite3_errmsg(m_database)));
    m_statements.append(statement);
    return statement;
}

int RawDatabase::readAll(const QByteArray &condition, const QVector<qint64> &values)
{
    sqlite3_stmt *query = prepare("SELECT id, flags, * FROM Components WHERE " + condition);
    for (int i = 0; i < values.size(); ++i) {
        sqlite3_bind_int64(query, i + 1, values.at(i));
    }
    int rows = 0;
    while (sqlite3_step(query) == SQLITE_ROW) {
        touchColumns(query);
        rows += 1 + readChildren(sqlite3_column_int64(query, 0), sqlite3_column_int64(query, 1));
    }
    return rows;
}

int RawDatabase::readChildren(qint64 id, qint64 flags)
{
    int rows = 0;
    for (int table = 0; table < int(m_children.size()); ++table) {
        if ((flags & (qint64(1) << table)) == 0) {
            continue;
        }
        sqlite3_stmt *&query = m_children[std::size_t(table)];
        if (query == nullptr) {
            query = prepare(QByteArray("SELECT * FROM ") + childTables[table]
                            + " WHERE comp = ? ORDER BY pos");
        }
        sqlite3_bind_int64(query, 1, id);
        while (sqlite3_step(query) == SQLITE_ROW) {
            touchColumns(query);
            ++rows;
        }
        sqlite3_reset(query);
    }
    return rows;
}

void RawDatabase::run(sqlite3_stmt *statement)
{
    require(sqlite3_step(statement) == SQLITE_DONE, QString::fromUtf8(sqlite3_errmsg(m_database)));
    sqlite3_reset(statement);
}

void RawDatabase::updateSummary(qint64 id, const QByteArray &summary)
{
    sqlite3_bind_text(m_update, 1, summary.constData(), int(summary.size()), SQLITE_STATIC);
    sqlite3_bind_int64(m_update, 2, id);
    run(m_begin);
    run(m_update);
    run(m_commit);
}

qint64 RawDatabase::idOf(const QByteArray &uid)
{
    sqlite3_stmt *query = prepare("SELECT id FROM Components WHERE uid = ? AND state = 0");
    sqlite3_bind_text(query, 1, uid.constData(), int(uid.size()), SQLITE_STATIC);
    require(sqlite3_step(query) == SQLITE_ROW, QString::fromUtf8(uid));
    const qint64 id = sqlite3_column_int64(query, 0);
    sqlite3_reset(query);
    return id;
}

StatementCounter::StatementCounter()
{
    statementCount = 0;
    sqlite3_auto_extension(watcher);
}

StatementCounter::~StatementCounter()
{
    sqlite3_cancel_auto_extension(watcher);
}

int StatementCounter::count() const
{
    return statementCount;
}
