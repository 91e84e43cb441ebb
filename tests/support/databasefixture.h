// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DATABASEFIXTURE_H
#define DATABASEFIXTURE_H

#include "testenvironment.h"

#include <mkcal/sqlitestorage.h>

/// A database of its own for one test, in a folder of the process that goes with it: made empty at
/// the start, removed at the end, with a fixed today, zone and locale.
class DatabaseFixture
{
public:
    explicit DatabaseFixture(const QDate &today = QDate(2011, 3, 10),
                             const QByteArray &zone = "Europe/Helsinki");
    ~DatabaseFixture();
    Q_DISABLE_COPY(DatabaseFixture)

    static QString fileName();
    /// Opens it: DbInstance::instance() is fresh, not enabled.
    void open();

    TestEnvironment environment;

private:
    static void removeFiles();
};

/// The same database as another process has it open: own calendar, own connection.
class OtherProcess
{
public:
    OtherProcess();

    mKCal::ExtendedCalendar::Ptr calendar;
    QSharedPointer<mKCal::SqliteStorage> storage;
};

#endif
