// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/schema.h"

#include "sqlite/connection.h"
#include "sqlite/statement.h"

#include <QDateTime>
#include <QFile>

#include <sqlite3.h>

namespace mKCal
{
namespace
{
qint64 number(Connection &connection, const QByteArray &query)
{
    Statement statement(connection, query);
    return statement.next() ? statement.integer(0) : -1;
}

bool runStep(Connection &connection, int version)
{
    QFile script(QStringLiteral(":/mkcal/schema/%1.sql").arg(version));
    if (!script.open(QIODevice::ReadOnly)) {
        connection.noteError(SQLITE_INTERNAL,
                             QStringLiteral("the step to format %1 is missing").arg(version));
        return false;
    }
    return connection.execute(script.readAll().constData());
}

/// In one transaction, so that no process ever sees a file between two versions. @p from is the
/// version that the file must still have once the write lock is got, -1 for an empty one.
bool runSteps(Connection &connection, int from)
{
    Transaction transaction(connection);
    if (!transaction.isActive())
        return false;
    const bool empty = number(connection, "SELECT count(*) FROM sqlite_master") == 0;
    if ((empty ? -1 : Schema::version(connection)) != from)
        return true; // another process was faster
    for (int version = from + 1; version <= Schema::currentVersion; ++version) {
        if (!runStep(connection, version))
            return false;
    }
    const QByteArray marks = "PRAGMA application_id = " + QByteArray::number(Schema::applicationId)
        + "; PRAGMA user_version = " + QByteArray::number(Schema::currentVersion);
    return connection.execute(marks.constData()) && transaction.commit();
}

bool copyBeside(Connection &connection, int version)
{
    const QString time =
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
    const QString plain =
        QStringLiteral("%1.v%2-%3").arg(connection.fileName()).arg(version).arg(time);
    QString copy = plain;
    for (int i = 2; QFile::exists(copy); ++i)
        copy = QStringLiteral("%1-%2").arg(plain).arg(i);
    Statement vacuum(connection, "VACUUM INTO ?");
    vacuum.bind(1, copy);
    if (!vacuum.run())
        return false;
    return QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
}

} // namespace

int Schema::version(Connection &connection)
{
    return int(number(connection, "PRAGMA user_version"));
}

bool Schema::prepare(Connection &connection)
{
    const qint64 tables = number(connection, "SELECT count(*) FROM sqlite_master");
    if (tables < 0)
        return false;
    if (tables == 0 && !runSteps(connection, -1))
        return false;
    if (!isKnown(connection))
        return false;
    const int found = version(connection);
    return found == currentVersion
        || (copyBeside(connection, found) && runSteps(connection, found));
}

bool Schema::isKnown(Connection &connection)
{
    const qint64 application = number(connection, "PRAGMA application_id");
    const int found = version(connection);
    if (found < 0 || application < 0)
        return false;
    if (application != applicationId) {
        connection.noteError(SQLITE_NOTADB, QStringLiteral("this is not a calendar database"));
        return false;
    }
    if (found > currentVersion) {
        connection.noteError(SQLITE_MISMATCH,
                             QStringLiteral("a newer version of the calendar wrote this file "
                                            "(its format is %1, the newest known here is %2)")
                                 .arg(found)
                                 .arg(currentVersion));
        return false;
    }
    return true;
}
} // namespace mKCal
