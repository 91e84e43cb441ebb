// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_EXTENDEDSTORAGE_H
#define MKCAL_EXTENDEDSTORAGE_H

#include <mkcal/extendedcalendar.h>
#include <mkcal/notebook.h>
#include <mkcal/reminder.h>

#include <memory>

namespace mKCal
{
class BulkWriter;
class ExtendedStorageObserver;
class ExtendedStoragePrivate;

/// Keeps a calendar: loads incidences into an ExtendedCalendar on demand, saves what changed in it,
/// and holds the notebooks.
///
/// What was loaded once is remembered: asking again reads only what is missing. While a load runs
/// on another thread, notifications are held back and calls that touch the calendar wait. A storage
/// belongs to the thread that made it, and notifies there; only open() and the loads may run on
/// another, one at a time.
class ExtendedStorage
{
public:
    using Ptr = QSharedPointer<ExtendedStorage>;

    explicit ExtendedStorage(const ExtendedCalendar::Ptr &calendar);
    virtual ~ExtendedStorage();

    ExtendedCalendar::Ptr calendar() const;

    /// Opens the database, making or upgrading it as needed. True when already open. After false
    /// errorMessage() says what was wrong and with which file, and open() may be called again.
    virtual bool open() = 0;
    /// Closes the database; the calendar keeps what it holds.
    virtual bool close() = 0;
    virtual bool isOpen() const = 0;
    /// The last failure in words, with the file's name; empty when the last operation succeeded.
    virtual QString errorMessage() const = 0;

    // Loads: true when the database could be read, whether or not it held something. Unsaved
    // changes in the calendar are never overwritten by a load.

    /// Everything.
    virtual bool load() = 0;
    /// One incidence; a series comes with its exceptions when @p recurrenceId is null.
    virtual bool load(const QString &uid, const KDateTime &recurrenceId = KDateTime()) = 0;
    /// Non-recurring incidences of that day.
    virtual bool load(const QDate &date) = 0;
    /// Non-recurring incidences that overlap the days from @p start to @p end, both included;
    /// exceptions of recurring ones come with loadRecurringIncidences().
    virtual bool load(const QDate &start, const QDate &end) = 0;
    virtual bool loadRecurringIncidences() = 0;
    /// Only the series (with their exceptions) that are alive between the two days.
    virtual bool loadRecurringIncidences(const QDate &start, const QDate &end) = 0;
    virtual bool loadUncompletedTodos() = 0;
    virtual bool loadJournals() = 0;
    virtual bool loadNotebookIncidences(const QString &notebookUid) = 0;
    /// The next @p limit non-recurring events and to-dos that start now or later. @p last (may be
    /// null) is set to the start of the last one loaded, invalid when none was.
    virtual bool loadFutureIncidences(int limit, KDateTime *last) = 0;
    /// The next page of completed to-dos, newest completion first: those completed before @p last
    /// (from the newest when it is null or invalid); sets @p last for the next page. Those
    /// completed in one second stay on one page, which may make it longer than @p limit. Returns
    /// how many there were, -1 on failure.
    virtual int loadCompletedTodos(int limit, KDateTime *last) = 0;
    /// Those created or last modified at or after @p since (UTC), as they say themselves: what an
    /// import brought keeps the times that its file gives.
    virtual bool loadCreatedSince(const QDateTime &since) = 0;
    virtual bool loadModifiedSince(const QDateTime &since) = 0;
    /// Those that have an attendee or organizer with that e-mail address, without regard to case.
    virtual bool loadByAttendee(const QString &email) = 0;
    /// Loads and returns those whose summary, description, location or categories hold @p text,
    /// without regard to case, at most @p limit (0: all), newest start first.
    virtual KCalCore::Incidence::List search(const QString &text, int limit = 0) = 0;
    /// The first day at or after @p from that holds an event or to-do (occurrences included);
    /// invalid when there is none within ten years.
    virtual QDate nextDateWithIncidence(const QDate &from) = 0;
    /// The last day at or before @p from that does; invalid when there is none within ten years.
    virtual QDate previousDateWithIncidence(const QDate &from) = 0;

    /// Fills @p list with every incidence of the storage (of one notebook when the UID is not
    /// empty) without loading them into the calendar.
    virtual bool allIncidences(KCalCore::Incidence::List *list,
                               const QString &notebookUid = QString()) = 0;

