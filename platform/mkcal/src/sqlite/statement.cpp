// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/statement.h"

#include "sqlite/connection.h"

#include <limits>
#include <sqlite3.h>

namespace mKCal
{
Statement::Statement(Connection &connection, QByteArray sql)
    : m_connection(connection), m_sql(std::move(sql))
{
}

Statement::~Statement()
{
    sqlite3_finalize(m_statement);
}

bool Statement::prepare()
{
    if (m_statement)
        return true;
    if (!m_connection.isOpen())
        return fail(SQLITE_MISUSE);
    const int code = sqlite3_prepare_v3(m_connection.handle(), m_sql.constData(), m_sql.size() + 1,
                                        SQLITE_PREPARE_PERSISTENT, &m_statement, nullptr);
    if (code != SQLITE_OK)
        return fail(code);
    m_held.resize(sqlite3_bind_parameter_count(m_statement));
    return true;
}

bool Statement::fail(int code)
{
    m_code = code;
    m_connection.noteError(code);
    return false;
}

bool Statement::readyToBind(int parameter)
{
    reset();
    return prepare() && parameter >= 1 && parameter <= m_held.size();
}

void Statement::bind(int parameter, qint64 value)
{
    if (readyToBind(parameter))
        sqlite3_bind_int64(m_statement, parameter, value);
}

void Statement::bind(int parameter, double value)
{
    if (readyToBind(parameter))
        sqlite3_bind_double(m_statement, parameter, value);
}

void Statement::bind(int parameter, const QString &value)
{
    if (value.isNull())
        return bindNull(parameter);
    if (!readyToBind(parameter))
        return;
    QByteArray &held = m_held[parameter - 1];
    held = value.toUtf8();
    sqlite3_bind_text(m_statement, parameter, held.constData(), held.size(), SQLITE_STATIC);
}

void Statement::bind(int parameter, const QByteArray &value)
{
    if (value.isNull())
        return bindNull(parameter);
    if (!readyToBind(parameter))
        return;
    QByteArray &held = m_held[parameter - 1];
    held = value;
    sqlite3_bind_blob(m_statement, parameter, held.constData(), held.size(), SQLITE_STATIC);
}

void Statement::bindAscii(int parameter, const QByteArray &value)
{
    if (value.isNull())
        return bindNull(parameter);
    if (!readyToBind(parameter))
        return;
    QByteArray &held = m_held[parameter - 1];
    held = value;
    sqlite3_bind_text(m_statement, parameter, held.constData(), held.size(), SQLITE_STATIC);
}

void Statement::bind(int parameter, const SqlValue &value)
{
    if (std::holds_alternative<std::monostate>(value))
        bindNull(parameter);
    else if (const auto *integer = std::get_if<qint64>(&value))
        bind(parameter, *integer);
    else if (const auto *real = std::get_if<double>(&value))
        bind(parameter, *real);
    else if (const auto *text = std::get_if<QString>(&value))
        bind(parameter, *text);
    else
        bind(parameter, std::get<QByteArray>(value));
}

void Statement::bindNull(int parameter)
{
    if (readyToBind(parameter))
        sqlite3_bind_null(m_statement, parameter);
}

void Statement::bindAll(const SqlValues &values)
{
    for (int i = 0; i < values.size(); ++i)
        bind(i + 1, values.at(i));
}

bool Statement::next()
{
    if (!prepare())
        return false;
    const int code = sqlite3_step(m_statement);
    m_stepping = code == SQLITE_ROW;
    if (m_stepping) {
        m_code = SQLITE_OK;
        return true;
    }
    if (code == SQLITE_DONE)
        m_code = SQLITE_OK;
    else
        fail(code);
    sqlite3_reset(m_statement);
    return false;
}

bool Statement::run()
{
    while (next()) { }
    return !failed();
}

void Statement::reset()
{
    if (!m_stepping)
        return;
    sqlite3_reset(m_statement);
    m_stepping = false;
}

bool Statement::isNull(int column) const
{
    return sqlite3_column_type(m_statement, column) == SQLITE_NULL;
}

qint64 Statement::integer(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

int Statement::smallInteger(int column) const
{
    using Limits = std::numeric_limits<int>;
    return int(qBound<qint64>(Limits::min(), integer(column), Limits::max()));
}

double Statement::real(int column) const
{
    return sqlite3_column_double(m_statement, column);
}

QString Statement::text(int column) const
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(m_statement, column));
    return text ? QString::fromUtf8(text, sqlite3_column_bytes(m_statement, column)) : QString();
}

QByteArray Statement::bytes(int column) const
{
    // A blob without bytes has no address, but is not NULL.
    if (isNull(column))
        return {};
    const auto *bytes = static_cast<const char *>(sqlite3_column_blob(m_statement, column));
    return bytes ? QByteArray(bytes, sqlite3_column_bytes(m_statement, column)) : QByteArray("");
}

bool Statement::isBlob(int column) const
{
    return sqlite3_column_type(m_statement, column) == SQLITE_BLOB;
}
} // namespace mKCal
