// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "databasefixture.h"
#include "dbsignals.h"
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
    void plainStorage();
    void failsOnABrokenDisk();
    void notebookAtOnce();
    void lastOfTwoNotebooksWins();
    void notebookGoesAheadAfterAWhile();
};

void DbSaveTest::plainStorage()
{
    PlainDatabase database;
    database.open();
    database.takeCalls();
    DbInstance *const db = DbInstance::instance();
    DbSignals told;
    WarningCapture warnings;
    QVERIFY(!db->save());
    QVERIFY(!db->save(true));
    QCOMPARE(told.take() + database.takeCalls(), QString());
    const QString notEnabled = "Saving with DB not enabled!!!!";
    QCOMPARE(warnings.take(), QStringList({notEnabled, notEnabled}));

    db->enableDb();
    told.take();
    QVERIFY(db->save());
    QCOMPARE(told.take(), "updated, saved 0");
    database.storage->accepts = false;
    QVERIFY(!db->save());
    QCOMPARE(told.take(), "saved 1");
    QCOMPARE(warnings.take().last(), "Error while saving to Db...");
}

void DbSaveTest::failsOnABrokenDisk()
{
    DatabaseFixture database;
    database.open();
    DbInstance *const db = DbInstance::instance();
    QCOMPARE(db->databaseFileName(), DatabaseFixture::fileName());
    db->enableDb();
    QVERIFY(db->calendar()->addTodo(makeTodo("todo", QDateTime())));
    DbSignals told;
    WarningCapture warnings;
    {
        const FailingDevice device;
        QVERIFY(!db->save());
    }
    QVERIFY(warnings.take().contains("Error while saving to Db..."));
    QCOMPARE(told.take(), "saved 2");

    // Nothing is lost: once the disk is well again, the change is saved.
    QVERIFY(db->save());
    QVERIFY(told.take().endsWith("saved 0"));
    const OtherProcess other;
    QVERIFY(other.storage->load());
    QVERIFY(other.calendar->incidence("todo"));
    // Another error.
    db->calendar()->deleteIncidence(db->calendar()->incidence("todo"));
    db->storage()->close();
    QVERIFY(!db->save());
    QCOMPARE(told.take(), "saved 1");
}

void DbSaveTest::notebookAtOnce()
{
    PlainDatabase database;
    database.openEnabled(DbInstance::NotesUser);
    DbInstance::instance()->updateNotebook(named("changed"));
    // Saved as if somebody else had made the change: everything is read again.
    QCOMPARE(database.takeCalls(), "updateNotebook changed, save, loadJournals");
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
    const QString change = "updateNotebook ";
    QCOMPARE(database.storage->calls.filter(change),
             QStringList({change + "second", change + "second"}));
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
    QTRY_COMPARE(database.storage->calls, QStringList{"updateNotebook changed"});
    QVERIFY(elapsed.elapsed() >= 100 + 5 * 200);
    QVERIFY(!db->isEnabled());
    QCOMPARE(warnings.take(), QStringList{"Saving with DB not enabled!!!!"});
}

QTEST_GUILESS_MAIN(DbSaveTest)
#include "tst_dbsave.moc"
