// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidences.h"
#include "plaindatabase.h"
#include "warningcapture.h"

#include <QSignalSpy>
#include <QtTest>

namespace
{
const QString personalUid = QStringLiteral("11111111-2222-3333-4444-555555555555");
const QString notesUid = QStringLiteral("66666666-7777-8888-9999-000000000000");

const QStringList calendarPreload{QStringLiteral("loadRecurring"), QStringLiteral("loadTodos"),
                                  QStringLiteral("load 2011-02-23 2011-04-21")};
const QStringList journalPreload{QStringLiteral("loadJournals")};
constexpr auto unknownUser = static_cast<DbInstance::DbUser>(7);
} // namespace

/// Life of the database object: opening, enabling, and what it does when something changes.
class DbInstanceTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fixedNotebooks();
    void provisionedNotebooksAreKept();
    void anExistingDefaultIsKept();
    void nothingWithoutADatabase();
    void enabling_data();
    void enabling();
    void storageModified_data();
    void storageModified();
    void failedSaveMarksTheNextNotification();
    void journalsOutliveTheLoadRecord();
    void timeNews_data();
    void timeNews();
    void remindersAnew();
};

void DbInstanceTest::fixedNotebooks()
{
    PlainDatabase database;
    QSignalSpy updated(DbInstance::instance(), &DbInstance::dataUpdated);
    QSignalSpy opened(DbInstance::instance(), &DbInstance::dbOpenedOk);
    database.open();
    QCOMPARE(updated.count(), 1);
    QCOMPARE(opened.count(), 0);
    QVERIFY(DbInstance::instance()->didDatabaseOpenSucceed());
    QVERIFY(!DbInstance::instance()->isEnabled());
    QCOMPARE(DbInstance::instance()->databaseFileName(), QString()); // not in a file
    QCOMPARE(
        database.storage->calls,
        QStringList({QStringLiteral("open"), QStringLiteral("addNotebook %1 0").arg(personalUid),
                     QStringLiteral("setDefaultNotebook %1").arg(personalUid),
                     QStringLiteral("addNotebook %1 0").arg(notesUid)}));

    mKCal::Notebook personal(personalUid, QStringLiteral("Personal"), QString(),
                             QStringLiteral("#63B33B"), false, true, false, false, true);
    mKCal::Notebook notes(notesUid, QStringLiteral("Notes"), QString(), QStringLiteral("#63B33B"),
                          false, true, false, false, true);
    notes.setEventsAllowed(false);
    notes.setTodosAllowed(false);
    notes.setIsHidden(true);
    for (mKCal::Notebook *expected : {&personal, &notes}) {
        const auto made = database.storage->notebook(expected->uid());
        QVERIFY(made);
        expected->setCreationDate(made->creationDate());
        expected->setModifiedDate(made->modifiedDate());
        QVERIFY(*made == *expected);
    }
}

void DbInstanceTest::provisionedNotebooksAreKept()
{
    PlainDatabase database;
    database.prepare = [](PlainStorage &storage) {
        for (const char *uid : {"DEFAULT_NB_UID", "NOTES_NB_UID"}) {
            const auto notebook = mKCal::Notebook::Ptr::create();
            notebook->setUid(QLatin1String(uid));
            storage.addNotebook(notebook, false);
        }
        storage.calls.clear();
    };
    database.open();
    QCOMPARE(database.storage->calls, QStringList{QStringLiteral("open")});
}

void DbInstanceTest::anExistingDefaultIsKept()
{
    PlainDatabase database;
    database.prepare = [](PlainStorage &storage) {
        storage.setDefaultNotebook(mKCal::Notebook::Ptr::create());
        storage.calls.clear();
    };
    database.open();
    QCOMPARE(
        database.storage->calls,
        QStringList({QStringLiteral("open"), QStringLiteral("addNotebook %1 0").arg(personalUid),
                     QStringLiteral("addNotebook %1 0").arg(notesUid)}));
}