    // Saving

    /// Writes what changed in the calendar, plans the changed incidences' reminders, all in one
    /// transaction, then notifies the observers. After false the changes are kept and save() may
    /// be called again.
    virtual bool save() = 0;
    virtual bool hasUnsavedChanges() const = 0;
    /// Deleted incidences are kept as tombstones until purged. Those deleted since @p since (null:
    /// all).
    virtual bool deletedIncidences(KCalCore::Incidence::List *list,
                                   const QDateTime &since = QDateTime(),
                                   const QString &notebookUid = QString()) = 0;
    /// Versions that a save of this or another process overwrote without having seen them.
    virtual bool overwrittenIncidences(KCalCore::Incidence::List *list, const QString &uid) = 0;
    /// Brings the last deleted version of an incidence back into the calendar and its notebook (the
    /// default one when that is gone), a series with the exceptions that were deleted with it;
    /// unsaved until save(). False for what is not deleted.
    virtual bool undelete(const QString &uid, const KDateTime &recurrenceId = KDateTime()) = 0;
    /// Removes tombstones and overwritten versions from before @p before (null: all) for good.
    virtual bool purgeDeleted(const QDateTime &before = QDateTime(),
                              const QString &notebookUid = QString()) = 0;
    /// A transaction past the calendar; null when the database cannot be written now.
    virtual std::unique_ptr<BulkWriter> bulkWriter() = 0;

    // Reminders

    /// Plans the reminders of @p incidences anew, from now on: those of series as far as the
    /// horizon of 60 days, which each opening moves on. What was already shown is not planned
    /// again. A series is planned with all its stored exceptions, given or not; what is not stored
    /// is not planned.
    virtual bool resetAlarms(const KCalCore::Incidence::List &incidences) = 0;
    /// The planned reminders of [@p from, @p to), UTC, ordered by time, dismissed ones left out.
    virtual ReminderList reminders(const QDateTime &from, const QDateTime &to) = 0;
    virtual bool setReminderShown(qint64 id) = 0;
    virtual bool setReminderDismissed(qint64 id) = 0;
    /// To be called when somebody opened @p incidence: its shown reminders are dismissed.
    virtual bool notifyOpened(const KCalCore::Incidence::Ptr &incidence) = 0;

    // Notebooks, in the order in which they were added. The returned objects belong to the storage:
    // change a copy and hand it to updateNotebook().

    virtual Notebook::List notebooks() = 0;
    virtual Notebook::Ptr notebook(const QString &uid) = 0;
    /// Stores a copy. Refused without any effect: null, empty UID, a UID that is already there.
    /// @param signal whether observers are told; other processes are in any case.
    virtual bool addNotebook(const Notebook::Ptr &notebook, bool signal = true) = 0;
    /// Stores @p notebook in place of that of its UID; observers are told when it differs.
    virtual bool updateNotebook(const Notebook::Ptr &notebook) = 0;
    /// Deletes the notebook and, leaving tombstones, its incidences. @param onlyMemory only the
    /// calendar forgets them, the database is not touched.
    virtual bool deleteNotebook(const Notebook::Ptr &notebook, bool onlyMemory = false) = 0;
    /// Makes it the default. Only the UID counts: nothing else of the stored notebook changes.
    virtual bool setDefaultNotebook(const Notebook::Ptr &notebook) = 0;
    virtual Notebook::Ptr defaultNotebook() = 0;
    /// The first notebook that is writable, visible and not hidden becomes the default. False when
    /// there is none.
    virtual bool resetDefaultNotebook() = 0;

    // Changes by other processes. Both calls may come from any thread.

    /// Keeps them out of the calendar, and the observers untold, until releaseNotices() was called
    /// as often. For work on another thread that goes on with the calendar between its loads.
    virtual void holdNotices() = 0;
    /// What was held back is taken in and told from the event loop of the storage's thread.
    virtual void releaseNotices() = 0;

    void registerObserver(ExtendedStorageObserver *observer);
    void unregisterObserver(ExtendedStorageObserver *observer);

protected:
    void notifyModified(const QString &info);
    void notifyProgress(const QString &info);
    void notifyFinished(bool error, const QString &info);

private:
    std::unique_ptr<ExtendedStoragePrivate> d;
};
} // namespace mKCal

#endif
