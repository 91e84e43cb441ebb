// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storagefixture.h"

#include <mkcal/incidencecomparison.h>

#include <sqlite3.h>

using namespace mKCal;
using namespace Make;

using Step = std::function<void(OpenStorage &)>;
Q_DECLARE_METATYPE(Step)

/// Two storages on one database: what one writes, the other takes in and tells.
class TestNotices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void onlyWhatWasLoadedIsTakenIn_data();
    void onlyWhatWasLoadedIsTakenIn();
    void exceptionsAreToldApart_data();
    void exceptionsAreToldApart();
    void heldObjectsStayTheRightOnes();
    void ownSaveIsNoForeignChange();
    void remindersAreNoNews();
    void unsavedChangeWinsAndLosesNothing();
    void changeHereAndDeletionThere();
    void deletionHereAndChangeThere();
    void exceptionChangedHereAndSeriesDeletedThere();
    void addedOnBothSides();
    void foreignChangesInMidSaveAreTakenIn();
    void purgedBeforeAnybodyLooked();
    void notebooksFollow();
    void notebookDeletedThereWithUnsavedChangesHere();
    void newNotebookIsKnownBeforeTheNoticeComes();
    void heldNoticesComeLater();
    void aRolledBackTransactionIsNoNews();

private:
    void change(const Step &step)
    {
        m_there->storage->load();
        step(*m_there);
        QVERIFY(m_there->storage->save());
    }
    KCalCore::Incidence::List overwritten(const QString &uid) const;

    std::unique_ptr<StorageFixture> m_fixture;
    std::unique_ptr<OpenStorage> m_here;
    std::unique_ptr<OpenStorage> m_there;
};

void TestNotices::init()
{
    m_fixture = std::make_unique<StorageFixture>();
    const auto series = daily("series", at(2026, 3, 1, 9), 20);
    QVERIFY(m_fixture->store({meeting("meeting", at(2026, 3, 10, 9)), series,
                              exception(series, at(2026, 3, 4, 9), at(2026, 3, 4, 12)),
                              todo("todo"), journal("note", at(2026, 3, 1, 9)),
                              meeting("later", at(2026, 9, 1, 9))}));
    m_here = m_fixture->open();
    m_there = m_fixture->open();
}

void TestNotices::cleanup()
{
    m_here.reset();
    m_there.reset();
    m_fixture.reset();
}

KCalCore::Incidence::List TestNotices::overwritten(const QString &uid) const
{
    KCalCore::Incidence::List versions;
    m_here->storage->overwrittenIncidences(&versions, uid);
    return versions;
}

