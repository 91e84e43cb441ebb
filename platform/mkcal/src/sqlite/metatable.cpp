// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/metatable.h"

namespace mKCal
{
namespace
{
const QString defaultNotebookKey = QStringLiteral("defaultNotebook");
}

MetaTable::MetaTable(Connection &connection)
    : m_readMark(connection,
                 "SELECT counter.value, writer.value FROM Meta AS counter, Meta AS writer"
                 " WHERE counter.key = 'change' AND writer.key = 'writer'"),
      m_bump(connection, "UPDATE Meta SET value = value + 1 WHERE key = 'change' RETURNING value"),
      m_read(connection, "SELECT value FROM Meta WHERE key = ?"),
      m_write(connection,
              "INSERT INTO Meta(key, value) VALUES (?, ?)"
              " ON CONFLICT (key) DO UPDATE SET value = excluded.value")
{
}

bool MetaTable::readMark(ChangeMark *mark)
{
    *mark = ChangeMark();
    if (!m_readMark.next())
        return !m_readMark.failed();
    mark->counter = m_readMark.integer(0);
    mark->writer = m_readMark.text(1);
    m_readMark.reset();
    return true;
}

bool MetaTable::bump(const QString &writer, qint64 *counter)
{
    if (!m_bump.next())
        return false;
    *counter = m_bump.integer(0);
    m_bump.reset();
    return write(QStringLiteral("writer"), writer);
}

QString MetaTable::defaultNotebook()
{
    m_read.bind(1, defaultNotebookKey);
    if (!m_read.next())
        return {};
    QString uid = m_read.text(0);
    m_read.reset();
    return uid;
}

bool MetaTable::setDefaultNotebook(const QString &uid)
{
    return write(defaultNotebookKey, uid);
}

bool MetaTable::write(const QString &key, const QString &value)
{
    m_write.bind(1, key);
    m_write.bind(2, value);
    return m_write.run();
}
} // namespace mKCal
