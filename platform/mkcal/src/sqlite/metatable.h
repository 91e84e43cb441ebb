// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_METATABLE_H
#define MKCAL_METATABLE_H

#include "sqlite/statement.h"

#include <QString>

namespace mKCal
{
/// Who wrote last, and how often anybody has.
struct ChangeMark {
    qint64 counter = 0;
    QString writer;
};

/// The table of single values: the change counter with its last writer, the default notebook.
class MetaTable
{
public:
    explicit MetaTable(Connection &connection);

    bool readMark(ChangeMark *mark);
    /// Moves the counter by one in @p writer's name, in the current transaction, and gives its new
    /// value.
    bool bump(const QString &writer, qint64 *counter);

    /// Empty when there is none (or on failure).
    QString defaultNotebook();
    bool setDefaultNotebook(const QString &uid);

private:
    bool write(const QString &key, const QString &value);

    Statement m_readMark;
    Statement m_bump;
    Statement m_read;
    Statement m_write;
};
} // namespace mKCal

#endif
