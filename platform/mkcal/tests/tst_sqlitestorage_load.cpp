// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storagefixture.h"

using namespace mKCal;
using namespace Make;

namespace
{
using Load = std::function<bool(SqliteStorage &)>;

/// What is stored before each load: one of each kind that a load may or may not bring.
KCalCore::Incidence::List stock()
{
    const auto series = daily("series", at(2026, 3, 1, 9), 20);
    const auto oldSeries = daily("oldSeries", at(2025, 1, 1, 9), 5);
    const auto done = todo("done", at(2026, 3, 11, 12));
    done->setCompleted(at(2026, 3, 9, 8));
    const auto doneEarlier = todo("doneEarlier", at(2026, 2, 1, 12));
    doneEarlier->setCompleted(at(2026, 2, 1, 8));
    const auto longTrip = meeting("trip", at(2026, 2, 1, 9), 60 * 24 * 60);
    return {meeting("today", at(2026, 3, 10, 15)),
            meeting("tomorrow", at(2026, 3, 11, 9)),
            meeting("nextMonth", at(2026, 4, 10, 9)),
            meeting("lastYear", at(2025, 3, 10, 9)),
            longTrip,
            allDay("holiday", QDate(2026, 3, 12), 2),
            series,
            exception(series, at(2026, 3, 4, 9), at(2026, 5, 4, 11)),
            oldSeries,
            todo("someday"),
            todo("due", at(2026, 3, 11, 18)),
            done,
            doneEarlier,
            journal("diary", at(2026, 3, 2, 20))};
}
} // namespace

Q_DECLARE_METATYPE(Load)

class TestStorageLoad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void loadBringsWhatItSays_data();
    void loadBringsWhatItSays();
    void aClosedCalendarIsReadAgain_data() { loadBringsWhatItSays_data(); }
    void aClosedCalendarIsReadAgain();
    void onlyMissingDaysAreRead();
    void zonesAndFloatingTimesAreInTheirDays_data();
    void zonesAndFloatingTimesAreInTheirDays();
    void exceptionsComeWithTheirSeries_data();
    void exceptionsComeWithTheirSeries();
    void whatASeriesBecameComesWithItsExceptions();
    void unsavedDeletionIsNotUndoneByALoad();
    void unsavedChangeIsNotOverwrittenByALoad();
    void futureIncidencesInPages();
    void completedTodosInPages();
    void searchFindsAnyCase_data();
    void searchFindsAnyCase();
    void nextDate_data();
    void nextDate();
    void previousDate_data();
    void previousDate();
    void previousDateHeedsWhatRepeatsEveryMinute();
    void allIncidencesStayOutOfTheCalendar();

private:
    std::unique_ptr<StorageFixture> m_fixture;
};

void TestStorageLoad::init()
{
    m_fixture = std::make_unique<StorageFixture>();
    QVERIFY(m_fixture->store(stock()));
}

void TestStorageLoad::cleanup()
{
    m_fixture.reset();
}

void TestStorageLoad::loadBringsWhatItSays_data()
{
    QTest::addColumn<Load>("load");
    QTest::addColumn<QStringList>("uids");

    const auto row = [](const char *name, const Load &load, const QStringList &uids) {
        QTest::newRow(name) << load << uids;
    };
    const QStringList series{"series", "series/20260304"};
    const QStringList all{"diary",    "done",      "doneEarlier", "due",    "holiday",
                          "lastYear", "nextMonth", "oldSeries",   "series", "series/20260304",
                          "someday",  "today",     "tomorrow",    "trip"};
    row(
        "everything", [](SqliteStorage &s) { return s.load(); }, all);
    row("one day", [](SqliteStorage &s) { return s.load(QDate(2026, 4, 10)); }, {"nextMonth"});
    row("days, with what began long before",
        [](SqliteStorage &s) { return s.load(QDate(2026, 3, 10), QDate(2026, 3, 13)); },
        {"done", "due", "holiday", "today", "tomorrow", "trip"});
    row("no days", [](SqliteStorage &s) { return s.load(QDate(2026, 3, 13), QDate(2026, 3, 10)); },
        {});
    row(
        "recurring", [](SqliteStorage &s) { return s.loadRecurringIncidences(); },
        QStringList{"oldSeries"} + series);
    row(
        "recurring, alive",
        [](SqliteStorage &s) {
            return s.loadRecurringIncidences(QDate(2026, 3, 10), QDate(2026, 3, 11));
        },
        series);
    row(
        "recurring, only the moved exception is alive",
        [](SqliteStorage &s) {
            return s.loadRecurringIncidences(QDate(2026, 5, 4), QDate(2026, 5, 4));
        },
        series);
    row("open to-dos", [](SqliteStorage &s) { return s.loadUncompletedTodos(); },
        {"due", "someday"});
    row("journals", [](SqliteStorage &s) { return s.loadJournals(); }, {"diary"});
    row(
        "notebook", [](SqliteStorage &s) { return s.loadNotebookIncidences("work"); }, all);
    row("unknown notebook", [](SqliteStorage &s) { return s.loadNotebookIncidences("other"); }, {});
    row("one incidence", [](SqliteStorage &s) { return s.load("today"); }, {"today"});
    row(
        "one series", [](SqliteStorage &s) { return s.load("series"); }, series);
}

