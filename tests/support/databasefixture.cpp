// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "databasefixture.h"

#include <daskel/db_instance.h>
#include <daskel/expandedincidencescache.h>

#include <QDir>
#include <QTemporaryDir>

namespace
{
/// A process can name its database only once.
QString processFolder()
{
    static const QTemporaryDir folder;
    static const bool isSet =
        mKCal::SqliteStorage::setDefaultFile(folder.filePath(QStringLiteral("daskel/calendar.db")));
    if (!isSet)
        qFatal("the database was used before its test began");
    return folder.filePath(QStringLiteral("daskel"));
}
} // namespace

DatabaseFixture::DatabaseFixture(const QDate &today, const QByteArray &zone)
    : environment(today, zone)
{
    processFolder();
}

DatabaseFixture::~DatabaseFixture()
{
    ExpandedIncidencesCache::instance()->clearExpandedIncidences();
    DbInstance::destroy();
    removeFiles();
}

QString DatabaseFixture::fileName()
{
    return processFolder() + QLatin1String("/calendar.db");
}

void DatabaseFixture::open()
{
    DbInstance::recreate();
}

void DatabaseFixture::removeFiles()
{
    QDir(processFolder()).removeRecursively();
}

OtherProcess::OtherProcess()
    : calendar(mKCal::ExtendedCalendar::Ptr::create(KDateTime::Spec::LocalZone())),
      storage(QSharedPointer<mKCal::SqliteStorage>::create(calendar, DatabaseFixture::fileName()))
{
    if (!storage->open())
        qFatal("%s", qPrintable(storage->errorMessage()));
}
