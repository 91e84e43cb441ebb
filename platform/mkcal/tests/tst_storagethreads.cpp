// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storagefixture.h"

#include <QtConcurrent>

using namespace mKCal;
using namespace Make;

/// A preload on a worker while the storage's own thread goes on: for ThreadSanitizer above all.
class TestStorageThreads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_fixture.reset(); }
    void noticesWaitForTheLoadOnAWorker();
    void openingOnAWorkerWatchesOnTheOwnersThread();
    void callsWaitForTheLoad();

private:
    std::unique_ptr<StorageFixture> m_fixture;
};

void TestStorageThreads::init()
{
    m_fixture = std::make_unique<StorageFixture>();
    KCalCore::Incidence::List stock{todo("todo"), journal("note", at(2026, 3, 1, 9))};
    for (int i = 0; i < 200; ++i) {
        stock.append(meeting(QStringLiteral("meeting%1").arg(i), at(2026, 3, 1 + i % 28, i % 24)));
        stock.append(daily(QStringLiteral("series%1").arg(i), at(2026, 3, 1 + i % 28, 9), 5));
    }
    QVERIFY(m_fixture->store(stock));
}

void TestStorageThreads::noticesWaitForTheLoadOnAWorker()
{
    const auto here = m_fixture->open();
    const auto there = m_fixture->open();
    QVERIFY(there->storage->load());
    there->incidence("todo")->setSummary("theirs", false);

    here->storage->holdNotices();
    std::atomic<int> noticesDuringPreload{0};
    std::atomic<bool> changedThere{false};
    QFuture<bool> preload = QtConcurrent::run([&] {
        bool loaded = here->storage->loadRecurringIncidences();
        while (!changedThere)
            QThread::yieldCurrentThread();
        loaded = loaded && here->storage->loadUncompletedTodos()
            && here->storage->load(QDate(2026, 3, 1), QDate(2026, 3, 31));
        // The worker goes on with the calendar between and after its loads.
        const auto incidences = here->calendar->rawIncidences();
        for (const auto &incidence : incidences)
            loaded = loaded && !incidence->summary().isEmpty();
        noticesDuringPreload = here->notices.modified;
        here->storage->releaseNotices();
        return loaded;
    });
    QVERIFY(there->storage->save());
    changedThere = true;
    QTRY_VERIFY(preload.isFinished());
    QVERIFY(preload.result());
    QCOMPARE(noticesDuringPreload.load(), 0);
    QTRY_COMPARE(here->notices.modified, 1);
    QCOMPARE(here->notices.thread, QThread::currentThread());
    QCOMPARE(here->incidence("todo")->summary(), QStringLiteral("theirs"));
    QCOMPARE(here->uids().size(), 402);
}

void TestStorageThreads::openingOnAWorkerWatchesOnTheOwnersThread()
{
    const auto here = m_fixture->open();
    QVERIFY(here->storage->close());
    QVERIFY(QtConcurrent::run([&] {
                return here->storage->open() && here->storage->loadJournals();
            }).result());
    const auto there = m_fixture->open();
    QVERIFY(there->storage->loadJournals());
    there->incidence("note")->setSummary("theirs", false);
    QVERIFY(there->storage->save());
    QTRY_COMPARE(here->notices.modified, 1);
    QCOMPARE(here->notices.thread, QThread::currentThread());
}

void TestStorageThreads::callsWaitForTheLoad()
{
    const auto here = m_fixture->open();
    QFuture<bool> preload = QtConcurrent::run([&] { return here->storage->load(); });
    for (int i = 0; i < 50; ++i) {
        QVERIFY(here->storage->load("todo"));
        QCOMPARE(here->storage->notebooks().size(), 1);
        QVERIFY(here->storage->errorMessage().isEmpty());
    }
    QVERIFY(preload.result());
    QCOMPARE(here->uids().size(), 402);
}

STORAGE_TEST_MAIN(TestStorageThreads)
#include "tst_storagethreads.moc"
