// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef FILLEDDATABASE_H
#define FILLEDDATABASE_H

#include "databasefixture.h"

#include <daskel/db_instance.h>

/// A database that holds some incidences in its default notebook, enabled for the calendar. It is
/// noon of Thursday, 10 March 2011.
class FilledDatabase
{
public:
    explicit FilledDatabase(const KCalCore::Incidence::List &incidences,
                            const KCalCore::Incidence::List &invisible = {})
    {
        // The first opening makes the notebooks.
        fixture.open();
        OtherProcess writer;
        for (const auto &incidence : incidences)
            writer.calendar->addIncidence(incidence, QString());
        const auto hidden = mKCal::Notebook::Ptr::create();
        hidden->setIsVisible(false);
        writer.storage->addNotebook(hidden);
        for (const auto &incidence : invisible)
            writer.calendar->addIncidence(incidence, hidden->uid());
        if (!writer.storage->save())
            qFatal("%s", qPrintable(writer.storage->errorMessage()));
        fixture.open();
        DbInstance::instance()->setUser(DbInstance::CalendarUser);
        DbInstance::instance()->enableDb();
    }

    static QDate today() { return {2011, 3, 10}; }

    DatabaseFixture fixture{today()};
};

#endif
