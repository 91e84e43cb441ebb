// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "databasefixture.h"
#include "failingdevice.h"
#include "incidences.h"
#include "plaindatabase.h"
#include "warningcapture.h"

#include <QElapsedTimer>
#include <QSemaphore>
#include <QSignalSpy>
#include <QtTest>

namespace
{
/// Keeps the preload on its worker until the test lets it go on.
class HeldPreload
{
public:
    explicit HeldPreload(PlainDatabase &database)
    {
        database.open();
        database.storage->provide = [this] {
            m_reached.release();
            m_goOn.acquire();
        };
        DbInstance::instance()->threadedInit();
        m_reached.acquire();
        database.storage->calls.clear();
    }
    ~HeldPreload() { finish(); }
    Q_DISABLE_COPY(HeldPreload)

    /// Returns when it is done.
    void finish()
    {
        m_goOn.release();
        DbInstance::instance()->enableDb();
    }

private:
    QSemaphore m_reached;
    QSemaphore m_goOn;
};

mKCal::Notebook::Ptr named(const char *name)
{
    auto notebook = mKCal::Notebook::Ptr::create();
    notebook->setName(QLatin1String(name));
    return notebook;
}
} // namespace

/// Saving, and changes of notebooks that wait for the preload.
class DbSaveTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void refusedWhileNotEnabled();
    void saved();
    void failsOnAPlainStorage();
    void failsOnABrokenDisk();
    void failsWithAnotherError();
    void notebookAtOnce();
    void lastOfTwoNotebooksWins();
    void notebookGoesAheadAfterAWhile();
};

void DbSaveTest::refusedWhileNotEnabled()
{
    PlainDatabase database;
    database.open();
    database.storage->calls.clear();
    QSignalSpy saved(DbInstance::instance(), &DbInstance::dbSaved);
    WarningCapture warnings;
    QVERIFY(!DbInstance::instance()->save());
    QVERIFY(!DbInstance::instance()->save(true));
    QCOMPARE(saved.count(), 0);
    QCOMPARE(warnings.take(),
             QStringList({QStringLiteral("Saving with DB not enabled!!!!"),
                          QStringLiteral("Saving with DB not enabled!!!!")}));
    QCOMPARE(database.storage->calls, QStringList());
}

void DbSaveTest::saved()
{
    PlainDatabase database;
    database.openEnabled(DbInstance::NoUser);
    DbInstance *const db = DbInstance::instance();
    QStringList order;
    QObject receiver;
    connect(db, &DbInstance::dataUpdated, &receiver, [&] { order << QStringLiteral("updated"); });
    connect(db, &DbInstance::dbSaved, &receiver,
            [&](DbInstance::DbSaveError code) { order << QStringLiteral("saved %1").arg(code); });
    QVERIFY(db->save());
    QCOMPARE(order, QStringList({QStringLiteral("updated"), QStringLiteral("saved 0")}));
}

void DbSaveTest::failsOnAPlainStorage()
{
    PlainDatabase database;
    database.openEnabled(DbInstance::NoUser);
    QSignalSpy saved(DbInstance::instance(), &DbInstance::dbSaved);
    WarningCapture warnings;
    database.storage->accepts = false;
    QVERIFY(!DbInstance::instance()->save());
    QCOMPARE(saved.count(), 1);
    QCOMPARE(saved[0][0].value<DbInstance::DbSaveError>(), DbInstance::DbSaveFailed);
    QCOMPARE(warnings.take(), QStringList{QStringLiteral("Error while saving to Db...")});
}

void DbSaveTest::failsOnABrokenDisk()
{
    DatabaseFixture database;
    database.open();
    DbInstance *const db = DbInstance::instance();
    QCOMPARE(db->databaseFileName(), DatabaseFixture::fileName());
    db->enableDb();
    QVERIFY(db->calendar()->addTodo(makeTodo(QStringLiteral("todo"), QDateTime())));
    QSignalSpy saved(db, &DbInstance::dbSaved);
    QSignalSpy updated(db, &DbInstance::dataUpdated);
    {
        WarningCapture warnings;
        const FailingDevice device;
        QVERIFY(!db->save());
        QVERIFY(warnings.take().contains(QStringLiteral("Error while saving to Db...")));
    }
    QCOMPARE(saved.count(), 1);
    QCOMPARE(saved[0][0].value<DbInstance::DbSaveError>(), DbInstance::DbSaveStorageError10);
    QCOMPARE(updated.count(), 0);

    // Nothing is lost: once the disk is well again, the change is saved.
    QVERIFY(db->save());
    QCOMPARE(saved[1][0].value<DbInstance::DbSaveError>(), DbInstance::DbSaveOk);
    const OtherProcess other;
    QVERIFY(other.storage->load());
    QVERIFY(other.calendar->incidence(QStringLiteral("todo")));
}

void DbSaveTest::failsWithAnotherError()
{
    DatabaseFixture database;
    database.open();
    DbInstance *const db = DbInstance::instance();
    db->enableDb();
    QVERIFY(db->calendar()->addTodo(makeTodo(QStringLiteral("todo"), QDateTime())));
    QSignalSpy saved(db, &DbInstance::dbSaved);
    WarningCapture warnings;
    db->storage()->close();
    QVERIFY(!db->save());
    QCOMPARE(saved.count(), 1);
    QCOMPARE(saved[0][0].value<DbInstance::DbSaveError>(), DbInstance::DbSaveFailed);
}

void DbSaveTest::notebookAtOnce()
{
    PlainDatabase database;
    database.openEnabled(DbInstance::NotesUser);
    DbInstance::instance()->updateNotebook(named("changed"));
    // Saved as if somebody else had made the change: everything is read again.
    QCOMPARE(database.storage->calls,
             QStringList({QStringLiteral("updateNotebook changed"), QStringLiteral("save"),
                          QStringLiteral("loadJournals")}));
}

void DbSaveTest::lastOfTwoNotebooksWins()
{
    PlainDatabase database;
    HeldPreload preload(database);
    DbInstance *const db = DbInstance::instance();
    QCOMPARE(database.storage->noticeHolds.load(), 1);
    db->updateNotebook(named("first"));
    db->updateNotebook(named("second"));
    QCOMPARE(database.storage->calls, QStringList());
    preload.finish();
    QTRY_VERIFY(database.storage->noticeHolds == 0);

    database.storage->provide = [] {};
    QSignalSpy saved(db, &DbInstance::dbSaved);
    QVERIFY(saved.wait());
    QTRY_COMPARE(saved.count(), 2); // each of the two calls wakes up
    const QString change = QStringLiteral("updateNotebook ");
    QCOMPARE(database.storage->calls.filter(change),
             QStringList({change + QLatin1String("second"), change + QLatin1String("second")}));
}

void DbSaveTest::notebookGoesAheadAfterAWhile()
{
    PlainDatabase database;
    HeldPreload preload(database);
    DbInstance *const db = DbInstance::instance();
    QElapsedTimer elapsed;
    elapsed.start();
    db->updateNotebook(named("changed"));
    WarningCapture warnings;
    QTRY_COMPARE(database.storage->calls, QStringList{QStringLiteral("updateNotebook changed")});
    QVERIFY(elapsed.elapsed() >= 100 + 5 * 200);
    QVERIFY(!db->isEnabled());
    QCOMPARE(warnings.take(), QStringList{QStringLiteral("Saving with DB not enabled!!!!")});
}

QTEST_GUILESS_MAIN(DbSaveTest)
#include "tst_dbsave.moc"
