// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "plaindatabase.h"
#include "warningcapture.h"

#include <QSignalSpy>
#include <QtTest>

/// A database that is locked for a moment. In a process of its own: the attempts to open are
/// counted for the life of the process.
class DbRetrySucceedsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void opensAtARetry();
};

void DbRetrySucceedsTest::opensAtARetry()
{
    PlainDatabase database;
    database.prepare = [](PlainStorage &storage) { storage.failingOpens = 2; };
    database.open();
    DbInstance *const db = DbInstance::instance();
    QSignalSpy opened(db, &DbInstance::dbOpenedOk);
    QSignalSpy notOpened(db, &DbInstance::dbOpenedNok);
    WarningCapture warnings;

    QVERIFY(!db->tryOpenDatabase());
    QVERIFY(opened.wait());
    QVERIFY(db->didDatabaseOpenSucceed());
    QCOMPARE(warnings.take().size(), 2);
    // The notebooks are made when it opens.
    QVERIFY(database.storage->defaultNotebook());

    QVERIFY(db->tryOpenDatabase());
    QCOMPARE(opened.count(), 1);
    QCOMPARE(notOpened.count(), 0);
    QCOMPARE(warnings.take(), QStringList());
}

QTEST_GUILESS_MAIN(DbRetrySucceedsTest)
#include "tst_dbretrysucceeds.moc"