void TestStorageLoad::loadBringsWhatItSays()
{
    QFETCH(Load, load);
    QFETCH(QStringList, uids);
    uids.sort();
    const auto reader = m_fixture->open();
    QVERIFY(load(*reader->storage));
    QCOMPARE(reader->uids(), uids);
    QVERIFY(!reader->storage->hasUnsavedChanges());
    QCOMPARE(reader->notices.modified, 0);

    const int reads = reader->reads();
    QVERIFY(load(*reader->storage));
    QCOMPARE(reader->reads(), reads);
    QCOMPARE(reader->uids(), uids);
}

void TestStorageLoad::aClosedCalendarIsReadAgain()
{
    QFETCH(Load, load);
    const auto opened = m_fixture->open();
    QVERIFY(load(*opened->storage));
    const QStringList brought = opened->uids();
    // What was not saved is gone, and is not saved later.
    for (const auto &incidence : opened->calendar->rawIncidences())
        incidence->setSummary("edited", false);
    opened->calendar->addIncidence(meeting("unsaved", at(2026, 3, 10, 9)));
    opened->calendar->close();
    QVERIFY(opened->uids().isEmpty());
    QVERIFY(!opened->storage->hasUnsavedChanges());
    QVERIFY(opened->storage->save());
    QVERIFY(load(*opened->storage));
    QCOMPARE(opened->uids(), brought);
    for (const auto &incidence : opened->calendar->rawIncidences())
        QVERIFY(incidence->summary() != "edited");
}

void TestStorageLoad::onlyMissingDaysAreRead()
{
    const auto reader = m_fixture->open();
    QVERIFY(reader->storage->load(QDate(2026, 3, 10), QDate(2026, 3, 13)));
    const KCalCore::Incidence::Ptr before = reader->incidence("today");
    const int readsOfOneRange = reader->reads();
    // A month around it: two gaps.
    QVERIFY(reader->storage->load(QDate(2026, 3, 1), QDate(2026, 4, 30)));
    QCOMPARE(reader->reads(), 3 * readsOfOneRange);
    QCOMPARE(reader->incidence("today"), before);
    QVERIFY(reader->incidence("nextMonth"));
    QVERIFY(reader->storage->load(QDate(2026, 3, 5), QDate(2026, 4, 20)));
    QCOMPARE(reader->reads(), 3 * readsOfOneRange);
}

void TestStorageLoad::zonesAndFloatingTimesAreInTheirDays_data()
{
    QTest::addColumn<KCalCore::Event::Ptr>("stored");
    const QDate day(2026, 7, 1);
    QTest::newRow("floating, early") << meeting("x", QDateTime(day, QTime(0, 5)));
    QTest::newRow("floating, late") << meeting("x", QDateTime(day, QTime(23, 30)), 5);
    QTest::newRow("all-day") << allDay("x", day);
    QTest::newRow("in Auckland") << meeting(
        "x", QDateTime(day.addDays(1), QTime(8, 0), QTimeZone("Pacific/Auckland")), 30);
    QTest::newRow("in Honolulu") << meeting(
        "x", QDateTime(day.addDays(-1), QTime(12, 0), QTimeZone("Pacific/Honolulu")), 30);
    QTest::newRow("over midnight") << meeting("x", at(2026, 6, 30, 23, 30));
}

void TestStorageLoad::zonesAndFloatingTimesAreInTheirDays()
{
    QFETCH(KCalCore::Event::Ptr, stored);
    QVERIFY(m_fixture->store({stored}));
    const auto reader = m_fixture->open();
    QVERIFY(reader->storage->load(QDate(2026, 7, 1)));
    QVERIFY(reader->incidence("x"));
}

void TestStorageLoad::exceptionsComeWithTheirSeries_data()
{
    QTest::addColumn<Load>("load");
    const auto row = [](const char *name, const Load &load) { QTest::newRow(name) << load; };
    static const QDateTime since(QDate(2026, 3, 20), QTime(0, 0), Qt::UTC);
    row("by its recurrence identifier",
        [](SqliteStorage &s) { return s.load("series", KDateTime(at(2026, 3, 4, 9))); });
    row("by search", [](SqliteStorage &s) { return s.search("moved elsewhere").size() == 1; });
    row("by attendee", [](SqliteStorage &s) { return s.loadByAttendee("ANNA@example.org"); });
    row("by creation", [](SqliteStorage &s) { return s.loadCreatedSince(since); });
    row("by modification", [](SqliteStorage &s) { return s.loadModifiedSince(since); });
}

