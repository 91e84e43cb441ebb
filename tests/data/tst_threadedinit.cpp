// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "databasefixture.h"
#include "incidences.h"

#include <daskel/db_instance.h>
#include <daskel/expandedincidencescache.h>

#include <QSignalSpy>
#include <QThread>
#include <QtTest>

/// The preload on its worker, and the UI thread meanwhile. Also run under ThreadSanitizer.
class ThreadedInitTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_database.reset(); }

    void handsOver_data();
    void handsOver();
    void foreignChangeMeanwhile();
    void callsMeanwhile_data();
    void callsMeanwhile();

private:
    static DbInstance &db() { return *DbInstance::instance(); }
    static int shown()
    {
        return ExpandedIncidencesCache::instance()
            ->getExpandedEventsAndTodos(QDate(2011, 3, 1), QDate(2011, 3, 31))
            .size();
    }
    void startPreload(DbInstance::DbUser user)
    {
        m_database->open();
        db().setUser(user);
        db().threadedInit();
    }

    static constexpr int eventCount = 200;
    static constexpr int shownInMarch = eventCount + 15; // and a series on every other day
    std::unique_ptr<DatabaseFixture> m_database;
};

void ThreadedInitTest::init()
{
    m_database = std::make_unique<DatabaseFixture>();
    m_database->open();
    const OtherProcess other;
    for (int i = 0; i < eventCount; ++i) {
        const QDateTime start(QDate(2011, 3, 1 + i % 28), QTime(10, i % 60));
        const auto event = makeEvent(QString("event %1").arg(i), start, start.addSecs(3600));
        QVERIFY(other.calendar->addEvent(event));
    }
    const auto series =
        makeEvent("series", localTime("2010-03-01T09:00"), localTime("2010-03-01T09:30"));
    series->recurrence()->setDaily(2);
    QVERIFY(other.calendar->addEvent(series));
    QVERIFY(other.calendar->addJournal(makeJournal("journal", localTime("2010-01-01T10:00"))));
    QVERIFY(other.storage->save());
}

void ThreadedInitTest::handsOver_data()
{
    QTest::addColumn<DbInstance::DbUser>("user");
    QTest::addColumn<QString>("loaded");
    QTest::addColumn<QString>("notLoaded");

    const QString series = "series";
    const QString journal = "journal";
    QTest::newRow("calendar") << DbInstance::CalendarUser << series << journal;
    QTest::newRow("notes") << DbInstance::NotesUser << journal << series;
    QTest::newRow("nobody") << DbInstance::NoUser << journal << series;
}

void ThreadedInitTest::handsOver()
{
    QFETCH(DbInstance::DbUser, user);
    QFETCH(QString, loaded);
    QFETCH(QString, notLoaded);
    std::atomic<QThread *> emitter{nullptr};
    QObject receiver;
    connect(
        &db(), &DbInstance::dataUpdated, &receiver,
        [&emitter] { emitter = QThread::currentThread(); }, Qt::DirectConnection);
    m_database->open();
    db().setUser(user);
    int updates = 0; // as the UI thread hears of them; a spy would listen on the worker
    connect(&db(), &DbInstance::dataUpdated, &receiver, [&updates] { ++updates; });
    QSignalSpy enabled(&db(), &DbInstance::dbEnabled);
    db().threadedInit();
    db().threadedInit(); // one preload is enough
    QTRY_VERIFY(db().isEnabled());
    QVERIFY(db().calendar()->incidence(loaded));
    QVERIFY(!db().calendar()->incidence(notLoaded));
    if (user == DbInstance::CalendarUser)
        QCOMPARE(shown(), shownInMarch);
    QTRY_COMPARE(updates, 1);
    QVERIFY(emitter != QThread::currentThread());
    QCOMPARE(enabled.count(), 0); // that is enableDb()'s to tell
}

void ThreadedInitTest::foreignChangeMeanwhile()
{
    OtherProcess other;
    startPreload(DbInstance::CalendarUser);
    const QDateTime start(QDate(2011, 3, 15), QTime(12, 0));
    QVERIFY(other.calendar->addEvent(makeEvent("foreign", start, start.addSecs(3600))));
    QVERIFY(other.storage->save());
    QCoreApplication::processEvents();
    QTRY_VERIFY(db().isEnabled());
    QTRY_COMPARE(shown(), shownInMarch + 1);
    QVERIFY(db().calendar()->incidence("foreign"));
}

void ThreadedInitTest::callsMeanwhile_data()
{
    QTest::addColumn<QString>("call");
    for (const char *call : {"enableDb", "destroy", "recreate", "systemModified", "incidence",
                             "storageModified", "updateNotebook", "loadFutureIncidences"})
        QTest::newRow(call) << QString::fromLatin1(call);
}

void ThreadedInitTest::callsMeanwhile()
{
    QFETCH(QString, call);
    startPreload(DbInstance::CalendarUser);
    KDateTime last;
    if (call == "enableDb") {
        QSignalSpy enabled(&db(), &DbInstance::dbEnabled);
        db().enableDb();
        QVERIFY(db().isEnabled());
        QCOMPARE(shown(), shownInMarch);
    } else if (call == "destroy") {
        DbInstance::destroy();
        QVERIFY(!db().isEnabled());
        return;
    } else if (call == "recreate") {
        DbInstance::recreate();
        QVERIFY(!db().isEnabled());
        return;
    } else if (call == "systemModified") {
        db().systemModified();
    } else if (call == "incidence") {
        QVERIFY(db().incidence("journal", KDateTime()));
    } else if (call == "storageModified") {
        db().storageModified(db().storage().data(), QString());
    } else if (call == "updateNotebook") {
        QSignalSpy saved(&db(), &DbInstance::dbSaved);
        const auto changed = mKCal::Notebook::Ptr::create(*db().storage()->defaultNotebook());
        changed->setName("Home");
        db().updateNotebook(changed);
        QTRY_COMPARE(saved.count(), 1);
        QCOMPARE(db().storage()->defaultNotebook()->name(), "Home");
    } else {
        QVERIFY(!db().loadFutureIncidences(10, &last));
    }
    QTRY_VERIFY(db().isEnabled());
    QCOMPARE(shown(), shownInMarch);
}

QTEST_GUILESS_MAIN(ThreadedInitTest)
#include "tst_threadedinit.moc"
