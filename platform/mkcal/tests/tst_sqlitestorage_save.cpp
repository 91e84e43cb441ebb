// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storagefixture.h"

#include <mkcal/incidencecomparison.h>

#include <QFile>

#include <sqlite3.h>

using namespace mKCal;
using namespace Make;

namespace
{
/// Holds the write lock of a database, as a process does that stands still in mid-save.
class WriteLock
{
public:
    explicit WriteLock(const QString &fileName)
    {
        sqlite3_open(QFile::encodeName(fileName).constData(), &m_database);
        sqlite3_exec(m_database, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    }
    ~WriteLock() { sqlite3_close(m_database); }

private:
    sqlite3 *m_database = nullptr;
};

KCalCore::Event::Ptr richEvent()
{
    const auto rich = meeting("rich", at(2026, 3, 12, 9));
    const KCalCore::Alarm::Ptr alarm = rich->newAlarm();
    alarm->setDisplayAlarm(QStringLiteral("Now"));
    alarm->setStartOffset(KCalCore::Duration(-900));
    alarm->setEnabled(true);
    rich->addAttendee(KCalCore::Attendee("Anna", "anna@example.org", true));
    rich->setCategories(QStringList{"family", "with, comma"});
    rich->setCustomProperty("APP", "KEY", "value");
    return rich;
}

QStringList summaries(const KCalCore::Incidence::List &incidences)
{
    QStringList summaries;
    for (const auto &incidence : incidences)
        summaries.append(incidence->summary());
    return summaries;
}
} // namespace

using Edit = std::function<void(OpenStorage &)>;
Q_DECLARE_METATYPE(Edit)

class TestStorageSave : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<StorageFixture>(); }
    void cleanup() { m_fixture.reset(); }
    void notifiesOnceInsideSave();
    void observersMayLeaveWhileTold();
    void stampsTimes();
    void storesChangesOfEveryKind();
    void recordsOnlyWhatIsToBeWritten_data();
    void recordsOnlyWhatIsToBeWritten();
    void refusedSaveKeepsChanges_data();
    void refusedSaveKeepsChanges();
    void saveWithoutNotebookIsRefused();
    void movedToAnotherNotebook();
    void deletedSeriesTakesItsExceptions();
    void undeleteBringsEverythingBack();
    void undeleteOfSeriesBringsItsExceptions();
    void undeleteRefusesWhatLives();
    void purgeIsFinal();
    void addingWhatIsStoredKeepsTheOtherVersion();
    void reopeningGoesOn();

private:
    std::unique_ptr<StorageFixture> m_fixture;
};

void TestStorageSave::notifiesOnceInsideSave()
{
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->save());
    QCOMPARE(opened->notices.modified, 1);
    opened->calendar->addIncidence(meeting("a", at(2026, 3, 10, 9)));
    opened->calendar->addIncidence(meeting("b", at(2026, 3, 10, 9)));
    QCOMPARE(opened->notices.modified, 1);
    QVERIFY(opened->storage->save());
    QCOMPARE(opened->notices.modified, 2);
    QVERIFY(!opened->storage->hasUnsavedChanges());
    QVERIFY(opened->storage->saveErrors().isEmpty());
}

void TestStorageSave::observersMayLeaveWhileTold()
{
    const auto opened = m_fixture->open();
    NoticeCounter second;
    opened->storage->registerObserver(&second);
    opened->notices.onModified = [&second](ExtendedStorage *storage) {
        storage->unregisterObserver(&second);
        storage->load();
    };
    QVERIFY(opened->storage->save());
    QCOMPARE(opened->notices.modified, 1);
    QCOMPARE(second.modified, 0);
}

void TestStorageSave::stampsTimes()
{
    const auto opened = m_fixture->open();
    const auto stamped = meeting("a", at(2026, 3, 10, 9));
    stamped->setCreated(QDateTime());
    opened->calendar->addIncidence(stamped);
    const QDateTime first = m_fixture->now;
    QVERIFY(opened->storage->save());
    m_fixture->now = first.addSecs(60);
    stamped->setSummary("changed", false);
    QVERIFY(opened->storage->save());

    const auto reader = m_fixture->open();
    QVERIFY(reader->storage->load("a"));
    QCOMPARE(reader->incidence("a")->created(), first);
    QCOMPARE(reader->incidence("a")->lastModified(), first.addSecs(60));
}

