// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_CLI_DATABASE_H
#define DASKEL_CLI_DATABASE_H

#include <mkcal/extendedstorage.h>

#include <QSet>

class Console;
class QCommandLineParser;

/// The person's calendar database, opened as every process of the calendar opens it, and closed
/// when this object goes.
class Database
{
public:
    /// Opens it; where that fails, says why on @p console and isOpen() is false.
    explicit Database(Console &console);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    bool isOpen() const { return m_isOpen; }
    mKCal::ExtendedCalendar::Ptr calendar() const;
    mKCal::ExtendedStorage::Ptr storage() const;

    /// The notebook with that UID, or the only one with that name; where there is none, says so on
    /// the console.
    mKCal::Notebook::Ptr findNotebook(const QString &uidOrName) const;

private:
    Console &m_console;
    bool m_isOpen = false;
};

/// Which notebooks a listing shows: the visible ones, or all with --all-notebooks.
class NotebookFilter
{
public:
    static void declare(QCommandLineParser &parser);
    NotebookFilter(const Database &database, const QCommandLineParser &parser);

    bool shows(const KCalCore::Incidence::Ptr &incidence) const;
    bool showsNotebook(const QString &uid) const { return !m_leftOut.contains(uid); }

private:
    mKCal::ExtendedCalendar::Ptr m_calendar;
    QSet<QString> m_leftOut;
};

#endif
