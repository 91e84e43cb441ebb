// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

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
    QSignalSpy notOpened(DbInstance::instance(), &DbInstance::dbOpenedNok);
    m_database->open();
    QVERIFY(!DbInstance::instance()->didDatabaseOpenSucceed());
    QCOMPARE(notOpened.count(), 0);
    // The first attempt of each opening, and no notebook is looked for.
    QCOMPARE(m_database->storage->calls, QStringList{QStringLiteral("open")});
}

void DbRetriesTest::threeMoreAttempts()
{
    DbInstance *const db = DbInstance::instance();
    m_database->storage->calls.clear();
    QSignalSpy opened(db, &DbInstance::dbOpenedOk);
    QSignalSpy notOpened(db, &DbInstance::dbOpenedNok);
    QSignalSpy enabled(db, &DbInstance::dbEnabled);
    WarningCapture warnings;
    QElapsedTimer elapsed;
    elapsed.start();

    // The first attempt of the three; the preload does not start.
    db->threadedInit();
    QCOMPARE(m_database->storage->calls.size(), 1);

    QVERIFY(notOpened.wait());
    QVERIFY(elapsed.elapsed() >= 2 * 700);
    QCOMPARE(m_database->storage->takeCalls(),
             QStringList({QStringLiteral("open"), QStringLiteral("open"), QStringLiteral("open")}));
    QCOMPARE(
        warnings.take(),
        QStringList({QStringLiteral("Database is locked!"), QStringLiteral("Database is locked!"),
                     QStringLiteral("Database is locked!")}));
    QVERIFY(!notOpened.wait(800)); // nobody tries on
    QCOMPARE(notOpened.count(), 1);
    QCOMPARE(opened.count() + enabled.count(), 0);
}

void DbRetriesTest::thenOneForEachCall()
{
    DbInstance *const db = DbInstance::instance();
    QSignalSpy notOpened(db, &DbInstance::dbOpenedNok);
    WarningCapture warnings;
    QVERIFY(!db->tryOpenDatabase());
    db->load(QDate(2011, 3, 10)); // refused, but it tries to open all the same
    QCOMPARE(notOpened.count(), 2);
    QCOMPARE(m_database->storage->takeCalls(),
             QStringList({QStringLiteral("open"), QStringLiteral("open")}));
    QCOMPARE(warnings.take().size(), 2);
}

void DbRetriesTest::startingOverGivesNoMoreTime()
{
    DbInstance *const db = DbInstance::instance();
    QSignalSpy notOpened(db, &DbInstance::dbOpenedNok);
    QSignalSpy updated(db, &DbInstance::dataUpdated);
    WarningCapture warnings;
    m_database->open();
    QCOMPARE(updated.count(), 1);
    QVERIFY(!db->tryOpenDatabase());
    QCOMPARE(notOpened.count(), 1);
    QCOMPARE(m_database->storage->takeCalls(),
             QStringList({QStringLiteral("open"), QStringLiteral("open")}));
}

void DbRetriesTest::openingAtLast()
{
    DbInstance *const db = DbInstance::instance();
    QSignalSpy opened(db, &DbInstance::dbOpenedOk);
    QSignalSpy notOpened(db, &DbInstance::dbOpenedNok);
    QSignalSpy enabled(db, &DbInstance::dbEnabled);
    WarningCapture warnings;
    m_database->storage->failingOpens = 0;

    db->enableDb();
    QVERIFY(db->didDatabaseOpenSucceed());
    QVERIFY(db->isEnabled());
    QCOMPARE(opened.count(), 1);
    QCOMPARE(notOpened.count(), 0);
    QCOMPARE(enabled.count(), 1);
    // threadedInit(), called above in vain, is called again by dbEnabled() and finds it enabled.
    QVERIFY(!m_database->storage->calls.contains(QStringLiteral("loadJournals")));
    m_database.reset();
}

QTEST_GUILESS_MAIN(DbRetriesTest)
#include "tst_dbretries.moc"
