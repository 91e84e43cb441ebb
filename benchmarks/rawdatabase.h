// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef RAWDATABASE_H
#define RAWDATABASE_H

#include <QByteArray>
#include <QVector>

#include <array>

struct sqlite3;
struct sqlite3_stmt;

/// A calendar database read and written through SQLite's C API alone: the floor of what a storage
/// on it can cost. Failures end the program.
class RawDatabase
{
public:
    explicit RawDatabase(const QString &fileName);
    ~RawDatabase();
    RawDatabase(const RawDatabase &) = delete;
    RawDatabase &operator=(const RawDatabase &) = delete;

    /// Takes every column of the rows of Components for which @p condition holds, and of the child
    /// rows that their flags tell of; returns how many rows those were together.
    int readAll(const QByteArray &condition, const QVector<qint64> &values);
    /// Changes the summary of one row in a transaction of its own.
    void updateSummary(qint64 id, const QByteArray &summary);
    qint64 idOf(const QByteArray &uid);

private:
    sqlite3_stmt *prepare(const QByteArray &sql);
    void run(sqlite3_stmt *statement);
    int readChildren(qint64 id, qint64 flags);

    sqlite3 *m_database = nullptr;
    QVector<sqlite3_stmt *> m_statements;
    std::array<sqlite3_stmt *, 7> m_children = {}; ///< prepared when they are first needed
    sqlite3_stmt *m_begin = nullptr;
    sqlite3_stmt *m_update = nullptr;
    sqlite3_stmt *m_commit = nullptr;
};

/// Counts the statements that any connection opened during its life runs.
class StatementCounter
{
public:
    StatementCounter();
    ~StatementCounter();
    int count() const;
};

#endif
