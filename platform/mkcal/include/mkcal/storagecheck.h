// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_STORAGECHECK_H
#define MKCAL_STORAGECHECK_H

#include <QString>
#include <QStringList>

namespace mKCal
{
/// What a look at a database file found.
struct CheckReport {
    bool readable = false; ///< it is a calendar database of a version that we know
    bool intact = false; ///< SQLite's integrity check and ours found nothing
    int schemaVersion = 0;
    // How many there are; -1 when damage keeps them from being counted.
    int notebooks = 0;
    int events = 0;
    int todos = 0;
    int journals = 0;
    int deleted = 0;
    int overwritten = 0;
    int reminders = 0;
    QStringList problems; ///< one line each, what is wrong and where
    QString error; ///< why it could not be looked at; empty otherwise
};

/// Looks at @p databaseName without changing it.
CheckReport checkDatabase(const QString &databaseName);
/// Writes what can be saved of @p databaseName into the new file @p target, which must not exist,
/// while its folder must.
/// The damaged file is not changed. The report is of the new file; its problems name what was lost.
CheckReport repairDatabase(const QString &databaseName, const QString &target);
} // namespace mKCal

#endif
