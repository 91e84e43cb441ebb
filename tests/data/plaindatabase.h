// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef PLAINDATABASE_H
#define PLAINDATABASE_H

#include "db_instance_p.h"
#include "plainstorage.h"
#include "testenvironment.h"

#include <daskel/expandedincidencescache.h>

/// DbInstance on a PlainStorage for one test, with a fixed today, zone and locale.
class PlainDatabase
{
public:
    explicit PlainDatabase(const QDate &today = QDate(2011, 3, 10),
                           const QByteArray &zone = "Europe/Helsinki")
        : environment(today, zone)
    {
        DbInstancePrivate::makeStorage = [this](const mKCal::ExtendedCalendar::Ptr &calendar) {
            const auto made = QSharedPointer<PlainStorage>::create(calendar);
            calendar->addNotebook(QStringLiteral("notebook"), true);
            calendar->setDefaultNotebook(QStringLiteral("notebook"));
            prepare(*made);
            storage = made.data();
            return made;
        };
    }

    ~PlainDatabase()
    {
        ExpandedIncidencesCache::instance()->clearExpandedIncidences();
        DbInstance::destroy();
        DbInstancePrivate::makeStorage = &mKCal::ExtendedCalendar::defaultStorage;
    }
    Q_DISABLE_COPY(PlainDatabase)

    /// Opens anew; not enabled.
    void open() { DbInstance::recreate(); }
    /// Opens anew and enables for @p user; what that called is forgotten.
    void openEnabled(DbInstance::DbUser user)
    {
        open();
        DbInstance::instance()->setUser(user);
        DbInstance::instance()->enableDb();
        storage->calls.clear();
    }

    QString takeCalls() { return storage->takeCalls(); }

    TestEnvironment environment;
    /// Called with each storage before it is opened.
    std::function<void(PlainStorage &)> prepare = [](PlainStorage &) {};
    PlainStorage *storage = nullptr;
};

#endif
