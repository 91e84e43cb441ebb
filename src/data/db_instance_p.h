// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_DB_INSTANCE_P_H
#define DASKEL_DB_INSTANCE_P_H

#include <daskel/db_instance.h>

#include <QDate>
#include <QFuture>
#include <QFutureWatcher>

#include <atomic>
#include <functional>

/// State and work of DbInstance, from one opening of the storage to the next.
///
/// While initRunning is set, everything from `calendar` on belongs to the worker; only the atomic
/// flags may be looked at. The worker hands over by setting `enabled` with release order.
class DbInstancePrivate
{
public:
    using StorageFactory =
        std::function<mKCal::ExtendedStorage::Ptr(const mKCal::ExtendedCalendar::Ptr &)>;
    /// Where storages come from, normally ExtendedCalendar::defaultStorage(). Tests put one of
    /// their own here before recreate().
    static StorageFactory makeStorage;

    /// Opens the storage and begins to listen to it and to the clock.
    explicit DbInstancePrivate(DbInstance *instance);
    ~DbInstancePrivate();
    Q_DISABLE_COPY(DbInstancePrivate)

    /// One attempt to open the storage, with the notebooks that every calendar has.
    void open();
    void dropLoadRecord();

    // The preloads: on the worker from threadedInit(), otherwise on the UI thread.
    void preloadCalendar();
    void preloadJournals();
    void finishPreload();
    /// Loads again what the user needs after a change that this process did not make.
    void reloadForUser();

    /// Waits until the calendar belongs to the UI thread again, on which this is called.
    void waitForPreload();
    void resetAllAlarms();

    const mKCal::ExtendedCalendar::Ptr calendar;
    const mKCal::ExtendedStorage::Ptr storage;
    Ostra::Timed::Interface timed;
    bool opened = false;
    QDate loadedStart;
    QDate loadedEnd;
    bool recurringLoaded = false;
    bool uncompletedTodosLoaded = false;
    std::atomic<bool> enabled{false};
    QFutureWatcher<void> initWatcher;
    QFuture<void> initFuture;
    std::atomic<bool> initRunning{false};
    bool lastSaveFailed = false;
    bool journalsLoaded = false; ///< stays when the load record is dropped
    DbInstance::DbUser user = DbInstance::NoUser;
    mKCal::Notebook::Ptr pendingNotebook;
    bool ownSavePending = false;
    DbInstance *const q;
};

#endif
