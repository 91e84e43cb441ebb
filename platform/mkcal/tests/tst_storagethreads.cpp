// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storagefixture.h"

#include <future>

using namespace mKCal;
using namespace Make;

namespace
{
/// The standard library's thread, since Qt's own hand-over of a result looks like a race to
/// ThreadSanitizer, which does not see into Qt.
template <typename Work> std::future<bool> onWorker(const Work &work)
{
    return std::async(std::launch::async, work);
}
} // namespace

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
    auto preload = onWorker([&] {
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
    QTRY_COMPARE(preload.wait_for(std::chrono::seconds(0)), std::future_status::ready);
    QVERIFY(preload.get());
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
    QVERIFY(onWorker([&] { return here->storage->open() && here->storage->loadJournals(); }).get());
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
    auto preload = onWorker([&] { return here->storage->load(); });
    for (int i = 0; i < 50; ++i) {
        QVERIFY(here->storage->load("todo"));
        QCOMPARE(here->storage->notebooks().size(), 1);
        QVERIFY(here->storage->errorMessage().isEmpty());
    }
    QVERIFY(preload.get());
    QCOMPARE(here->uids().size(), 402);
}

STORAGE_TEST_MAIN(TestStorageThreads)
#include "tst_storagethreads.moc"
