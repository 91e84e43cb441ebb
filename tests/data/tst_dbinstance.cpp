// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dbsignals.h"
#include "incidences.h"
#include "plaindatabase.h"
#include "testtable.h"
#include "warningcapture.h"

#include <QtTest>

namespace
{
const QString personalUid = "11111111-2222-3333-4444-555555555555";
const QString notesUid = "66666666-7777-8888-9999-000000000000";

const QString calendarPreload = "loadRecurring, loadTodos, load 2011-02-23 2011-04-21";
const QString journalPreload = "loadJournals";
constexpr auto unknownUser = static_cast<DbInstance::DbUser>(7);

const QDate shownDay(2011, 3, 12);

DbInstance &db()
{
    return *DbInstance::instance();
}

void addToShownDay()
{
    db().calendar()->addEvent(
        makeEvent("new", localTime("2011-03-12T10:00"), localTime("2011-03-12T11:00")));
}

int shown()
{
    return ExpandedIncidencesCache::instance()
        ->getExpandedEventsAndTodos(shownDay, shownDay)
        .size();
}
} // namespace

/// Life of the database object: opening, enabling, and what it does when something changes.
class DbInstanceTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fixedNotebooks();
    void notebooksThatAreThere_data();
    void notebooksThatAreThere();
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
    DbSignals told;
    database.open();
    QCOMPARE(told.take(), "updated");
    QVERIFY(db().didDatabaseOpenSucceed());
    QVERIFY(!db().isEnabled());
    QCOMPARE(db().databaseFileName(), QString()); // not in a file
    QCOMPARE(database.takeCalls(),
             QString("open, addNotebook %1 0, setDefaultNotebook %1, addNotebook %2 0")
                 .arg(personalUid, notesUid));

    mKCal::Notebook personal(personalUid, "Personal", {}, "#63B33B", false, true, false, false,
                             true);
    mKCal::Notebook notes(notesUid, "Notes", {}, "#63B33B", false, true, false, false, true);
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

void DbInstanceTest::notebooksThatAreThere_data()
{
    addColumns<QStringList, bool, QString>("uids", "hasDefault", "calls");
    addRow("provisioned", QStringList{"DEFAULT_NB_UID", "NOTES_NB_UID"}, false, "open");
    addRow("a default one", QStringList(), true,
           QString("open, addNotebook %1 0, addNotebook %2 0").arg(personalUid, notesUid));
}

void DbInstanceTest::notebooksThatAreThere()
{
    QFETCH(QStringList, uids);
    QFETCH(bool, hasDefault);
    PlainDatabase database;
    database.prepare = [&](PlainStorage &storage) {
        for (const QString &uid : qAsConst(uids)) {
            const auto notebook = mKCal::Notebook::Ptr::create();
            notebook->setUid(uid);
            storage.addNotebook(notebook, false);
        }
        if (hasDefault)
            storage.setDefaultNotebook(mKCal::Notebook::Ptr::create());
        storage.calls.clear();
    };
    database.open();
    QTEST(database.takeCalls(), "calls");
}

void DbInstanceTest::nothingWithoutADatabase()
{
    PlainDatabase database;
    database.openEnabled(DbInstance::CalendarUser);
    DbInstance::destroy();

    DbSignals told;
    WarningCapture warnings;
    KDateTime last;
    QVERIFY(!db().didDatabaseOpenSucceed());
    QVERIFY(!db().isEnabled());
    QVERIFY(!db().tryOpenDatabase());
    QVERIFY(!db().save());
    QVERIFY(!db().save(true));
    QVERIFY(!db().loadFutureIncidences(1, &last));
    QVERIFY(!db().incidence("uid", KDateTime()));
    QCOMPARE(db().databaseFileName(), QString());
    db().setUser(DbInstance::CalendarUser);
    db().threadedInit();
    db().enableDb();
    db().load(QDate(2011, 3, 10));
    db().load(QDate(2011, 3, 10), QDate(2011, 3, 11));
    db().loadJournals();
    db().loadUncompletedTodos();
    db().loadRecurringIncidences();
    db().updateNotebook(mKCal::Notebook::Ptr::create());
    db().updateNotebookAsync();
    db().systemModified();
    db().recalculateAlarms();
    db().timeSettingsChanged(Ostra::Timed::WallClock::Info(3600), true);
    db().storageModified(nullptr, QString());
    DbInstance::destroy();
    QCOMPARE(told.take(), QString());
    QCOMPARE(warnings.take(), QStringList());

    database.open();
    QVERIFY(db().didDatabaseOpenSucceed());
    QVERIFY(!db().isEnabled());
}

void DbInstanceTest::enabling_data()
{
    addColumns<DbInstance::DbUser, QString, QString>("user", "calls", "told");
    addRow("calendar", DbInstance::CalendarUser, calendarPreload, "updated, updated, enabled");
    addRow("notes", DbInstance::NotesUser, journalPreload, "updated, updated, enabled");
    addRow("nobody", DbInstance::NoUser, QString(), "updated, enabled");
    addRow("unknown", unknownUser, QString(), "updated, enabled");
}

void DbInstanceTest::enabling()
{
    QFETCH(DbInstance::DbUser, user);
    PlainDatabase database;
    database.open();
    database.takeCalls();
    DbSignals signalled;

    db().setUser(user);
    db().enableDb();
    QVERIFY(db().isEnabled());
    QTEST(database.takeCalls(), "calls");
    QTEST(signalled.take(), "told");

    db().enableDb();
    db().threadedInit();
    QCOMPARE(signalled.take(), QString());
    QCOMPARE(database.takeCalls(), QString());
}