void TestStorageSave::storesChangesOfEveryKind()
{
    const auto series = daily("series", at(2026, 3, 1, 9), 10);
    QVERIFY(
        m_fixture->store({richEvent(), series, todo("todo"), journal("diary", at(2026, 3, 1))}));
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->load());
    opened->incidence("rich")->alarms().first()->setEnabled(false);
    opened->incidence("todo").staticCast<KCalCore::Todo>()->setCompleted(true);
    opened->calendar->deleteIncidence(opened->incidence("diary"));
    const auto split = opened->incidence("series");
    split->startUpdates();
    split->recurrence()->addExDateTime(at(2026, 3, 2, 9));
    split->endUpdates();
    opened->calendar->addIncidence(exception(split, at(2026, 3, 4, 9), at(2026, 3, 4, 12)));
    QVERIFY(opened->storage->save());

    const auto reader = m_fixture->open();
    QVERIFY(reader->storage->load());
    QCOMPARE(reader->uids(), QStringList({"rich", "series", "series/20260304", "todo"}));
    const auto incidences = opened->calendar->rawIncidences();
    for (const auto &incidence : incidences) {
        const auto stored =
            reader->incidence(incidence->uid(), KDateTime(incidence->recurrenceId()));
        QVERIFY(stored);
        QCOMPARE(differences(*incidence, *stored), QStringList());
        QCOMPARE(reader->calendar->notebook(stored), QStringLiteral("work"));
    }
}

void TestStorageSave::recordsOnlyWhatIsToBeWritten_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<bool>("unsaved");
    QTest::newRow("nothing") << Edit([](OpenStorage &) {}) << false;
    QTest::newRow("added and deleted") << Edit([](OpenStorage &s) {
        const auto passing = meeting("passing", at(2026, 3, 1));
        s.calendar->addIncidence(passing);
        s.calendar->deleteIncidence(passing);
    }) << false;
    QTest::newRow("deleted and added") << Edit([](OpenStorage &s) {
        const auto kept = s.incidence("kept");
        s.calendar->deleteIncidence(kept);
        s.calendar->addIncidence(kept);
    }) << true;
    QTest::newRow("changed") << Edit([](OpenStorage &s) { s.incidence("kept")->setPriority(3); })
                             << true;
    QTest::newRow("replaced") << Edit([](OpenStorage &s) {
        s.calendar->addIncidence(meeting("kept", at(2026, 3, 2)));
    }) << true;
}

void TestStorageSave::recordsOnlyWhatIsToBeWritten()
{
    QFETCH(Edit, edit);
    QFETCH(bool, unsaved);
    QVERIFY(m_fixture->store({meeting("kept", at(2026, 3, 1))}));
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->load());
    edit(*opened);
    QCOMPARE(opened->storage->hasUnsavedChanges(), unsaved);
    QVERIFY(opened->storage->save());
    // One row, whatever was done, and no version kept that nobody else wrote.
    KCalCore::Incidence::List stored;
    QVERIFY(opened->storage->allIncidences(&stored));
    QVERIFY(opened->storage->overwrittenIncidences(&stored, "kept"));
    QVERIFY(opened->storage->deletedIncidences(&stored));
    QCOMPARE(stored.size(), 1);
}

void TestStorageSave::refusedSaveKeepsChanges_data()
{
    QTest::addColumn<QString>("hindrance");
    QTest::addColumn<int>("code");
    QTest::newRow("locked") << "lock" << SQLITE_BUSY;
    QTest::newRow("moved away") << "move" << SQLITE_READONLY;
    QTest::newRow("not open") << "close" << SQLITE_CANTOPEN;
    QTest::newRow("many incidences being written") << "bulk" << SQLITE_BUSY;
}

