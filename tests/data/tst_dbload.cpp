// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidences.h"
#include "plaindatabase.h"

#include <QtTest>

/// Loads: what the storage is asked for, and what is known to be loaded already.
class DbLoadTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void range_data();
    void range();
    void day_data();
    void day();
    void onceOnly();
    void refusedWhileNotEnabled();
    void futureIncidencesComeBeforeEnabling();
    void futureIncidencesEndTheRange();
    void futureIncidencesWithoutAnswer();
    void incidence();
};

void DbLoadTest::range_data()
{
    QTest::addColumn<QString>("loaded"); // "start end", or nothing
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("call");

    const auto row = [](const char *name, const char *loaded, const char *asked, const char *call) {
        QTest::newRow(name) << QString::fromLatin1(loaded) << QString::fromLatin1(asked)
                            << QString::fromLatin1(call);
    };
    row("nothing loaded", "", "2011-05-01 2011-05-31", "load 2011-05-01 2011-05-31");
    row("the same again", "2011-05-01 2011-05-31", "2011-05-01 2011-05-31", "");
    row("inside", "2011-05-01 2011-05-31", "2011-05-10 2011-05-10", "");
    row("before", "2011-05-01 2011-05-31", "2011-04-01 2011-04-10", "load 2011-04-01 2011-05-31");
    row("after", "2011-05-01 2011-05-31", "2011-07-01 2011-07-10", "load 2011-05-01 2011-07-10");
    row("a day more", "2011-05-01 2011-05-31", "2011-05-01 2011-06-01",
        "load 2011-05-01 2011-06-01");
    row("around", "2011-05-01 2011-05-31", "2011-01-01 2011-12-31", "load 2011-01-01 2011-12-31");
    row("no start", "2011-05-01 2011-05-31", " 2011-12-31", "");
    row("no end", "", "2011-05-01 ", "");
}

void DbLoadTest::range()
{
    QFETCH(QString, loaded);
    QFETCH(QString, asked);
    PlainDatabase database;
    database.openEnabled(DbInstance::NoUser);
    const auto load = [](const QString &range) {
        const QStringList dates = range.split(QLatin1Char(' '));
        DbInstance::instance()->load(QDate::fromString(dates.value(0), Qt::ISODate),
                                     QDate::fromString(dates.value(1), Qt::ISODate));
    };
    load(loaded);
    database.storage->calls.clear();

    load(asked);
    QTEST(database.storage->takeCalls().join(QLatin1Char(',')), "call");
    load(asked);
    QCOMPARE(database.storage->calls, QStringList());
}

void DbLoadTest::day_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<bool>("isLoaded");

    QTest::newRow("before") << QDate(2011, 4, 30) << false;
    QTest::newRow("first") << QDate(2011, 5, 1) << true;
    QTest::newRow("inside") << QDate(2011, 5, 15) << true;
    QTest::newRow("last") << QDate(2011, 5, 31) << true;
    QTest::newRow("after") << QDate(2011, 6, 1) << false;
}

void DbLoadTest::day()
{
    QFETCH(QDate, date);
    QFETCH(bool, isLoaded);
    PlainDatabase database;
    database.openEnabled(DbInstance::NoUser);
    DbInstance *const db = DbInstance::instance();
    const QStringList call{QLatin1String("load ") + date.toString(Qt::ISODate)};
    db->load(date);
    QCOMPARE(database.storage->takeCalls(), call);

    db->load(QDate(2011, 5, 1), QDate(2011, 5, 31));
    database.storage->calls.clear();
    // Single days are not remembered.
    for (int times = 0; times < 2; ++times) {
        db->load(date);
        QCOMPARE(database.storage->takeCalls(), isLoaded ? QStringList() : call);
    }
    db->load(QDate(2011, 5, 1), QDate(2011, 5, 31));
    QCOMPARE(database.storage->calls, QStringList());
}

void DbLoadTest::onceOnly()
{
    PlainDatabase database;
    database.openEnabled(DbInstance::NoUser);
    DbInstance *const db = DbInstance::instance();
    for (int times = 0; times < 2; ++times) {
        db->loadJournals();
        db->loadUncompletedTodos();
        db->loadRecurringIncidences();
    }
    QCOMPARE(database.storage->calls,
             QStringList({QStringLiteral("loadJournals"), QStringLiteral("loadTodos"),
                          QStringLiteral("loadRecurring")}));
}