void TestNotices::onlyWhatWasLoadedIsTakenIn_data()
{
    QTest::addColumn<Step>("load");
    QTest::addColumn<Step>("foreignChange");
    QTest::addColumn<QStringList>("uids");

    const Step nothing = [](OpenStorage &) {};
    const Step days = [](OpenStorage &s) {
        s.storage->load(QDate(2026, 3, 9), QDate(2026, 3, 11));
    };
    const Step recurring = [](OpenStorage &s) { s.storage->loadRecurringIncidences(); };
    const Step march = [](OpenStorage &s) {
        s.storage->loadRecurringIncidences(QDate(2026, 3, 1), QDate(2026, 3, 31));
    };
    const Step journals = [](OpenStorage &s) { s.storage->loadJournals(); };
    const Step todos = [](OpenStorage &s) { s.storage->loadUncompletedTodos(); };
    const Step work = [](OpenStorage &s) { s.storage->loadNotebookIncidences("work"); };
    const Step everything = [](OpenStorage &s) { s.storage->load(); };
    const auto add = [](const KCalCore::Incidence::Ptr &incidence) {
        return Step([incidence](OpenStorage &s) { s.calendar->addIncidence(incidence); });
    };
    const auto remove = [](const QString &uid) {
        return Step([uid](OpenStorage &s) { s.calendar->deleteIncidence(s.incidence(uid)); });
    };
    const auto all = QStringList{"later", "meeting", "note", "series", "series/20260304", "todo"};

    QTest::newRow("nothing loaded")
        << nothing << add(meeting("x", at(2026, 3, 10))) << QStringList{};
    QTest::newRow("a day loaded, added there")
        << days << add(meeting("x", at(2026, 3, 10))) << QStringList{"meeting", "x"};
    QTest::newRow("a day loaded, added elsewhere")
        << days << add(meeting("x", at(2026, 5, 10))) << QStringList{"meeting"};
    QTest::newRow("a day loaded, moved into it") << days << Step([](OpenStorage &s) {
        s.incidence("later")->setDtStart(at(2026, 3, 10, 11));
        s.incidence("later").staticCast<KCalCore::Event>()->setDtEnd(at(2026, 3, 10, 12));
    }) << QStringList{"later", "meeting"};
    QTest::newRow("moved out of what is loaded") << days << Step([](OpenStorage &s) {
        s.incidence("meeting")->setDtStart(at(2026, 12, 10, 11));
        s.incidence("meeting").staticCast<KCalCore::Event>()->setDtEnd(at(2026, 12, 10, 12));
    }) << QStringList{"meeting"};
    QTest::newRow("deleted") << days << remove("meeting") << QStringList{};
    QTest::newRow("not loaded, deleted") << days << remove("later") << QStringList{"meeting"};
    QTest::newRow("a series deleted") << recurring << remove("series") << QStringList{};
    QTest::newRow("a series added") << recurring << add(daily("x", at(2026, 1, 1), 3))
                                    << QStringList{"series", "series/20260304", "x"};
    QTest::newRow("living series loaded, a dead one added")
        << march << add(daily("x", at(2026, 1, 1), 3)) << QStringList{"series", "series/20260304"};
    QTest::newRow("an exception added") << march << Step([](OpenStorage &s) {
        s.calendar->addIncidence(
            exception(s.incidence("series"), at(2026, 3, 6, 9), at(2026, 8, 6, 12)));
    }) << QStringList{"series", "series/20260304", "series/20260306"};
    QTest::newRow("an exception deleted") << march << Step([](OpenStorage &s) {
        s.calendar->deleteIncidence(s.incidence("series", KDateTime(at(2026, 3, 4, 9))));
    }) << QStringList{"series"};
    QTest::newRow("a series ceases to recur") << recurring << Step([](OpenStorage &s) {
        const auto series = s.incidence("series");
        series->startUpdates();
        series->recurrence()->clear();
        series->endUpdates();
    }) << QStringList{"series", "series/20260304"};
    QTest::newRow("a journal") << journals << add(journal("x", at(2020, 1, 1)))
                               << QStringList{"note", "x"};
    QTest::newRow("an open to-do") << todos << add(todo("x")) << QStringList{"todo", "x"};
    const auto done = todo("x");
    done->setCompleted(at(2026, 3, 9));
    QTest::newRow("a to-do that is done already") << todos << add(done) << QStringList{"todo"};
    QTest::newRow("a to-do completed") << todos << Step([](OpenStorage &s) {
        s.incidence("todo").staticCast<KCalCore::Todo>()->setCompleted(true);
    }) << QStringList{"todo"};
    QTest::newRow("notebook") << work << add(todo("x")) << (all + QStringList{"x"});
    QTest::newRow("everything") << everything << add(todo("x")) << (all + QStringList{"x"});
    QTest::newRow("an event becomes a to-do") << days << Step([](OpenStorage &s) {
        s.calendar->deleteIncidence(s.incidence("meeting"));
        s.calendar->addIncidence(todo("meeting"));
    }) << QStringList{"meeting"};
}

void TestNotices::onlyWhatWasLoadedIsTakenIn()
{
    QFETCH(Step, load);
    QFETCH(Step, foreignChange);
    QFETCH(QStringList, uids);
    load(*m_here);
    change(foreignChange);
    QCOMPARE(m_here->notices.modified, 0);
    QTRY_COMPARE(m_here->notices.modified, 1);
    QCOMPARE(m_here->uids(), uids);
    QVERIFY(!m_here->storage->hasUnsavedChanges());
    for (const QString &uid : qAsConst(uids)) {
        const auto theirs = m_there->incidence(uid);
        if (theirs)
            QCOMPARE(differences(*m_here->incidence(uid), *theirs), QStringList());
    }
    // Once, and not for what came of one's own look.
    QCoreApplication::processEvents();
    QCOMPARE(m_here->notices.modified, 1);
    QCOMPARE(m_there->notices.modified, 1);
}