void TestStorageSave::refusedSaveKeepsChanges()
{
    QFETCH(QString, hindrance);
    QFETCH(int, code);
    const auto opened = m_fixture->open();
    opened->calendar->addIncidence(richEvent());
    const QString aside = m_fixture->folder.filePath("aside.db");
    std::unique_ptr<WriteLock> lock;
    std::unique_ptr<BulkWriter> bulk;
    if (hindrance == "lock") {
        lock = std::make_unique<WriteLock>(m_fixture->fileName());
        SqliteStoragePrivate::of(*opened->storage).connection.execute("PRAGMA busy_timeout = 10");
    } else if (hindrance == "move") {
        QVERIFY(QFile::rename(m_fixture->fileName(), aside));
    } else if (hindrance == "close") {
        QVERIFY(opened->storage->close());
    } else {
        bulk = opened->storage->bulkWriter();
        QVERIFY(bulk);
    }

    QVERIFY(!opened->storage->save());
    QCOMPARE(opened->notices.modified, 0);
    QCOMPARE(opened->storage->saveErrors(), QList<int>{code});
    QCOMPARE(opened->storage->errorCode(), code);
    QVERIFY(opened->storage->errorMessage().contains(m_fixture->fileName()));
    QVERIFY(opened->storage->hasUnsavedChanges());

    lock.reset();
    bulk.reset();
    if (hindrance == "move")
        QVERIFY(QFile::rename(aside, m_fixture->fileName()));
    QVERIFY(opened->storage->open());
    QVERIFY(opened->storage->save());
    QCOMPARE(opened->notices.modified, 1);
    QVERIFY(opened->storage->saveErrors().isEmpty());
    QVERIFY(opened->storage->errorMessage().isEmpty());
    const auto reader = m_fixture->open();
    QVERIFY(reader->storage->load("rich"));
    QCOMPARE(differences(*opened->incidence("rich"), *reader->incidence("rich")), QStringList());
}

void TestStorageSave::saveWithoutNotebookIsRefused()
{
    OpenStorage opened(m_fixture->fileName());
    opened.calendar->addIncidence(meeting("a", at(2026, 3, 1)));
    QVERIFY(!opened.storage->save());
    QCOMPARE(opened.storage->saveErrors(), QList<int>{SQLITE_CONSTRAINT});
    QVERIFY(opened.storage->addNotebook(notebook("late"), false));
    QVERIFY(opened.storage->save());
}

void TestStorageSave::movedToAnotherNotebook()
{
    const auto series = daily("series", at(2026, 3, 1, 9), 10);
    QVERIFY(m_fixture->store({series, exception(series, at(2026, 3, 4, 9), at(2026, 3, 4, 12))}));
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->addNotebook(notebook("home"), false));
    QVERIFY(opened->storage->load());
    QVERIFY(opened->calendar->setNotebook(opened->incidence("series"), "home"));
    QVERIFY(opened->storage->save());
    KCalCore::Incidence::List moved;
    QVERIFY(opened->storage->allIncidences(&moved, "home"));
    QCOMPARE(moved.size(), 2);
}

void TestStorageSave::deletedSeriesTakesItsExceptions()
{
    const auto series = daily("series", at(2026, 3, 1, 9), 10);
    QVERIFY(m_fixture->store({series}));
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->load("series"));
    // Somebody else adds an exception that is not seen here.
    QVERIFY(m_fixture->store({exception(series, at(2026, 3, 4, 9), at(2026, 3, 4, 12))}));
    opened->calendar->deleteIncidence(opened->incidence("series"));
    QVERIFY(opened->storage->save());
    KCalCore::Incidence::List left;
    QVERIFY(opened->storage->allIncidences(&left));
    QVERIFY(left.isEmpty());
    QVERIFY(opened->storage->deletedIncidences(&left));
    QCOMPARE(left.size(), 2);
}

