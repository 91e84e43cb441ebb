// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_DB_INSTANCE_H
#define DASKEL_DB_INSTANCE_H

#include <mkcal/extendedcalendar.h>
#include <mkcal/extendedstorage.h>
#include <mkcal/extendedstorageobserver.h>
#include <systemtime/timed.h>

#include <QObject>

#include <memory>

class DbInstancePrivate;

/// The person's calendar, as one process sees it: the calendar in memory and the storage behind it.
///
/// There is one for the process, made and opened by the first instance(). It makes sure that the
/// personal and the notes notebook exist, preloads what the application shows first, turns every
/// change of the stored data into one dataUpdated(), and follows changes of clock and time zone.
/// Everything is called on the UI thread, which is the one that calls instance() first; only the
/// preload of threadedInit() runs on a worker, which owns the calendar until it is done.
///
/// Between destroy() and recreate() there is no database: every call does nothing then and answers
/// false, null or empty.
class DbInstance : public QObject, public mKCal::ExtendedStorageObserver
{
    Q_OBJECT
public:
    /// Which application uses the library: what is preloaded, and again after a foreign change.
    enum DbUser : qint32 {
        CalendarUser = 0, ///< the weeks around today, everything recurring, to-dos not done
        NotesUser = 1, ///< journals
        NoUser = 2 ///< nothing
    };
    Q_ENUM(DbUser)

    /// How a save ended; the numbers are fixed.
    enum DbSaveError : qint32 {
        DbSaveOk = 0,
        DbSaveFailed = 1,
        DbSaveStorageError10 = 2 ///< SQLite's SQLITE_IOERR was among the errors
    };
    Q_ENUM(DbSaveError)

    /// The database of this process. The first call opens it, which takes a QCoreApplication.
    static DbInstance *instance();
    /// Lets go of calendar and storage, after a running preload has ended. To be called before the
    /// application object goes.
    static void destroy();
    /// Starts over with a new calendar and a newly opened storage; emits dataUpdated().
    static void recreate();

    /// Neither may be asked for between destroy() and recreate().
    QSharedPointer<mKCal::ExtendedCalendar> calendar() const;
    QSharedPointer<mKCal::ExtendedStorage> storage() const;
    /// Empty when the storage is not a file.
    QString databaseFileName() const;
    /// Whether the last attempt to open the storage succeeded.
    bool didDatabaseOpenSucceed() const;
    /// Whether ranges may be loaded and changes saved. Safe on any thread.
    bool isEnabled() const;
    /// To be called before threadedInit() or enableDb().
    void setUser(DbUser user);

    // Loads. All need isEnabled() except where stated, and do nothing for what is already loaded.

    /// The non-recurring incidences of one day. Does not extend the range that counts as loaded.
    void load(const QDate &date);
    /// The non-recurring incidences from @p start to @p end, both included and both valid, together
    /// with what lies between them and the range loaded so far: the loaded range has no gaps.
    void load(const QDate &start, const QDate &end);
    /// The next @p limit events and to-dos from now on. Only while not yet enabled, for a quick
    /// first screen; false afterwards and on failure. @p last (may be null) is set to the start of
    /// the last one, and its date becomes the end of the loaded range.
    bool loadFutureIncidences(int limit, KDateTime *last);
    void loadJournals();
    void loadUncompletedTodos();
    void loadRecurringIncidences();

    /// Changes a notebook in the storage and saves. While the preload runs this is put off, by at
    /// most 1.1 s; of several notebooks put off, the last one wins.
    void updateNotebook(const QSharedPointer<mKCal::Notebook> &notebook);

    /// The incidence of that UID and recurrence identifier (null for a series or a single
    /// incidence), loaded when it is not in the calendar yet; null when there is none.
    QSharedPointer<KCalCore::Incidence> incidence(const QString &uid,
                                                  const KDateTime &recurrenceId);

    /// When the occurrence that @p time belongs to starts, in the local zone: of a recurring
    /// incidence the last one that starts at or before @p time (invalid when there is none), of
    /// any other its start. Invalid for null.
    static QDateTime incidenceRecurrenceStart(QSharedPointer<KCalCore::Incidence> &incidence,
                                              const QDateTime &time);
    /// When that occurrence ends, in the local zone, cut at a day boundary when that is on another
    /// local date than @p time: at the first second of the end's date, or its last second
    /// (23:59:59) with @p endOfDay. An incidence without an end ends where it starts. Invalid for
    /// null.
    static QDateTime incidenceEndTime(QSharedPointer<KCalCore::Incidence> &incidence,
                                      const QDateTime &time, bool endOfDay);

    /// The clock or the zone of the system changed: the calendar takes the new zone over. Emits
    /// dataUpdated().
    void systemModified();
    /// Plans the reminders of everything stored anew.
    void recalculateAlarms();

    void storageModified(mKCal::ExtendedStorage *storage, const QString &info) override;
    void storageProgress(mKCal::ExtendedStorage *storage, const QString &info) override;
    void storageFinished(mKCal::ExtendedStorage *storage, bool error, const QString &info) override;

Q_SIGNALS:
    /// What the calendar holds changed. Also emitted by the worker when its preload is done.
    void dataUpdated();
    void dbEnabled();
    /// A later attempt to open succeeded; nothing is emitted for the first one.
    void dbOpenedOk();
    /// All attempts to open failed.
    void dbOpenedNok();
    /// A save() was tried.
    void dbSaved(DbInstance::DbSaveError code);

public Q_SLOTS:
    /// From the time watcher: systemModified(), and the calendar application plans all reminders
    /// anew when the clock jumped.
    void timeSettingsChanged(const Ostra::Timed::WallClock::Info &info, bool time_changed);
    /// Accepts loads and saves from now on: waits for a running preload, or does it right here when
    /// none was started. Emits dataUpdated() and dbEnabled().
    void enableDb();
    /// Writes what changed in the calendar and emits dbSaved(); true when written. Refused without
    /// a signal while not enabled. After a failure the changes stay and can be saved again.
    /// @param ignoreOwnSave reload as if another process had made the change, instead of only
    ///        renewing the expanded occurrences.
    bool save(bool ignoreOwnSave);
    /// save(false)
    bool save();
    /// Opens the storage unless it is open; true when it is open then. A process makes three
    /// attempts after the first, 700 ms apart, then one with each further call. Emits dbOpenedOk()
    /// or, out of attempts, dbOpenedNok().
    bool tryOpenDatabase();
    /// Preloads for the user on a worker thread; returns at once. dataUpdated() tells that it is
    /// done and the database enabled.
    void threadedInit();
    /// Does what updateNotebook() put off.
    void updateNotebookAsync();

private:
    DbInstance();
    ~DbInstance() override;
    Q_DISABLE_COPY(DbInstance)

    void drop();

    friend class DbInstancePrivate;
    std::unique_ptr<DbInstancePrivate> d;
};

#endif
