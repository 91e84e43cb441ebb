// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dbsignals.h"
#include "plaindatabase.h"
#include "warningcapture.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

/// A process whose database stays locked. What it tried is counted for its whole life, so the tests
/// continue each other.
class DbRetriesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void threeMoreAttempts();
    void thenOneForEachCall();
    void startingOverGivesNoMoreTime();
    void openingAtLast();

private:
    std::unique_ptr<PlainDatabase> m_database;
};

void DbRetriesTest::initTestCase()
{
    m_database = std::make_unique<PlainDatabase>();
    m_database->prepare = [](PlainStorage &storage) { storage.failingOpens = 1000; };
    DbSignals told;
    m_database->open();
    QVERIFY(!DbInstance::instance()->didDatabaseOpenSucceed());
    QCOMPARE(told.take(), "updated");
    // The first attempt of each opening, and no notebook is looked for.
    QCOMPARE(m_database->takeCalls(), "open");
}

void DbRetriesTest::threeMoreAttempts()
{
    DbInstance *const db = DbInstance::instance();
    QSignalSpy notOpened(db, &DbInstance::dbOpenedNok);
    DbSignals told;
    WarningCapture warnings;
    QElapsedTimer elapsed;
    elapsed.start();

    // The first attempt of the three; the preload does not start.
    db->threadedInit();
    QCOMPARE(m_database->storage->calls.size(), 1);

    QVERIFY(notOpened.wait());
    QVERIFY(elapsed.elapsed() >= 2 * 700);
    QCOMPARE(m_database->takeCalls(), "open, open, open");
    const QString locked = "Database is locked!";
    QCOMPARE(warnings.take(), QStringList({locked, locked, locked}));
    QVERIFY(!notOpened.wait(800)); // nobody tries on
    QCOMPARE(told.take(), "not opened");
}

void DbRetriesTest::thenOneForEachCall()
{
    DbInstance *const db = DbInstance::instance();
    DbSignals told;
    WarningCapture warnings;
    QVERIFY(!db->tryOpenDatabase());
    db->load(QDate(2011, 3, 10)); // refused, but it tries to open all the same
    QCOMPARE(told.take(), "not opened, not opened");
    QCOMPARE(m_database->takeCalls(), "open, open");
    QCOMPARE(warnings.take().size(), 2);
}

void DbRetriesTest::startingOverGivesNoMoreTime()
{
    DbSignals told;
    WarningCapture warnings;
    m_database->open();
    QCOMPARE(told.take(), "updated");
    QVERIFY(!DbInstance::instance()->tryOpenDatabase());
    QCOMPARE(told.take(), "not opened");
    QCOMPARE(m_database->takeCalls(), "open, open");
}

void DbRetriesTest::openingAtLast()
{
    DbInstance *const db = DbInstance::instance();
    DbSignals told;
    WarningCapture warnings;
    m_database->storage->failingOpens = 0;
    db->enableDb();
    QVERIFY(db->didDatabaseOpenSucceed());
    QVERIFY(db->isEnabled());
    for (const char *once : {"opened", "enabled"})
        QCOMPARE(told.told.count(once), 1);
    QVERIFY(!told.told.contains("not opened"));
    // threadedInit(), called above in vain, is called again by dbEnabled() and finds it enabled.
    QVERIFY(!m_database->storage->calls.contains("loadJournals"));
    m_database.reset();
}

QTEST_GUILESS_MAIN(DbRetriesTest)
#include "tst_dbretries.moc"
