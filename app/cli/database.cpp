// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "database.h"

#include "console.h"

#include <daskel/db_instance.h>

#include <QCommandLineParser>

Database::Database(Console &console) : m_console(console)
{
    DbInstance *db = DbInstance::instance();
    if (!db->didDatabaseOpenSucceed()) {
        m_console.message(
            QStringLiteral("cannot open the calendar: %1").arg(storage()->errorMessage()));
        return;
    }
    db->setUser(DbInstance::NoUser);
    db->enableDb();
    m_isOpen = true;
}

Database::~Database()
{
    DbInstance::instance()->destroy();
}

mKCal::ExtendedCalendar::Ptr Database::calendar() const
{
    return DbInstance::instance()->calendar();
}

mKCal::ExtendedStorage::Ptr Database::storage() const
{
    return DbInstance::instance()->storage();
}

mKCal::Notebook::Ptr Database::findNotebook(const QString &uidOrName) const
{
    if (const auto notebook = storage()->notebook(uidOrName)) {
        return notebook;
    }
    mKCal::Notebook::List named;
    for (const auto &notebook : storage()->notebooks()) {
        if (notebook->name() == uidOrName) {
            named.append(notebook);
        }
    }
    if (named.size() == 1) {
        return named.first();
    }
    m_console.message(named.isEmpty()
                          ? QStringLiteral("there is no notebook '%1'").arg(uidOrName)
                          : QStringLiteral("there are %1 notebooks named '%2': give the UID")
                                .arg(named.size())
                                .arg(uidOrName));
    return {};
}

void NotebookFilter::declare(QCommandLineParser &parser)
{
    parser.addOption({QStringLiteral("all-notebooks"),
                      QStringLiteral("Take notebooks along that are not visible.")});
}

NotebookFilter::NotebookFilter(const Database &database, const QCommandLineParser &parser)
    : m_calendar(database.calendar())
{
    if (parser.isSet(QStringLiteral("all-notebooks"))) {
        return;
    }
    for (const auto &notebook : database.storage()->notebooks()) {
        if (!notebook->isVisible()) {
            m_leftOut.insert(notebook->uid());
        }
    }
}

bool NotebookFilter::shows(const KCalCore::Incidence::Ptr &incidence) const
{
    return m_leftOut.isEmpty() || showsNotebook(m_calendar->notebook(incidence));
}
