// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "database.h"

#include "console.h"

#include <daskel/db_instance.h>

#include <QCommandLineParser>
#include <QFileInfo>

namespace
{
/// Why the database could not be opened; what is no file or no folder is told more
/// plainly than the storage can.
QString openError(const DbInstance &db)
{
    const QFileInfo file(db.databaseFileName());
    if (file.isDir()) {
        return QStringLiteral("cannot open the calendar: '%1' is a folder").arg(file.filePath());
    }
    const QFileInfo folder(file.absolutePath());
    if (folder.isDir()) {
        return QStringLiteral("cannot open the calendar: %1").arg(db.storage()->errorMessage());
    }
    return QStringLiteral("cannot make the folder '%1' for the calendar").arg(folder.filePath());
}
} // namespace

Database::Database(Console &console) : m_console(console)
{
    DbInstance *db = DbInstance::instance();
    if (!db->didDatabaseOpenSucceed()) {
        m_console.message(openError(*db));
        return;
    }
    db->setUser(DbInstance::NoUser);
    db->enableDb();
    m_isOpen = true;
}

Database::~Database()
{
    DbInstance::destroy();
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
    if (auto notebook = storage()->notebook(uidOrName)) {
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
    if (named.isEmpty()) {
        m_console.message(QStringLiteral("there is no notebook '%1'").arg(uidOrName));
        return {};
    }
    QStringList uids;
    for (const auto &notebook : qAsConst(named)) {
        uids.append(notebook->uid());
    }
    m_console.message(
        QStringLiteral("%1 notebooks are named '%2', give the UID of one: %3")
            .arg(QString::number(named.size()), uidOrName, uids.join(QStringLiteral(", "))));
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