void TestNotices::exceptionsAreToldApart_data()
{
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<bool>("allDay");
    const QTime nine(9, 0);
    const QDate day(2026, 3, 20);
    QTest::newRow("all-day") << QDateTime(day, QTime(0, 0)) << true;
    QTest::newRow("floating") << QDateTime(day, nine) << false;
    QTest::newRow("floating midnight") << QDateTime(day, QTime(0, 0)) << false;
    QTest::newRow("UTC") << QDateTime(day, nine, Qt::UTC) << false;
    QTest::newRow("another zone") << QDateTime(day, nine, QTimeZone("America/New_York")) << false;
    QTest::newRow("an offset") << QDateTime(day, nine, Qt::OffsetFromUTC, 5400) << false;
    QTest::newRow("with milliseconds") << QDateTime(day, QTime(9, 0, 0, 250), Qt::UTC) << false;
}

void TestNotices::exceptionsAreToldApart()
{
    QFETCH(QDateTime, start);
    QFETCH(bool, allDay);
    const auto series = daily("x", start, 10);
    series->setAllDay(allDay);
    const auto second = exception(series, start.addDays(1), start.addDays(1).addSecs(7200));
    second->setAllDay(allDay);
    QVERIFY(m_fixture->store({series, second}));
    QVERIFY(m_here->storage->load("x"));
    const int known = m_here->uids().size();
    const auto held = m_here->calendar->instances(m_here->incidence("x"));
    QCOMPARE(held.size(), 1);
    change([](OpenStorage &s) {
        const auto theirs = s.calendar->instances(s.incidence("x"));
        QCOMPARE(theirs.size(), 1);
        theirs.first()->setSummary("theirs", false);
    });
    QTRY_COMPARE(held.first()->summary(), QStringLiteral("theirs"));
    QCOMPARE(m_here->uids().size(), known);
    // An edit of it is one of the same row.
    held.first()->setSummary("mine", false);
    QVERIFY(m_here->storage->save());
    KCalCore::Incidence::List stored;
    QVERIFY(m_here->storage->allIncidences(&stored));
    QCOMPARE(stored.size(), 8);
    change([](OpenStorage &s) {
        s.calendar->deleteIncidence(s.calendar->instances(s.incidence("x")).first());
    });
    QTRY_COMPARE(m_here->uids().size(), known - 1);
}

void TestNotices::heldObjectsStayTheRightOnes()
{
    QVERIFY(m_here->storage->load());
    const auto held = m_here->incidence("meeting");
    change([](OpenStorage &s) {
        s.incidence("meeting")->setSummary("renamed", false);
        s.incidence("meeting")->setDtStart(at(2026, 3, 9, 20));
    });
    QTRY_COMPARE(m_here->notices.modified, 1);
    QCOMPARE(m_here->incidence("meeting"), held);
    QCOMPARE(held->summary(), QStringLiteral("renamed"));
    QCOMPARE(m_here->calendar->rawEvents(QDate(2026, 3, 9), QDate(2026, 3, 9)).size(), 2);
    // Whoever holds it can go on with it.
    held->setSummary("renamed again", false);
    QVERIFY(m_here->storage->save());
    QTRY_COMPARE(m_there->incidence("meeting")->summary(), QStringLiteral("renamed again"));
}

void TestNotices::ownSaveIsNoForeignChange()
{
    QVERIFY(m_here->storage->load());
    // Both are known to be watching once a first notice went over.
    change([](OpenStorage &s) { s.incidence("todo")->setPriority(1); });
    QTRY_COMPARE(m_here->notices.modified, 1);
    for (int i = 1; i <= 3; ++i) {
        m_here->incidence("meeting")->setPriority(i);
        QVERIFY(m_here->storage->save());
        QCOMPARE(m_here->notices.modified, 1 + i);
        QTRY_COMPARE(m_there->incidence("meeting")->priority(), i);
    }
    QCOMPARE(m_here->notices.modified, 4);
}

void TestNotices::remindersAreNoNews()
{
    QVERIFY(m_here->storage->load());
    QVERIFY(m_there->storage->load());
    QVERIFY(m_there->storage->resetAlarms(m_there->calendar->rawIncidences()));
    change([](OpenStorage &s) { s.incidence("todo")->setPriority(1); });
    QTRY_COMPARE(m_here->incidence("todo")->priority(), 1);
    QCOMPARE(m_here->notices.modified, 1);
}