void DbInstanceTest::storageModified_data()
{
    addColumns<DbInstance::DbUser, QString, QString, int, QStringList>("user", "cause", "calls",
                                                                       "updates", "warnings");

    const struct {
        const char *name;
        DbInstance::DbUser user;
        QString calls;
        int updates;
        QStringList warnings;
    } users[] = {
        {"calendar", DbInstance::CalendarUser, calendarPreload, 2, {}},
        {"notes", DbInstance::NotesUser, journalPreload, 2, {}},
        {"nobody", DbInstance::NoUser, {}, 1, {"No loading of caches.."}},
        {"unknown",
         unknownUser,
         {},
         1,
         {"UserType in DbInstance not set. Unkown behavior on the caches"}},
    };
    for (const auto &of : users) {
        for (const char *cause : {"another process", "save(true)"})
            QTest::addRow("%s, %s", of.name, cause)
                << of.user << cause << of.calls << of.updates << of.warnings;
        QTest::addRow("%s, save()", of.name)
            << of.user << "save()" << QString() << 1 << QStringList();
    }
}

void DbInstanceTest::storageModified()
{
    QFETCH(DbInstance::DbUser, user);
    QFETCH(QString, cause);
    PlainDatabase database;
    database.openEnabled(user);
    // Only the calendar's cache is renewed.
    if (user == DbInstance::CalendarUser)
        QCOMPARE(shown(), 0);
    addToShownDay();

    DbSignals told;
    WarningCapture warnings;
    if (cause == "another process")
        database.storage->tellModified();
    else
        QVERIFY(db().save(cause == "save(true)"));

    database.storage->calls.removeAll("save");
    QTEST(database.takeCalls(), "calls");
    QTEST(told.told.count("updated"), "updates");
    QTEST(warnings.take(), "warnings");
    if (user == DbInstance::CalendarUser) {
        QCOMPARE(shown(), 1);
        QCOMPARE(database.takeCalls(), QString());
    }
}

void DbInstanceTest::failedSaveMarksTheNextNotification()
{
    PlainDatabase database;
    database.openEnabled(DbInstance::NotesUser);
    WarningCapture warnings;
    database.storage->accepts = false;
    QVERIFY(!db().save());
    database.takeCalls();

    database.storage->tellModified();
    QCOMPARE(database.takeCalls(), QString());
    database.storage->tellModified();
    QCOMPARE(database.takeCalls(), journalPreload);
}

void DbInstanceTest::journalsOutliveTheLoadRecord()
{
    PlainDatabase database;
    database.openEnabled(DbInstance::NoUser);
    const auto loadAll = [&] {
        db().loadJournals();
        db().loadUncompletedTodos();
        db().loadRecurringIncidences();
        db().load(QDate(2011, 3, 1), QDate(2011, 3, 2));
        return database.takeCalls();
    };
    const QString bulk = "loadTodos, loadRecurring, load 2011-03-01 2011-03-02";
    QCOMPARE(loadAll(), "loadJournals, " + bulk);
    QCOMPARE(loadAll(), QString());
    WarningCapture warnings;
    database.storage->tellModified();
    QCOMPARE(loadAll(), bulk);
}

void DbInstanceTest::timeNews_data()
{
    addColumns<DbInstance::DbUser, int, QString>("user", "jump", "calls");

    const QString reminders = "allIncidences , resetAlarms 1";
    addRow("calendar, clock set ahead", DbInstance::CalendarUser, 3600, reminders);
    addRow("calendar, clock set back", DbInstance::CalendarUser, -60, reminders);
    addRow("calendar, other zone", DbInstance::CalendarUser, 0, QString());
    addRow("notes, clock set ahead", DbInstance::NotesUser, 3600, QString());
    addRow("nobody, other zone", DbInstance::NoUser, 0, QString());
}

void DbInstanceTest::timeNews()
{
    QFETCH(DbInstance::DbUser, user);
    QFETCH(int, jump);
    PlainDatabase database;
    database.openEnabled(user);
    database.storage->stored << makeTodo("todo", QDateTime());
    ExpandedIncidencesCache::instance()->loadExpandedEventsAndTodos(shownDay, shownDay);
    database.takeCalls();
    addToShownDay();
    DbSignals told;

    if (jump != 0)
        database.environment.jumpClock(jump);
    else
        database.environment.changeZone("America/New_York");
    QTRY_COMPARE(told.told, QStringList{"updated"});
    QTEST(database.takeCalls(), "calls");
    QCOMPARE(db().calendar()->timeZoneId(),
             jump != 0 ? QByteArray("Europe/Helsinki") : QByteArray("America/New_York"));
    // Renewed for the calendar only; for the others it still shows what it was filled with.
    QCOMPARE(shown(), user == DbInstance::CalendarUser ? 1 : 0);
}

void DbInstanceTest::remindersAnew()
{
    PlainDatabase database;
    database.open();
    database.takeCalls();
    db().recalculateAlarms();
    QCOMPARE(database.takeCalls(), "allIncidences , resetAlarms 0");
}

QTEST_GUILESS_MAIN(DbInstanceTest)
#include "tst_dbinstance.moc"