void DbLoadTest::refusedWhileNotEnabled()
{
    PlainDatabase database;
    database.open();
    database.storage->calls.clear();
    DbInstance *const db = DbInstance::instance();
    const auto loadAll = [db] {
        db->load(QDate(2011, 5, 1));
        db->load(QDate(2011, 5, 1), QDate(2011, 5, 31));
        db->loadJournals();
        db->loadUncompletedTodos();
        db->loadRecurringIncidences();
    };
    loadAll();
    QCOMPARE(database.storage->takeCalls(), QStringList());
    // A load that was refused is not remembered as done.
    db->enableDb();
    loadAll();
    QCOMPARE(database.storage->calls.size(), 5);
}

void DbLoadTest::futureIncidencesComeBeforeEnabling()
{
    PlainDatabase database;
    database.open();
    DbInstance *const db = DbInstance::instance();
    database.storage->lastFuture = KDateTime(localTime("2011-06-30T10:00"));
    database.storage->calls.clear();

    KDateTime last;
    QVERIFY(db->loadFutureIncidences(20, &last));
    QCOMPARE(last.date(), QDate(2011, 6, 30));
    QVERIFY(db->loadFutureIncidences(20, nullptr));
    QCOMPARE(database.storage->takeCalls(),
             QStringList({QStringLiteral("loadFuture 20"), QStringLiteral("loadFuture 20")}));

    db->enableDb();
    QVERIFY(!db->loadFutureIncidences(20, &last));
    QCOMPARE(database.storage->calls, QStringList());
}

void DbLoadTest::futureIncidencesEndTheRange()
{
    PlainDatabase database;
    database.open();
    DbInstance *const db = DbInstance::instance();
    database.storage->lastFuture = KDateTime(localTime("2011-06-30T10:00"));
    KDateTime last;
    QVERIFY(db->loadFutureIncidences(20, &last));
    db->enableDb();
    database.storage->calls.clear();
    // There is an end but no start: nothing counts as loaded yet, and the range reaches the end.
    db->load(QDate(2011, 5, 1));
    db->load(QDate(2011, 4, 1), QDate(2011, 4, 10));
    db->load(QDate(2011, 5, 1));
    QCOMPARE(database.storage->calls,
             QStringList({QStringLiteral("load 2011-05-01"),
                          QStringLiteral("load 2011-04-01 2011-06-30")}));
}

void DbLoadTest::futureIncidencesWithoutAnswer()
{
    PlainDatabase database;
    database.open();
    DbInstance *const db = DbInstance::instance();
    KDateTime last;
    QVERIFY(db->loadFutureIncidences(20, &last));
    db->enableDb();
    database.storage->calls.clear();
    db->load(QDate(2011, 4, 1), QDate(2011, 4, 10));
    QCOMPARE(database.storage->calls, QStringList{QStringLiteral("load 2011-04-01 2011-04-10")});
}

void DbLoadTest::incidence()
{
    PlainDatabase database;
    database.open();
    DbInstance *const db = DbInstance::instance();
    database.storage->calls.clear();
    const QString uid = QStringLiteral("uid");
    const KDateTime occurrence(localTime("2011-03-10T10:00"));

    QVERIFY(!db->incidence(uid, occurrence));
    QCOMPARE(database.storage->takeCalls(),
             QStringList{QStringLiteral("load uid ") + occurrence.toString()});

    database.storage->provide = [db, uid] { db->calendar()->addTodo(makeTodo(uid, QDateTime())); };
    const auto found = db->incidence(uid, KDateTime());
    QVERIFY(found);
    QCOMPARE(database.storage->takeCalls(), QStringList{QStringLiteral("load uid ")});
    QCOMPARE(db->incidence(uid, KDateTime()), found);
    QCOMPARE(database.storage->calls, QStringList());
}

QTEST_GUILESS_MAIN(DbLoadTest)
#include "tst_dbload.moc"