void TestNotices::unsavedChangeWinsAndLosesNothing()
{
    QVERIFY(m_here->storage->load());
    m_here->incidence("meeting")->setSummary("mine", false);
    change([](OpenStorage &s) {
        s.incidence("meeting")->setSummary("theirs", false);
        s.incidence("todo")->setSummary("theirs", false);
    });
    QTRY_COMPARE(m_here->notices.modified, 1);
    QCOMPARE(m_here->incidence("meeting")->summary(), QStringLiteral("mine"));
    QCOMPARE(m_here->incidence("todo")->summary(), QStringLiteral("theirs"));
    QVERIFY(m_here->storage->save());
    QTRY_COMPARE(m_there->incidence("meeting")->summary(), QStringLiteral("mine"));
    QCOMPARE(overwritten("meeting").size(), 1);
    QCOMPARE(overwritten("meeting").first()->summary(), QStringLiteral("theirs"));
    // The next save has seen everything.
    m_here->incidence("meeting")->setSummary("mine again", false);
    QVERIFY(m_here->storage->save());
    QCOMPARE(overwritten("meeting").size(), 1);
}

void TestNotices::changeHereAndDeletionThere()
{
    QVERIFY(m_here->storage->load());
    m_here->incidence("meeting")->setSummary("mine", false);
    change([](OpenStorage &s) { s.calendar->deleteIncidence(s.incidence("meeting")); });
    QTRY_COMPARE(m_here->notices.modified, 1);
    QVERIFY(m_here->storage->save());
    QTRY_VERIFY(m_there->incidence("meeting"));
    QCOMPARE(m_there->incidence("meeting")->summary(), QStringLiteral("mine"));
    QCOMPARE(overwritten("meeting").size(), 1);
    KCalCore::Incidence::List deleted;
    QVERIFY(m_here->storage->deletedIncidences(&deleted));
    QVERIFY(deleted.isEmpty());
}

void TestNotices::deletionHereAndChangeThere()
{
    QVERIFY(m_here->storage->load());
    m_here->calendar->deleteIncidence(m_here->incidence("meeting"));
    change([](OpenStorage &s) { s.incidence("meeting")->setSummary("theirs", false); });
    QTRY_COMPARE(m_here->notices.modified, 1);
    QVERIFY(!m_here->incidence("meeting"));
    QVERIFY(m_here->storage->save());
    QTRY_VERIFY(!m_there->incidence("meeting"));
    // What they wrote can be brought back.
    QVERIFY(m_here->storage->undelete("meeting"));
    QCOMPARE(m_here->incidence("meeting")->summary(), QStringLiteral("theirs"));
}

void TestNotices::exceptionChangedHereAndSeriesDeletedThere()
{
    QVERIFY(m_here->storage->load());
    const KDateTime fourth(at(2026, 3, 4, 9));
    m_here->incidence("series", fourth)->setSummary("mine", false);
    change([](OpenStorage &s) { s.calendar->deleteIncidence(s.incidence("series")); });
    QTRY_COMPARE(m_here->notices.modified, 1);
    QVERIFY(!m_here->incidence("series"));
    QVERIFY(m_here->incidence("series", fourth));
    QVERIFY(m_here->storage->save());
    QTRY_VERIFY(m_there->incidence("series", fourth));
    QCOMPARE(m_there->incidence("series", fourth)->summary(), QStringLiteral("mine"));
}

void TestNotices::addedOnBothSides()
{
    QVERIFY(m_here->storage->load());
    const auto mine = meeting("x", at(2026, 3, 10, 15));
    mine->setSummary("mine", false);
    m_here->calendar->addIncidence(mine);
    change([](OpenStorage &s) { s.calendar->addIncidence(meeting("x", at(2026, 3, 11, 15))); });
    QVERIFY(m_here->storage->save());
    QTRY_COMPARE(m_there->incidence("x")->summary(), QStringLiteral("mine"));
    QCOMPARE(overwritten("x").size(), 1);
    QCOMPARE(m_here->uids().count("x"), 1);
}

void TestNotices::foreignChangesInMidSaveAreTakenIn()
{
    QVERIFY(m_here->storage->load());
    change([](OpenStorage &s) { s.incidence("todo")->setSummary("theirs", false); });
    // Before this process gets to its event loop.
    m_here->incidence("meeting")->setSummary("mine", false);
    QVERIFY(m_here->storage->save());
    QCOMPARE(m_here->notices.modified, 1);
    QTRY_COMPARE(m_here->notices.modified, 2);
    QCOMPARE(m_here->incidence("todo")->summary(), QStringLiteral("theirs"));
}