void TestStorageLoad::exceptionsComeWithTheirSeries()
{
    QFETCH(Load, load);
    const auto series = daily("series", at(2026, 3, 1, 9), 20);
    const auto moved = exception(series, at(2026, 3, 7, 9), at(2026, 3, 7, 15));
    moved->setSummary("Moved elsewhere", false);
    moved->addAttendee(KCalCore::Attendee("Anna", "anna@example.org"));
    m_fixture->now = QDateTime(QDate(2026, 3, 21), QTime(12, 0), Qt::UTC);
    QVERIFY(m_fixture->store({moved}));

    const auto reader = m_fixture->open();
    QVERIFY(load(*reader->storage));
    QCOMPARE(reader->uids(), QStringList({"series", "series/20260304", "series/20260307"}));
}

void TestStorageLoad::whatASeriesBecameComesWithItsExceptions()
{
    QVERIFY(m_fixture->store({meeting("series", at(2026, 3, 1, 9))}));
    const auto reader = m_fixture->open();
    QVERIFY(reader->storage->loadRecurringIncidences());
    QCOMPARE(reader->uids(), QStringList({"oldSeries", "series", "series/20260304"}));
    QVERIFY(!reader->incidence("series")->recurs());
}

void TestStorageLoad::unsavedDeletionIsNotUndoneByALoad()
{
    const auto reader = m_fixture->open();
    QVERIFY(reader->storage->load(QDate(2026, 3, 10)));
    QVERIFY(reader->calendar->deleteIncidence(reader->incidence("today")));
    QVERIFY(reader->storage->loadRecurringIncidences());
    QVERIFY(reader->calendar->deleteIncidence(reader->incidence("series")));
    QVERIFY(reader->storage->load());
    QVERIFY(!reader->incidence("today"));
    QVERIFY(!reader->incidence("series"));
    QVERIFY(!reader->incidence("series", KDateTime(at(2026, 3, 4, 9))));
    QVERIFY(reader->storage->save());
    QVERIFY(!m_fixture->open()->storage->search("tomorrow").isEmpty());
    QVERIFY(m_fixture->open()->storage->search("series").size() == 1);
}

void TestStorageLoad::unsavedChangeIsNotOverwrittenByALoad()
{
    const auto reader = m_fixture->open();
    QVERIFY(reader->storage->load(QDate(2026, 3, 10)));
    reader->incidence("today")->setSummary("edited", false);
    QVERIFY(reader->storage->hasUnsavedChanges());
    QVERIFY(reader->storage->load());
    QCOMPARE(reader->incidence("today")->summary(), "edited");
}

void TestStorageLoad::futureIncidencesInPages()
{
    const auto reader = m_fixture->open();
    KDateTime last;
    QVERIFY(reader->storage->loadFutureIncidences(2, &last));
    QCOMPARE(reader->uids(), QStringList({"today", "tomorrow"}));
    QCOMPARE(last.dateTime(), at(2026, 3, 11, 9));
    QVERIFY(reader->storage->loadFutureIncidences(100, &last));
    QCOMPARE(reader->uids(),
             QStringList({"done", "due", "holiday", "nextMonth", "today", "tomorrow"}));
    QCOMPARE(last.dateTime(), at(2026, 4, 10, 9));
    QVERIFY(reader->storage->loadFutureIncidences(0, &last));
    QVERIFY(!last.isValid());
}

void TestStorageLoad::completedTodosInPages()
{
    const auto sameSecond = todo("sameSecond", at(2026, 3, 1, 9));
    sameSecond->setCompleted(at(2026, 3, 9, 8));
    QVERIFY(m_fixture->store({sameSecond}));
    const auto reader = m_fixture->open();
    KDateTime last;
    QCOMPARE(reader->storage->loadCompletedTodos(1, &last), 2);
    QCOMPARE(reader->uids(), QStringList({"done", "sameSecond"}));
    QCOMPARE(reader->storage->loadCompletedTodos(1, &last), 1);
    QVERIFY(reader->incidence("doneEarlier"));
    QCOMPARE(reader->storage->loadCompletedTodos(1, &last), 0);
}

void TestStorageLoad::searchFindsAnyCase_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QStringList>("uids");
    QTest::newRow("newest first") << "äLäm" << 0 << QStringList{"late", "early"};
    QTest::newRow("limited") << "äläm" << 1 << QStringList{"late"};
    QTest::newRow("location") << "KATU" << 0 << QStringList{"early"};
    QTest::newRow("description") << "100%_" << 0 << QStringList{"late"};
    QTest::newRow("category") << "perhe" << 0 << QStringList{"late"};
    QTest::newRow("nothing") << "nowhere" << 0 << QStringList{};
}