void DbInstanceTest::nothingWithoutADatabase()
{
    PlainDatabase database;
    database.openEnabled(DbInstance::CalendarUser);
    DbInstance *const db = DbInstance::instance();
    DbInstance::destroy();

    QSignalSpy updated(db, &DbInstance::dataUpdated);
    QSignalSpy enabled(db, &DbInstance::dbEnabled);
    QSignalSpy notOpened(db, &DbInstance::dbOpenedNok);
    QSignalSpy saved(db, &DbInstance::dbSaved);
    WarningCapture warnings;
    KDateTime last;
    QVERIFY(!db->didDatabaseOpenSucceed());
    QVERIFY(!db->isEnabled());
    QVERIFY(!db->tryOpenDatabase());
    QVERIFY(!db->save());
    QVERIFY(!db->save(true));
    QVERIFY(!db->loadFutureIncidences(1, &last));
    QVERIFY(!db->incidence(QStringLiteral("uid"), KDateTime()));
    QCOMPARE(db->databaseFileName(), QString());
    db->setUser(DbInstance::CalendarUser);
    db->threadedInit();
    db->enableDb();
    db->load(QDate(2011, 3, 10));
    db->load(QDate(2011, 3, 10), QDate(2011, 3, 11));
    db->loadJournals();
    db->loadUncompletedTodos();
    db->loadRecurringIncidences();
    db->updateNotebook(mKCal::Notebook::Ptr::create());
    db->updateNotebookAsync();
    db->systemModified();
    db->recalculateAlarms();
    db->timeSettingsChanged(Ostra::Timed::WallClock::Info(3600), true);
    db->storageModified(nullptr, QString());
    DbInstance::destroy();
    QCOMPARE(updated.count() + enabled.count() + notOpened.count() + saved.count(), 0);
    QCOMPARE(warnings.take(), QStringList());

    database.open();
    QVERIFY(db->didDatabaseOpenSucceed());
    QVERIFY(!db->isEnabled());
}

void DbInstanceTest::enabling_data()
{
    QTest::addColumn<DbInstance::DbUser>("user");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<int>("updates");

    QTest::newRow("calendar") << DbInstance::CalendarUser << calendarPreload << 2;
    QTest::newRow("notes") << DbInstance::NotesUser << journalPreload << 2;
    QTest::newRow("nobody") << DbInstance::NoUser << QStringList() << 1;
    QTest::newRow("unknown") << unknownUser << QStringList() << 1;
}

void DbInstanceTest::enabling()
{
    QFETCH(DbInstance::DbUser, user);
    QFETCH(int, updates);
    PlainDatabase database;
    database.open();
    database.storage->calls.clear();
    DbInstance *const db = DbInstance::instance();
    QStringList order;
    QObject receiver;
    connect(db, &DbInstance::dataUpdated, &receiver, [&] { order << QStringLiteral("updated"); });
    connect(db, &DbInstance::dbEnabled, &receiver, [&] { order << QStringLiteral("enabled"); });

    db->setUser(user);
    db->enableDb();
    QVERIFY(db->isEnabled());
    QTEST(database.storage->takeCalls(), "calls");
    QCOMPARE(order.size(), updates + 1);
    QCOMPARE(order.last(), QStringLiteral("enabled"));

    db->enableDb();
    db->threadedInit();
    QCOMPARE(order.size(), updates + 1);
    QCOMPARE(database.storage->calls, QStringList());
}

void DbInstanceTest::storageModified_data()
{
    QTest::addColumn<DbInstance::DbUser>("user");
    QTest::addColumn<QString>("cause");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<int>("updates");
    QTest::addColumn<QStringList>("warnings");

    const QStringList none;
    const QStringList noCaches{QStringLiteral("No loading of caches..")};
    const QStringList noType{
        QStringLiteral("UserType in DbInstance not set. Unkown behavior on the caches")};
    for (const char *cause : {"another process", "save(true)"}) {
        const QString text = QLatin1String(cause);
        QTest::addRow("calendar, %s", cause)
            << DbInstance::CalendarUser << text << calendarPreload << 2 << none;
        QTest::addRow("notes, %s", cause)
            << DbInstance::NotesUser << text << journalPreload << 2 << none;
        QTest::addRow("nobody, %s", cause) << DbInstance::NoUser << text << none << 1 << noCaches;
        QTest::addRow("unknown, %s", cause) << unknownUser << text << none << 1 << noType;
    }
    const QString own = QStringLiteral("save()");
    QTest::newRow("calendar, save()") << DbInstance::CalendarUser << own << none << 1 << none;
    QTest::newRow("notes, save()") << DbInstance::NotesUser << own << none << 1 << none;
    QTest::newRow("nobody, save()") << DbInstance::NoUser << own << none << 1 << none;
    QTest::newRow("unknown, save()") << unknownUser << own << none << 1 << none;
}

void DbInstanceTest::storageModified()
{
    QFETCH(DbInstance::DbUser, user);
    QFETCH(QString, cause);
    PlainDatabase database;
    database.openEnabled(user);
    DbInstance *const db = DbInstance::instance();
    // Only the calendar's cache is renewed.
    ExpandedIncidencesCache *const cache = ExpandedIncidencesCache::instance();
    const QDate day(2011, 3, 12);
    if (user == DbInstance::CalendarUser)
        QVERIFY(cache->getExpandedEventsAndTodos(day, day).isEmpty());
    db->calendar()->addEvent(makeEvent(QStringLiteral("new"), localTime("2011-03-12T10:00"),
                                       localTime("2011-03-12T11:00")));

    QSignalSpy updated(db, &DbInstance::dataUpdated);
    WarningCapture warnings;
    if (cause == QLatin1String("save()"))
        QVERIFY(db->save());
    else if (cause == QLatin1String("save(true)"))
        QVERIFY(db->save(true));
    else
        database.storage->tellModified();

    QStringList calls = database.storage->takeCalls();
    calls.removeAll(QStringLiteral("save"));
    QTEST(calls, "calls");
    QTEST(updated.count(), "updates");
    QTEST(warnings.take(), "warnings");
    if (user == DbInstance::CalendarUser) {
        QCOMPARE(cache->getExpandedEventsAndTodos(day, day).size(), 1);
        QCOMPARE(database.storage->calls, QStringList());
    }
}

