// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storagefixture.h"

#include <sqlite3.h>

using namespace mKCal;
using namespace Make;

using NotebookCall = std::function<bool(SqliteStorage &)>;
Q_DECLARE_METATYPE(NotebookCall)

class TestStorageNotebooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<StorageFixture>(); }
    void cleanup() { m_fixture.reset(); }
    void secondNotebookOfAUidIsRefusedWithoutHarm();
    void refusals_data();
    void refusals();
    void changesByThePersonSurviveReopening();
    void orderIsThatOfAdding();
    void calendarKnowsEveryNotebook();
    void defaultTakesOnlyTheUid();
    void resetDefaultSkipsWhatCannotServe();
    void noticesOfChanges();
    void deletedNotebookLeavesTombstones();
    void forgettingANotebookLeavesTheDatabase();
    void changedInPlaceIsStored();

private:
    qint64 counter() const
    {
        return SqliteStoragePrivate::of(*m_fixture->open()->storage).seenChange;
    }
    std::unique_ptr<StorageFixture> m_fixture;
};

void TestStorageNotebooks::secondNotebookOfAUidIsRefusedWithoutHarm()
{
    const auto opened = m_fixture->open();
    const auto watcher = m_fixture->open();
    const qint64 before = counter();
    QVERIFY(!opened->storage->addNotebook(notebook("work", "Another name"), true));
    QCOMPARE(opened->storage->modifyNotebookErrors(), QList<int>{SQLITE_CONSTRAINT});
    QVERIFY(opened->storage->errorMessage().contains(m_fixture->fileName()));
    QCOMPARE(opened->notices.modified, 0);
    QCOMPARE(opened->storage->notebook("work")->name(), QStringLiteral("work"));
    QCOMPARE(counter(), before);
    QCoreApplication::processEvents();
    QCOMPARE(watcher->notices.modified, 0);
}

void TestStorageNotebooks::refusals_data()
{
    using Call = NotebookCall;
    QTest::addColumn<Call>("call");
    QTest::addColumn<int>("code");
    QTest::newRow("no notebook") << Call([](SqliteStorage &s) { return s.addNotebook({}); })
                                 << SQLITE_MISUSE;
    QTest::newRow("no UID") << Call([](SqliteStorage &s) { return s.addNotebook(notebook("")); })
                            << SQLITE_MISUSE;
    QTest::newRow("update of an unknown one")
        << Call([](SqliteStorage &s) { return s.updateNotebook(notebook("other")); })
        << SQLITE_NOTFOUND;
    QTest::newRow("deletion of an unknown one")
        << Call([](SqliteStorage &s) { return s.deleteNotebook(notebook("other")); })
        << SQLITE_NOTFOUND;
    QTest::newRow("unknown default")
        << Call([](SqliteStorage &s) { return s.setDefaultNotebook(notebook("other")); })
        << SQLITE_NOTFOUND;
    QTest::newRow("closed") << Call([](SqliteStorage &s) {
        s.close();
        return s.addNotebook(notebook("other"));
    }) << SQLITE_CANTOPEN;
}

void TestStorageNotebooks::refusals()
{
    QFETCH(NotebookCall, call);
    QFETCH(int, code);
    const auto opened = m_fixture->open();
    QVERIFY(!call(*opened->storage));
    QCOMPARE(opened->storage->modifyNotebookErrors(), QList<int>{code});
    QCOMPARE(opened->notices.modified, 0);
}

void TestStorageNotebooks::changesByThePersonSurviveReopening()
{
    {
        const auto opened = m_fixture->open();
        Notebook changed(*opened->storage->notebook("work"));
        changed.setName("Töissä");
        changed.setColor("#ff0000");
        changed.setIsVisible(false);
        changed.setCustomProperty("key", "value");
        QVERIFY(opened->storage->updateNotebook(Notebook::Ptr::create(changed)));
    }
    for (int round = 0; round < 2; ++round) {
        OpenStorage again(m_fixture->fileName());
        // What every opening of the database tries.
        QVERIFY(!again.storage->addNotebook(notebook("work", "Work"), false));
        QVERIFY(again.storage->setDefaultNotebook(notebook("work", "Work")));
        const Notebook::Ptr stored = again.storage->notebook("work");
        QCOMPARE(stored->name(), QStringLiteral("Töissä"));
        QCOMPARE(stored->color(), QStringLiteral("#ff0000"));
        QCOMPARE(stored->isVisible(), false);
        QCOMPARE(stored->customProperty("key"), QStringLiteral("value"));
    }
}

void TestStorageNotebooks::orderIsThatOfAdding()
{
    const QStringList uids{"work", "zebra", "ant", "mole"};
    {
        const auto opened = m_fixture->open();
        for (const QString &uid : uids.mid(1))
            QVERIFY(opened->storage->addNotebook(notebook(uid)));
        QVERIFY(opened->storage->updateNotebook(notebook("ant", "Renamed")));
    }
    const auto opened = m_fixture->open();
    QStringList found;
    for (const auto &stored : opened->storage->notebooks())
        found.append(stored->uid());
    QCOMPARE(found, uids);
}