void TestStorageLoad::searchFindsAnyCase()
{
    QFETCH(QString, text);
    QFETCH(int, limit);
    QFETCH(QStringList, uids);
    const auto early = meeting("early", at(2026, 1, 1, 9));
    early->setSummary("ÄLÄMÖLÖ", false);
    early->setLocation("Rantakatu 1", false);
    const auto late = meeting("late", at(2026, 2, 1, 9));
    late->setSummary("älämölö", false);
    late->setDescription("100%_sure", false);
    late->setCategories(QStringList{"Perhe, ystävät"});
    QVERIFY(m_fixture->store({early, late}));
    const auto reader = m_fixture->open();
    QStringList found;
    for (const auto &incidence : reader->storage->search(text, limit))
        found.append(incidence->uid());
    QCOMPARE(found, uids);
}

void TestStorageLoad::nextDate_data()
{
    QTest::addColumn<QDate>("from");
    QTest::addColumn<QDate>("next");
    QTest::newRow("the same day") << QDate(2026, 4, 10) << QDate(2026, 4, 10);
    QTest::newRow("in the middle of a trip") << QDate(2026, 2, 15) << QDate(2026, 2, 15);
    QTest::newRow("the next event") << QDate(2026, 4, 3) << QDate(2026, 4, 10);
    QTest::newRow("a moved occurrence") << QDate(2026, 4, 11) << QDate(2026, 5, 4);
    QTest::newRow("an occurrence of a series") << QDate(2024, 12, 20) << QDate(2025, 1, 1);
    QTest::newRow("far away") << QDate(2017, 1, 1) << QDate(2025, 1, 1);
    QTest::newRow("too far away") << QDate(2010, 1, 1) << QDate();
    QTest::newRow("nothing more") << QDate(2026, 5, 5) << QDate();
}

void TestStorageLoad::nextDate()
{
    QFETCH(QDate, from);
    QFETCH(QDate, next);
    const auto reader = m_fixture->open();
    QCOMPARE(reader->storage->nextDateWithIncidence(from), next);
    QVERIFY(reader->uids().isEmpty());
}

void TestStorageLoad::previousDate_data()
{
    QTest::addColumn<QDate>("from");
    QTest::addColumn<QDate>("previous");
    QTest::newRow("the same day") << QDate(2026, 4, 10) << QDate(2026, 4, 10);
    QTest::newRow("in the middle of a trip") << QDate(2026, 2, 15) << QDate(2026, 2, 15);
    QTest::newRow("the last day of a trip") << QDate(2026, 4, 9) << QDate(2026, 4, 2);
    QTest::newRow("a moved occurrence") << QDate(2026, 9, 1) << QDate(2026, 5, 4);
    QTest::newRow("an occurrence of a series") << QDate(2025, 3, 1) << QDate(2025, 1, 5);
    QTest::newRow("far away") << QDate(2035, 1, 1) << QDate(2026, 5, 4);
    QTest::newRow("too far away") << QDate(2037, 1, 1) << QDate();
    QTest::newRow("nothing before") << QDate(2024, 12, 31) << QDate();
}

void TestStorageLoad::previousDate()
{
    QFETCH(QDate, from);
    QFETCH(QDate, previous);
    const auto reader = m_fixture->open();
    QCOMPARE(reader->storage->previousDateWithIncidence(from), previous);
    QVERIFY(reader->uids().isEmpty());
}

void TestStorageLoad::previousDateHeedsWhatRepeatsEveryMinute()
{
    const auto alarm = meeting("every minute", at(2030, 1, 1, 9));
    alarm->recurrence()->setMinutely(1);
    alarm->recurrence()->setDuration(3 * 24 * 60 + 1);
    QVERIFY(m_fixture->store({alarm}));
    const auto reader = m_fixture->open();
    QCOMPARE(reader->storage->previousDateWithIncidence(QDate(2030, 1, 7)), QDate(2030, 1, 4));
}

void TestStorageLoad::allIncidencesStayOutOfTheCalendar()
{
    const auto reader = m_fixture->open();
    KCalCore::Incidence::List list;
    QVERIFY(reader->storage->allIncidences(&list));
    QCOMPARE(list.size(), stock().size());
    QVERIFY(reader->uids().isEmpty());
    list.clear();
    QVERIFY(reader->storage->allIncidences(&list, "other"));
    QVERIFY(list.isEmpty());
}

STORAGE_TEST_MAIN(TestStorageLoad)
#include "tst_sqlitestorage_load.moc"