void DbInstanceTest::failedSaveMarksTheNextNotification()
{
    PlainDatabase database;
    database.openEnabled(DbInstance::NotesUser);
    WarningCapture warnings;
    database.storage->accepts = false;
    QVERIFY(!DbInstance::instance()->save());
    database.storage->calls.clear();

    database.storage->tellModified();
    QCOMPARE(database.storage->takeCalls(), QStringList());
    database.storage->tellModified();
    QCOMPARE(database.storage->takeCalls(), journalPreload);
}

void DbInstanceTest::journalsOutliveTheLoadRecord()
{
    PlainDatabase database;
    database.openEnabled(DbInstance::NoUser);
    DbInstance *const db = DbInstance::instance();
    const auto loadAll = [&] {
        db->loadJournals();
        db->loadUncompletedTodos();
        db->loadRecurringIncidences();
        db->load(QDate(2011, 3, 1), QDate(2011, 3, 2));
        return database.storage->takeCalls();
    };
    const QStringList bulk{QStringLiteral("loadTodos"), QStringLiteral("loadRecurring"),
                           QStringLiteral("load 2011-03-01 2011-03-02")};
    QCOMPARE(loadAll(), journalPreload + bulk);
    QCOMPARE(loadAll(), QStringList());
    WarningCapture warnings;
    database.storage->tellModified();
    QCOMPARE(loadAll(), bulk);
}

void DbInstanceTest::timeNews_data()
{
    QTest::addColumn<DbInstance::DbUser>("user");
    QTest::addColumn<qint64>("jump");
    QTest::addColumn<QStringList>("calls");

    const QStringList reminders{QStringLiteral("allIncidences "), QStringLiteral("resetAlarms 1")};
    QTest::newRow("calendar, clock set ahead") << DbInstance::CalendarUser << 3600LL << reminders;
    QTest::newRow("calendar, clock set back") << DbInstance::CalendarUser << -60LL << reminders;
    QTest::newRow("calendar, other zone") << DbInstance::CalendarUser << 0LL << QStringList();
    QTest::newRow("notes, clock set ahead") << DbInstance::NotesUser << 3600LL << QStringList();
    QTest::newRow("nobody, other zone") << DbInstance::NoUser << 0LL << QStringList();
}

void DbInstanceTest::timeNews()
{
    QFETCH(DbInstance::DbUser, user);
    QFETCH(qint64, jump);
    PlainDatabase database;
    database.openEnabled(user);
    DbInstance *const db = DbInstance::instance();
    database.storage->stored << makeTodo(QStringLiteral("todo"), QDateTime());
    ExpandedIncidencesCache *const cache = ExpandedIncidencesCache::instance();
    const QDate day(2011, 3, 12);
    cache->loadExpandedEventsAndTodos(day, day);
    database.storage->calls.clear();
    db->calendar()->addEvent(makeEvent(QStringLiteral("new"), localTime("2011-03-12T10:00"),
                                       localTime("2011-03-12T11:00")));
    QSignalSpy updated(db, &DbInstance::dataUpdated);

    if (jump != 0)
        database.environment.jumpClock(jump);
    else
        database.environment.changeZone("America/New_York");
    QTRY_COMPARE(updated.count(), 1);
    QTEST(database.storage->takeCalls(), "calls");
    QCOMPARE(db->calendar()->timeZoneId(),
             jump != 0 ? QByteArray("Europe/Helsinki") : QByteArray("America/New_York"));
    // Renewed for the calendar only; for the others it still shows what it was filled with.
    QCOMPARE(cache->getExpandedEventsAndTodos(day, day).size(),
             user == DbInstance::CalendarUser ? 1 : 0);
}

void DbInstanceTest::remindersAnew()
{
    PlainDatabase database;
    database.open();
    database.storage->calls.clear();
    DbInstance::instance()->recalculateAlarms();
    QCOMPARE(database.storage->calls,
             QStringList({QStringLiteral("allIncidences "), QStringLiteral("resetAlarms 0")}));
}

QTEST_GUILESS_MAIN(DbInstanceTest)
#include "tst_dbinstance.moc"