void TestNotices::purgedBeforeAnybodyLooked()
{
    QVERIFY(m_here->storage->load());
    m_here->incidence("note")->setSummary("mine", false);
    change([](OpenStorage &s) {
        s.calendar->deleteIncidence(s.incidence("meeting"));
        s.calendar->deleteIncidence(s.incidence("note"));
    });
    QVERIFY(m_there->storage->purgeDeleted());
    QTRY_COMPARE(m_here->notices.modified, 1);
    QVERIFY(!m_here->incidence("meeting"));
    QVERIFY(m_here->incidence("note"));
    QVERIFY(m_here->incidence("series"));
}

void TestNotices::notebooksFollow()
{
    QVERIFY(m_here->storage->load());
    const Notebook::Ptr held = m_here->storage->notebook("work");
    QVERIFY(m_there->storage->updateNotebook(notebook("work", "Renamed")));
    QVERIFY(m_there->storage->addNotebook(notebook("home"), false));
    QVERIFY(m_there->storage->setDefaultNotebook(notebook("home")));
    change([](OpenStorage &s) { s.calendar->setNotebook(s.incidence("todo"), "home"); });
    QTRY_COMPARE(m_here->calendar->notebook("todo"), QStringLiteral("home"));
    QCOMPARE(held->name(), QStringLiteral("Renamed"));
    QCOMPARE(m_here->storage->notebook("work"), held);
    QCOMPARE(m_here->storage->defaultNotebook()->uid(), QStringLiteral("home"));
    QCOMPARE(m_here->calendar->defaultNotebook(), QStringLiteral("home"));
    QVERIFY(!m_here->storage->hasUnsavedChanges());
}

void TestNotices::notebookDeletedThereWithUnsavedChangesHere()
{
    QVERIFY(m_there->storage->addNotebook(notebook("home"), false));
    change([](OpenStorage &s) {
        s.calendar->setNotebook(s.incidence("todo"), "home");
        s.calendar->setNotebook(s.incidence("meeting"), "home");
    });
    QVERIFY(m_here->storage->load());
    QTRY_COMPARE(m_here->calendar->notebook("todo"), QStringLiteral("home"));
    m_here->incidence("meeting")->setSummary("mine", false);
    QVERIFY(m_there->storage->deleteNotebook(notebook("home")));
    QTRY_VERIFY(!m_here->storage->notebook("home"));
    QVERIFY(!m_here->incidence("todo"));
    QCOMPARE(m_here->calendar->notebook("meeting"), QStringLiteral("work"));
    QVERIFY(m_here->storage->save());
    QTRY_VERIFY(m_there->incidence("meeting"));
}

void TestNotices::newNotebookIsKnownBeforeTheNoticeComes()
{
    QVERIFY(m_there->storage->addNotebook(notebook("home"), false));
    m_there->calendar->addIncidence(todo("x"), "home");
    QVERIFY(m_there->storage->save());
    QVERIFY(m_here->storage->load("x"));
    QCOMPARE(m_here->calendar->notebook("x"), QStringLiteral("home"));
}

void TestNotices::heldNoticesComeLater()
{
    QVERIFY(m_here->storage->load());
    QVERIFY(m_there->storage->load());
    m_here->storage->holdNotices();
    change([](OpenStorage &s) { s.incidence("todo")->setSummary("theirs", false); });
    // A change the other way has been noticed: so would this one have been.
    m_here->incidence("meeting")->setSummary("mine", false);
    m_here->storage->releaseNotices();
    m_here->storage->holdNotices();
    QTRY_VERIFY(SqliteStoragePrivate::of(*m_here->storage).lookDue);
    QCOMPARE(m_here->notices.modified, 0);
    QCOMPARE(m_here->incidence("todo")->summary(), QStringLiteral("todo"));
    m_here->storage->releaseNotices();
    QTRY_COMPARE(m_here->notices.modified, 1);
    QCOMPARE(m_here->incidence("todo")->summary(), QStringLiteral("theirs"));
}

void TestNotices::aRolledBackTransactionIsNoNews()
{
    QVERIFY(m_here->storage->load());
    {
        const auto writer = m_there->storage->bulkWriter();
        QVERIFY(writer->write(meeting("x", at(2026, 3, 10)), "work"));
    }
    change([](OpenStorage &s) { s.incidence("todo")->setSummary("theirs", false); });
    QTRY_COMPARE(m_here->incidence("todo")->summary(), QStringLiteral("theirs"));
    QCOMPARE(m_here->notices.modified, 1);
    QVERIFY(!m_here->incidence("x"));
}

STORAGE_TEST_MAIN(TestNotices)
#include "tst_notices.moc"