void TestStorageSave::undeleteBringsEverythingBack()
{
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->addNotebook(notebook("home"), false));
    const auto rich = richEvent();
    opened->calendar->addIncidence(rich, "home");
    QVERIFY(opened->storage->save());
    const KCalCore::Incidence::Ptr before(rich->clone());
    opened->calendar->deleteIncidence(rich);
    QVERIFY(opened->storage->save());
    QVERIFY(opened->storage->reminders(m_fixture->now, m_fixture->now.addDays(30)).isEmpty());

    QVERIFY(opened->storage->undelete("rich"));
    QVERIFY(opened->storage->hasUnsavedChanges());
    QVERIFY(opened->storage->save());
    const auto reader = m_fixture->open();
    QVERIFY(reader->storage->load("rich"));
    const auto back = reader->incidence("rich");
    QVERIFY(back);
    QCOMPARE(differences(*before, *back), QStringList());
    QCOMPARE(reader->calendar->notebook(back), QStringLiteral("home"));
    QCOMPARE(reader->storage->reminders(m_fixture->now, m_fixture->now.addDays(30)).size(), 1);
    KCalCore::Incidence::List tombstones;
    QVERIFY(reader->storage->deletedIncidences(&tombstones));
    QVERIFY(tombstones.isEmpty());
}

void TestStorageSave::undeleteOfSeriesBringsItsExceptions()
{
    const auto series = daily("series", at(2026, 3, 1, 9), 10);
    QVERIFY(m_fixture->store({series, exception(series, at(2026, 3, 4, 9), at(2026, 3, 4, 12))}));
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->load());
    opened->calendar->deleteIncidence(opened->incidence("series"));
    QVERIFY(opened->storage->save());
    QVERIFY(opened->uids().isEmpty());
    QVERIFY(opened->storage->undelete("series"));
    QCOMPARE(opened->uids(), QStringList({"series", "series/20260304"}));
}

void TestStorageSave::undeleteRefusesWhatLives()
{
    QVERIFY(m_fixture->store({meeting("a", at(2026, 3, 1))}));
    const auto opened = m_fixture->open();
    QVERIFY(!opened->storage->undelete("a"));
    QVERIFY(!opened->storage->undelete("never"));
    QVERIFY(!opened->storage->hasUnsavedChanges());
}

void TestStorageSave::purgeIsFinal()
{
    const auto opened = m_fixture->open();
    for (const char *uid : {"old", "young"}) {
        const auto passing = meeting(uid, at(2026, 3, 1));
        opened->calendar->addIncidence(passing);
        QVERIFY(opened->storage->save());
        opened->calendar->deleteIncidence(passing);
        QVERIFY(opened->storage->save());
        m_fixture->now = m_fixture->now.addDays(1);
    }
    KCalCore::Incidence::List list;
    QVERIFY(opened->storage->deletedIncidences(&list, m_fixture->now.addDays(-1)));
    QCOMPARE(summaries(list), QStringList{"young"});
    QVERIFY(opened->storage->purgeDeleted(m_fixture->now.addDays(-1), "other"));
    QVERIFY(opened->storage->purgeDeleted(m_fixture->now.addDays(-1)));
    QVERIFY(!opened->storage->undelete("old"));
    QVERIFY(opened->storage->undelete("young"));
}

void TestStorageSave::addingWhatIsStoredKeepsTheOtherVersion()
{
    const auto first = meeting("a", at(2026, 3, 1));
    first->setSummary("first", false);
    QVERIFY(m_fixture->store({first}));
    const auto second = meeting("a", at(2026, 3, 2));
    second->setSummary("second", false);
    QVERIFY(m_fixture->store({second}));
    const auto reader = m_fixture->open();
    QVERIFY(reader->storage->load());
    QCOMPARE(reader->incidence("a")->summary(), QStringLiteral("second"));
    KCalCore::Incidence::List overwritten;
    QVERIFY(reader->storage->overwrittenIncidences(&overwritten, "a"));
    QCOMPARE(summaries(overwritten), QStringList{"first"});
}

void TestStorageSave::reopeningGoesOn()
{
    QVERIFY(m_fixture->store({meeting("a", at(2026, 3, 1))}));
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->load());
    const auto held = opened->incidence("a");
    QVERIFY(opened->storage->close());
    QVERIFY(!opened->storage->load());
    {
        const auto other = m_fixture->open();
        QVERIFY(other->storage->load());
        other->incidence("a")->setSummary("changed meanwhile", false);
        QVERIFY(other->storage->save());
    }
    QVERIFY(opened->storage->open());
    QTRY_COMPARE(opened->notices.modified, 1);
    QCOMPARE(held->summary(), QStringLiteral("changed meanwhile"));
}

STORAGE_TEST_MAIN(TestStorageSave)
#include "tst_sqlitestorage_save.moc"
