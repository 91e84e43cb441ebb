// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "daskelassert.h"
#include "db_instance_p.h"

#include <daskel/catalogue.h>
#include <daskel/expandedincidencescache.h>
#include <kcalcompat/ksystemtimezones.h>
#include <mkcal/sqlitestorage.h>

#include <QTimer>
#include <QtConcurrentRun>

using mKCal::ExtendedCalendar;
using mKCal::Notebook;
using mKCal::SqliteStorage;

namespace
{
constexpr int openRetryMs = 700;
constexpr int lastRetry = 3;
/// Attempts to open after the first one. They belong to the process: starting over with
/// recreate() does not give a locked database more time.
int openRetries = 0;

/// The one object, as long as it is there: destroy() must not make it.
DbInstance *theInstance = nullptr;

Notebook::Ptr makeNotebook(const char *uid, const char *nameId)
{
    return Notebook::Ptr::create(QLatin1String(uid), qtTrId(nameId), QString(),
                                 QStringLiteral("#63B33B"), false, true, false, false, true);
}
} // namespace

DbInstancePrivate::StorageFactory DbInstancePrivate::makeStorage =
    &ExtendedCalendar::defaultStorage;

DbInstancePrivate::DbInstancePrivate(DbInstance *instance)
    : calendar(ExtendedCalendar::Ptr::create(KDateTime::Spec::LocalZone())),
      storage(makeStorage(calendar)), q(instance)
{
    // The notebooks are created with their names in the person's language.
    Daskel::installLibraryCatalogue();
    open();
    storage->registerObserver(q);
    const bool connected = timed.settings_changed_connect(
        q, SLOT(timeSettingsChanged(const Ostra::Timed::WallClock::Info &, bool)));
    DASKEL_ASSERT(connected, "db_instance", 95);
    Q_UNUSED(connected)
}

DbInstancePrivate::~DbInstancePrivate()
{
    storage->unregisterObserver(q);
    initFuture.waitForFinished();
    initWatcher.setFuture(QFuture<void>());
}

void DbInstancePrivate::open()
{
    opened = storage->open();
    if (!opened)
        return;
    // These two words are no notebook's UID, so both notebooks are made at every open, and the
    // storage refuses those that it has: a calendar that lost one gets it back, and what the person
    // changed of the other (its name, its colour) stays. A storage that is provisioned with
    // notebooks of these UIDs keeps its own pair.
    if (!storage->notebook(QStringLiteral("DEFAULT_NB_UID"))) {
        const auto personal =
            makeNotebook("11111111-2222-3333-4444-555555555555", "qtn_caln_personal_caln");
        storage->addNotebook(personal, false);
        if (!storage->defaultNotebook())
            storage->setDefaultNotebook(personal);
    }
    if (!storage->notebook(QStringLiteral("NOTES_NB_UID"))) {
        const auto notes =
            makeNotebook("66666666-7777-8888-9999-000000000000", "qtn_caln_notes_caln");
        notes->setEventsAllowed(false);
        notes->setTodosAllowed(false);
        notes->setJournalsAllowed(true);
        notes->setIsHidden(true);
        storage->addNotebook(notes, false);
    }
}

void DbInstancePrivate::waitForPreload()
{
    while (initRunning.load(std::memory_order_acquire))
        initWatcher.waitForFinished();
}

DbInstance::DbInstance()
{
    theInstance = this;
    KCalCompat::registerMetaTypes();
    qRegisterMetaType<DbInstance::DbSaveError>();
    KSystemTimeZones().configChanged();
    // Made here, on the UI thread: the preload may be the first to use it, from the worker.
    ExpandedIncidencesCache::instance();
    d = std::make_unique<DbInstancePrivate>(this);
}

DbInstance::~DbInstance()
{
    theInstance = nullptr;
}

DbInstance *DbInstance::instance()
{
    static DbInstance instance;
    return &instance;
}

void DbInstance::drop()
{
    // The worker looks at `d`, which has to stay until it is done.
    if (d)
        d->waitForPreload();
    d.reset();
}

void DbInstance::destroy()
{
    if (theInstance != nullptr)
        theInstance->drop();
    // What the process keeps for all calendars: the calendar library itself keeps nothing.
    KSystemTimeZones::cleanup();
}

void DbInstance::recreate()
{
    DbInstance *const self = instance();
    self->drop();
    self->d = std::make_unique<DbInstancePrivate>(self);
    Q_EMIT self->dataUpdated();
}

QSharedPointer<mKCal::ExtendedCalendar> DbInstance::calendar() const
{
    DASKEL_ASSERT(d != nullptr, "db_instance", 280);
    return d ? d->calendar : nullptr;
}

QSharedPointer<mKCal::ExtendedStorage> DbInstance::storage() const
{
    DASKEL_ASSERT(d != nullptr, "db_instance", 287);
    return d ? d->storage : nullptr;
}

QString DbInstance::databaseFileName() const
{
    const auto sqlite = d ? d->storage.dynamicCast<SqliteStorage>() : nullptr;
    return sqlite ? sqlite->databaseName() : QString();
}

bool DbInstance::didDatabaseOpenSucceed() const
{
    return d && d->opened;
}

bool DbInstance::isEnabled() const
{
    return d && d->enabled.load(std::memory_order_acquire);
}

void DbInstance::setUser(DbUser user)
{
    if (d)
        d->user = user;
}

bool DbInstance::tryOpenDatabase()
{
    if (!d)
        return false;
    if (d->opened)
        return true;

    qWarning("Database is locked!");
    ++openRetries;
    d->open();
    if (d->opened) {
        Q_EMIT dbOpenedOk();
        return true;
    }
    if (openRetries < lastRetry)
        QTimer::singleShot(openRetryMs, this, SLOT(tryOpenDatabase()));
    else
        Q_EMIT dbOpenedNok();
    return false;
}

void DbInstance::threadedInit()
{
    // A preload that is on its way is not joined by a second one over the same calendar.
    if (!d || isEnabled() || d->initRunning.load(std::memory_order_acquire))
        return;
    if (!tryOpenDatabase()) {
        connect(this, &DbInstance::dbEnabled, this, &DbInstance::threadedInit,
                Qt::UniqueConnection);
        return;
    }
    d->initRunning.store(true, std::memory_order_release);
    // What other processes change meanwhile stays out of the calendar that the worker owns.
    d->storage->holdNotices();
    const auto preload = d->user == CalendarUser ? &DbInstancePrivate::preloadCalendar
                                                 : &DbInstancePrivate::preloadJournals;
    d->initFuture = QtConcurrent::run(d.get(), preload);
    d->initWatcher.setFuture(d->initFuture);
}

void DbInstance::enableDb()
{
    if (!d || isEnabled())
        return;
    tryOpenDatabase();
    if (d->initRunning.load(std::memory_order_acquire)) {
        d->waitForPreload();
    } else if (d->user == CalendarUser) {
        d->preloadCalendar();
    } else if (d->user == NotesUser) {
        d->preloadJournals();
    }
    d->enabled.store(true, std::memory_order_release);
    Q_EMIT dataUpdated();
    Q_EMIT dbEnabled();
}
