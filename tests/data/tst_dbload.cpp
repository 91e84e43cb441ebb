// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidences.h"
#include "plaindatabase.h"

#include <QtTest>

namespace
{
DbInstance &db()
{
    return *DbInstance::instance();
}

void loadEverything()
{
    db().load(QDate(2011, 5, 1));
    db().load(QDate(2011, 5, 1), QDate(2011, 5, 31));
    db().loadJournals();
    db().loadUncompletedTodos();
    db().loadRecurringIncidences();
}
} // namespace

/// Loads: what the storage is asked for, and what is known to be loaded already.
class DbLoadTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void range_data();
    void range();
    void day_data();
    void day();
    void onceOnlyAndNotWhileNotEnabled();
    void futureIncidences_data();
    void futureIncidences();
    void incidence();
};

void DbLoadTest::range_data()
{
    QTest::addColumn<QString>("loaded"); // "start end", or nothing
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("call");
    const auto row = [](const char *name, const char *asked, const char *call,
                        const char *loaded = "2011-05-01 2011-05-31") {
        QTest::newRow(name) << loaded << asked << call;
    };
    row("nothing loaded", "2011-05-01 2011-05-31", "load 2011-05-01 2011-05-31", "");
    row("the same again", "2011-05-01 2011-05-31", "");
    row("inside", "2011-05-10 2011-05-10", "");
    row("before", "2011-04-01 2011-04-10", "load 2011-04-01 2011-05-31");
    row("after", "2011-07-01 2011-07-10", "load 2011-05-01 2011-07-10");
    row("a day more", "2011-05-01 2011-06-01", "load 2011-05-01 2011-06-01");
    row("around", "2011-01-01 2011-12-31", "load 2011-01-01 2011-12-31");
    row("no start", " 2011-12-31", "");
    row("no end", "2011-05-01 ", "", "");
}

void DbLoadTest::range()
{
    QFETCH(QString, loaded);
    QFETCH(QString, asked);
    PlainDatabase database;
    database.openEnabled(DbInstance::NoUser);
    const auto load = [&database](const QString &range) {
        const QStringList dates = range.split(' ');
        db().load(QDate::fromString(dates.value(0), Qt::ISODate),
                  QDate::fromString(dates.value(1), Qt::ISODate));
        return database.takeCalls();
    };
    load(loaded);
    QTEST(load(asked), "call");
    QCOMPARE(load(asked), QString());
}

void DbLoadTest::day_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<bool>("isLoaded");
    QTest::newRow("before") << QDate(2011, 4, 30) << false;
    QTest::newRow("first") << QDate(2011, 5, 1) << true;
    QTest::newRow("last") << QDate(2011, 5, 31) << true;
    QTest::newRow("after") << QDate(2011, 6, 1) << false;
}

void DbLoadTest::day()
{
    QFETCH(QDate, date);
    QFETCH(bool, isLoaded);
    PlainDatabase database;
    database.openEnabled(DbInstance::NoUser);
    const QString call = "load " + date.toString(Qt::ISODate);
    db().load(date);
    QCOMPARE(database.takeCalls(), call);

    db().load(QDate(2011, 5, 1), QDate(2011, 5, 31));
    database.takeCalls();
    // Single days are not remembered.
    for (int times = 0; times < 2; ++times) {
        db().load(date);
        QCOMPARE(database.takeCalls(), isLoaded ? QString() : call);
    }
    db().load(QDate(2011, 5, 1), QDate(2011, 5, 31));
    QCOMPARE(database.takeCalls(), QString());
}

void DbLoadTest::onceOnlyAndNotWhileNotEnabled()
{
    PlainDatabase database;
    database.open();
    database.takeCalls();
    loadEverything();
    QCOMPARE(database.takeCalls(), QString());
    // A load that was refused is not remembered as done.
    db().enableDb();
    loadEverything();
    loadEverything();
    QCOMPARE(database.takeCalls(),
             "load 2011-05-01, load 2011-05-01 2011-05-31, loadJournals, loadTodos, loadRecurring");
}

void DbLoadTest::futureIncidences_data()
{
    QTest::addColumn<KDateTime>("last");
    QTest::addColumn<QString>("calls");
    // There is an end but no start: nothing counts as loaded yet, and the range reaches the end.
    QTest::newRow("some") << KDateTime(localTime("2011-06-30T10:00"))
                          << "load 2011-05-01, load 2011-04-01 2011-06-30";
    QTest::newRow("none") << KDateTime()
                          << "load 2011-05-01, load 2011-04-01 2011-04-10, load 2011-05-01";
}

void DbLoadTest::futureIncidences()
{
    QFETCH(KDateTime, last);
    PlainDatabase database;
    database.open();
    database.storage->lastFuture = last;
    database.takeCalls();
    KDateTime found;
    QVERIFY(db().loadFutureIncidences(20, &found));
    QCOMPARE(found.date(), last.date());
    QVERIFY(db().loadFutureIncidences(20, nullptr));
    QCOMPARE(database.takeCalls(), "loadFuture 20, loadFuture 20");

    // They come before enabling only.
    db().enableDb();
    QVERIFY(!db().loadFutureIncidences(20, &found));
    QCOMPARE(database.takeCalls(), QString());

    db().load(QDate(2011, 5, 1));
    db().load(QDate(2011, 4, 1), QDate(2011, 4, 10));
    db().load(QDate(2011, 5, 1));
    QTEST(database.takeCalls(), "calls");
}

void DbLoadTest::incidence()
{
    PlainDatabase database;
    database.open();
    database.takeCalls();
    const KDateTime occurrence(localTime("2011-03-10T10:00"));
    QVERIFY(!db().incidence("uid", occurrence));
    QCOMPARE(database.takeCalls(), "load uid " + occurrence.toString());

    database.storage->provide = [] { db().calendar()->addTodo(makeTodo("uid", QDateTime())); };
    const auto found = db().incidence("uid", KDateTime());
    QVERIFY(found);
    QCOMPARE(database.takeCalls(), "load uid ");
    QCOMPARE(db().incidence("uid", KDateTime()), found);
    QCOMPARE(database.takeCalls(), QString());
}

QTEST_GUILESS_MAIN(DbLoadTest)
#include "tst_dbload.moc"
