// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "databasefixture.h"
#include "incidences.h"

#include <daskel/db_instance.h>
#include <daskel/expandedincidencescache.h>

#include <QSignalSpy>
#include <QtTest>

/// DbInstance on a database file that another process has open too.
class DbStorageTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void notebooksSurviveReopening();
    void preloadedThingsAreThere();
    void foreignChanges();
    void wakesUpInAnotherZone();

private:
    static DbInstance &db() { return *DbInstance::instance(); }
    static void openAs(DatabaseFixture &database, DbInstance::DbUser user)
    {
        database.open();
        db().setUser(user);
        db().enableDb();
    }
    static int shownOn(const char *date)
    {
        return ExpandedIncidencesCache::instance()
            ->getExpandedEventsAndTodos(isoDate(date), isoDate(date))
            .size();
    }
    static KCalCore::Event::Ptr meeting(const char *uid, const char *date)
    {
        const QDateTime start(isoDate(date), QTime(10, 0));
        return makeEvent(QLatin1String(uid), start, start.addSecs(3600));
    }
};

void DbStorageTest::notebooksSurviveReopening()
{
    DatabaseFixture database;
    database.open();
    QCOMPARE(db().storage()->notebooks().size(), 2);
    const auto personal = mKCal::Notebook::Ptr::create(*db().storage()->defaultNotebook());
    QCOMPARE(personal->name(), "Personal");
    personal->setName("Home");
    personal->setColor("#123456");
    personal->setIsVisible(false);
    QVERIFY(db().storage()->updateNotebook(personal));

    database.open();
    QCOMPARE(db().storage()->notebooks().size(), 2);
    QVERIFY(*db().storage()->defaultNotebook() == *personal);
    QCOMPARE(db().storage()->notebooks().last()->name(), "Notes");
}

void DbStorageTest::preloadedThingsAreThere()
{
    DatabaseFixture database;
    database.open();
    {
        const OtherProcess other;
        const auto series = meeting("series", "2010-03-04");
        series->recurrence()->setWeekly(1);
        other.calendar->addEvent(series);
        other.calendar->addEvent(meeting("in range", "2011-04-20"));
        other.calendar->addEvent(meeting("out of range", "2011-08-01"));
        other.calendar->addTodo(makeTodo("todo", QDateTime()));
        other.calendar->addJournal(makeJournal("old", localTime("2010-01-01T10:00")));
        QVERIFY(other.storage->save());
    }
    openAs(database, DbInstance::CalendarUser);
    const auto calendar = db().calendar();
    for (const char *uid : {"series", "in range", "todo"})
        QVERIFY2(calendar->incidence(QLatin1String(uid)), uid);
    for (const char *uid : {"out of range", "old"})
        QVERIFY2(!calendar->incidence(QLatin1String(uid)), uid);
    QCOMPARE(shownOn("2011-03-10"), 1); // a Thursday of the series
    // A jump of the view: loaded, since the cache starts over there.
    QCOMPARE(shownOn("2012-12-24"), 0);
    QCOMPARE(shownOn("2011-08-01"), 1);
    QVERIFY(calendar->incidence("out of range"));

    openAs(database, DbInstance::NotesUser);
    QVERIFY(db().calendar()->incidence("old"));
    QVERIFY(!db().calendar()->incidence("series"));
}

void DbStorageTest::foreignChanges()
{
    DatabaseFixture database;
    openAs(database, DbInstance::CalendarUser);
    QSignalSpy updated(&db(), &DbInstance::dataUpdated);
    // The own write is noticed once, not a second time by way of the files.
    QVERIFY(db().calendar()->addEvent(meeting("own", "2011-03-13")));
    QVERIFY(db().save());
    QCOMPARE(updated.count(), 1);
    QCOMPARE(shownOn("2011-03-13"), 1);
    QVERIFY(!updated.wait(150));
    updated.clear();

    OtherProcess other;
    const auto event = meeting("foreign", "2011-03-12");
    QVERIFY(other.calendar->addEvent(event));
    QVERIFY(other.storage->save());
    QTRY_COMPARE(updated.count(), 2); // of the preload, and of the change itself
    QCOMPARE(shownOn("2011-03-12"), 1);
    const auto here = db().calendar()->incidence("foreign");
    QVERIFY(here);

    QVERIFY(other.calendar->deleteEvent(event));
    QVERIFY(other.storage->save());
    QTRY_COMPARE(updated.count(), 4);
    QCOMPARE(shownOn("2011-03-12"), 0);
    QVERIFY(!db().incidence("foreign", KDateTime()));
}

void DbStorageTest::wakesUpInAnotherZone()
{
    DatabaseFixture database;
    openAs(database, DbInstance::CalendarUser);
    QVERIFY(db().calendar()->addEvent(
        makeEvent("call", QDateTime(isoDate("2011-03-12"), QTime(0, 30), Qt::UTC),
                  QDateTime(isoDate("2011-03-12"), QTime(1, 0), Qt::UTC))));
    QVERIFY(db().save());
    QCOMPARE(shownOn("2011-03-12"), 1);
    QSignalSpy updated(&db(), &DbInstance::dataUpdated);
    database.environment.changeZone("America/New_York");
    QTRY_COMPARE(updated.count(), 1);
    QCOMPARE(shownOn("2011-03-12"), 0);
    QCOMPARE(shownOn("2011-03-11"), 1);
}

QTEST_GUILESS_MAIN(DbStorageTest)
#include "tst_dbstorage.moc"
