// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_SQLITESTORAGE_H
#define MKCAL_SQLITESTORAGE_H

#include <mkcal/extendedstorage.h>

#include <QList>

namespace mKCal
{
class SqliteStoragePrivate;

/// The storage in an SQLite database file, shared by all processes of the calendar. Changes by
/// other processes are noticed, brought into the calendar and reported from the event loop.
class SqliteStorage : public ExtendedStorage
{
public:
    /// @param databaseName the file; its folder is made (private to the person) when missing.
    explicit SqliteStorage(const ExtendedCalendar::Ptr &calendar,
                           const QString &databaseName = defaultFile());
    ~SqliteStorage() override;

    /// The file that ExtendedCalendar::defaultStorage() uses: `daskel/calendar.db` under the
    /// person's data folder (XDG rules), unless set.
    static QString defaultFile();
    /// Sets it once, before the first use; false when it was already set or used.
    static bool setDefaultFile(const QString &databaseName);

    QString databaseName() const;
    /// The SQLite primary result codes that the last save() met; empty when it succeeded.
    QList<int> saveErrors() const;
    /// The same for the last change of a notebook.
    QList<int> modifyNotebookErrors() const;
    /// The primary result code of the last failure, 0 when the last operation succeeded.
    int errorCode() const;

    bool open() override;
    bool close() override;
    bool isOpen() const override;
    QString errorMessage() const override;

    bool load() override;
    bool load(const QString &uid, const KDateTime &recurrenceId = KDateTime()) override;
    bool load(const QDate &date) override;
    bool load(const QDate &start, const QDate &end) override;
    bool loadRecurringIncidences() override;
    bool loadRecurringIncidences(const QDate &start, const QDate &end) override;
    bool loadUncompletedTodos() override;
    bool loadJournals() override;
    bool loadNotebookIncidences(const QString &notebookUid) override;
    bool loadFutureIncidences(int limit, KDateTime *last) override;
    int loadCompletedTodos(int limit, KDateTime *last) override;
    bool loadCreatedSince(const QDateTime &since) override;
    bool loadModifiedSince(const QDateTime &since) override;
    bool loadByAttendee(const QString &email) override;
    KCalCore::Incidence::List search(const QString &text, int limit = 0) override;
    QDate nextDateWithIncidence(const QDate &from) override;
    QDate previousDateWithIncidence(const QDate &from) override;
    bool allIncidences(KCalCore::Incidence::List *list,
                       const QString &notebookUid = QString()) override;

    bool save() override;
    bool hasUnsavedChanges() const override;
    bool deletedIncidences(KCalCore::Incidence::List *list, const QDateTime &since = QDateTime(),
                           const QString &notebookUid = QString()) override;
    bool overwrittenIncidences(KCalCore::Incidence::List *list, const QString &uid) override;
    bool undelete(const QString &uid, const KDateTime &recurrenceId = KDateTime()) override;
    bool purgeDeleted(const QDateTime &before = QDateTime(),
                      const QString &notebookUid = QString()) override;
    std::unique_ptr<BulkWriter> bulkWriter() override;

    bool resetAlarms(const KCalCore::Incidence::List &incidences) override;
    ReminderList reminders(const QDateTime &from, const QDateTime &to) override;
    bool setReminderShown(qint64 id) override;
    bool setReminderDismissed(qint64 id) override;
    bool notifyOpened(const KCalCore::Incidence::Ptr &incidence) override;

    void holdNotices() override;
    void releaseNotices() override;

    Notebook::List notebooks() override;
    Notebook::Ptr notebook(const QString &uid) override;
    bool addNotebook(const Notebook::Ptr &notebook, bool signal = true) override;
    bool updateNotebook(const Notebook::Ptr &notebook) override;
    bool deleteNotebook(const Notebook::Ptr &notebook, bool onlyMemory = false) override;
    bool setDefaultNotebook(const Notebook::Ptr &notebook) override;
    Notebook::Ptr defaultNotebook() override;
    bool resetDefaultNotebook() override;

private:
    friend class SqliteStoragePrivate;
    std::unique_ptr<SqliteStoragePrivate> d;
};
} // namespace mKCal

#endif
