// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_STATEMENT_H
#define MKCAL_STATEMENT_H

#include <QByteArray>
#include <QString>
#include <QVector>

#include <variant>

struct sqlite3_stmt;

namespace mKCal
{
class Connection;

/// What is bound to a parameter; the empty alternative is NULL.
using SqlValue = std::variant<std::monostate, qint64, double, QString, QByteArray>;
using SqlValues = QVector<SqlValue>;

/// A prepared statement. It is prepared at its first use and kept; parameters and columns are
/// counted as SQLite does, from 1 and from 0. Failures are kept in the connection.
///
///     Statement query(connection, "SELECT value FROM Meta WHERE key = ?");
///     query.bind(1, key);
///     while (query.next())
///         use(query.text(0));
///     if (query.failed()) ...
class Statement
{
public:
    Statement(Connection &connection, QByteArray sql);
    ~Statement();
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    /// Compiles the text when that has not happened yet; binding and stepping do it too.
    bool prepare();

    // The bound text and bytes are held until they are bound anew, not copied. A null string or
    // byte array binds NULL.
    void bind(int parameter, qint64 value);
    void bind(int parameter, int value) { bind(parameter, qint64(value)); }
    void bind(int parameter, bool value) { bind(parameter, qint64(value)); }
    void bind(int parameter, double value);
    void bind(int parameter, const QString &value);
    void bind(int parameter, const QByteArray &value);
    void bind(int parameter, const char *) = delete;
    void bind(int parameter, const SqlValue &value);
    /// Binds as text what is known to be ASCII.
    void bindAscii(int parameter, const QByteArray &value);
    void bindNull(int parameter);
    /// Binds from parameter 1 on.
    void bindAll(const SqlValues &values);

    /// Goes to the next row. At the end, and on failure, the statement is reset and false comes.
    bool next();
    /// For what gives no rows: runs to the end. False on failure.
    bool run();
    /// Gives the rows up. Needed after next() answered true and the rest is not wanted: a held row
    /// keeps a read transaction open.
    void reset();
    /// Whether the last next() or run() failed.
    bool failed() const { return m_code != 0; }
    /// Its extended code, 0 when it did not fail.
    int code() const { return m_code; }

    // Columns of the current row. A value of another type is converted as SQLite does.
    bool isNull(int column) const;
    qint64 integer(int column) const;
    /// Limited to the range of int.
    int smallInteger(int column) const;
    double real(int column) const;
    QString text(int column) const;
    QByteArray bytes(int column) const;
    bool isBlob(int column) const;

    sqlite3_stmt *handle() const { return m_statement; }

private:
    bool readyToBind(int parameter);
    bool fail(int code);

    Connection &m_connection;
    QByteArray m_sql;
    sqlite3_stmt *m_statement = nullptr;
    QVector<QByteArray> m_held; ///< what SQLite points into
    int m_code = 0;
    bool m_stepping = false;
};
} // namespace mKCal

#endif