void TestStorageNotebooks::calendarKnowsEveryNotebook()
{
    {
        const auto opened = m_fixture->open();
        QVERIFY(opened->storage->addNotebook(notebook("home")));
        QVERIFY(opened->calendar->hasValidNotebook("home"));
    }
    const auto opened = m_fixture->open();
    QCOMPARE(opened->calendar->notebooks(), QStringList({"work", "home"}));
    QCOMPARE(opened->calendar->defaultNotebook(), QStringLiteral("work"));
    QCOMPARE(opened->storage->defaultNotebook()->uid(), QStringLiteral("work"));
}

void TestStorageNotebooks::defaultTakesOnlyTheUid()
{
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->addNotebook(notebook("home"), false));
    QVERIFY(opened->storage->setDefaultNotebook(notebook("home", "Another name")));
    QCOMPARE(opened->storage->defaultNotebook()->name(), QStringLiteral("home"));
    const auto again = m_fixture->open();
    QCOMPARE(again->storage->defaultNotebook()->uid(), QStringLiteral("home"));
    QCOMPARE(again->storage->defaultNotebook()->name(), QStringLiteral("home"));
}

void TestStorageNotebooks::resetDefaultSkipsWhatCannotServe()
{
    const auto opened = m_fixture->open();
    const Notebook::Ptr readOnly = notebook("readOnly");
    readOnly->setIsReadOnly(true);
    const Notebook::Ptr invisible = notebook("invisible");
    invisible->setIsVisible(false);
    const Notebook::Ptr hidden = notebook("hidden");
    hidden->setIsHidden(true);
    for (const auto &added : {readOnly, invisible, hidden, notebook("home")})
        QVERIFY(opened->storage->addNotebook(added, false));
    QVERIFY(opened->storage->deleteNotebook(notebook("work")));
    QVERIFY(!opened->storage->defaultNotebook());
    QVERIFY(opened->storage->resetDefaultNotebook());
    QCOMPARE(opened->storage->defaultNotebook()->uid(), QStringLiteral("home"));
    QVERIFY(opened->storage->deleteNotebook(notebook("home")));
    QVERIFY(!opened->storage->resetDefaultNotebook());
}

void TestStorageNotebooks::noticesOfChanges()
{
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->addNotebook(notebook("quiet"), false));
    QCOMPARE(opened->notices.modified, 0);
    QVERIFY(opened->storage->addNotebook(notebook("loud"), true));
    QCOMPARE(opened->notices.modified, 1);
    QVERIFY(opened->storage->updateNotebook(notebook("loud", "Louder")));
    QCOMPARE(opened->notices.modified, 2);
    QVERIFY(opened->storage->updateNotebook(notebook("loud", "Louder")));
    QVERIFY(opened->storage->setDefaultNotebook(notebook("work")));
    QCOMPARE(opened->notices.modified, 2);
    QVERIFY(opened->storage->deleteNotebook(notebook("loud")));
    QCOMPARE(opened->notices.modified, 3);
    QVERIFY(!opened->storage->hasUnsavedChanges());
}

void TestStorageNotebooks::deletedNotebookLeavesTombstones()
{
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->addNotebook(notebook("home"), false));
    const auto series = daily("series", at(2026, 3, 1, 9), 10);
    const KCalCore::Alarm::Ptr alarm = series->newAlarm();
    alarm->setStartOffset(KCalCore::Duration(-60));
    alarm->setEnabled(true);
    opened->calendar->addIncidence(series, "home");
    opened->calendar->addIncidence(exception(series, at(2026, 3, 4, 9), at(2026, 3, 4, 12)));
    opened->calendar->addIncidence(meeting("kept", at(2026, 3, 1)));
    QVERIFY(opened->storage->save());
    opened->calendar->addIncidence(meeting("unsaved", at(2026, 3, 1)), "home");
    QVERIFY(opened->storage->deleteNotebook(notebook("home")));
    QCOMPARE(opened->uids(), QStringList{"kept"});
    QVERIFY(!opened->storage->hasUnsavedChanges());
    KCalCore::Incidence::List deleted;
    QVERIFY(opened->storage->deletedIncidences(&deleted, QDateTime(), "home"));
    QCOMPARE(deleted.size(), 2);
    QVERIFY(opened->storage->reminders(m_fixture->now, m_fixture->now.addDays(30)).isEmpty());
    // Without its notebook it comes back into the default one.
    QVERIFY(opened->storage->undelete("series"));
    QCOMPARE(opened->calendar->notebook("series"), QStringLiteral("work"));
}

void TestStorageNotebooks::forgettingANotebookLeavesTheDatabase()
{
    QVERIFY(m_fixture->store({meeting("a", at(2026, 3, 1))}));
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->load());
    QVERIFY(opened->storage->deleteNotebook(notebook("work"), true));
    QVERIFY(opened->uids().isEmpty());
    QVERIFY(!opened->storage->hasUnsavedChanges());
    QVERIFY(opened->storage->load());
    QCOMPARE(opened->uids(), QStringList{"a"});
    QCOMPARE(opened->calendar->defaultNotebook(), QStringLiteral("work"));
}

void TestStorageNotebooks::changedInPlaceIsStored()
{
    const auto opened = m_fixture->open();
    const Notebook::Ptr ours = opened->storage->notebook("work");
    ours->setName("Changed in place");
    QVERIFY(opened->storage->updateNotebook(ours));
    QCOMPARE(m_fixture->open()->storage->notebook("work")->name(),
             QStringLiteral("Changed in place"));
}

STORAGE_TEST_MAIN(TestStorageNotebooks)
#include "tst_sqlitestorage_notebooks.moc"
