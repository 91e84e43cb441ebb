// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidences.h"
#include "plaindatabase.h"
#include "testtable.h"
#include "warningcapture.h"

#include <QtTest>

namespace
{
/// "uid 2011-03-10T10:00" for each, in order.
QStringList texts(const ExpandedIncidencesCache::Occurrences &occurrences)
{
    QStringList result;
    for (const auto &occurrence : occurrences) {
        result << occurrence.second->uid() + QLatin1Char(' ')
                + occurrence.first.dtStart.toString("yyyy-MM-ddTHH:mm");
    }
    return result;
}

QStringList sorted(QStringList lines)
{
    lines.sort();
    return lines;
}

QStringList list(std::initializer_list<const char *> items)
{
    QStringList result;
    for (const char *item : items)
        result << QLatin1String(item);
    return result;
}
} // namespace

/// The cache of occurrences: when it asks whom, and what it holds.
class ExpandedIncidencesCacheTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_database.reset(); }

    void nothingToLookUp();
    void days();
    void holdsEventsAndTodosInOrder();
    void bordersOfALookUp();
    void requests_data();
    void requests();
    void pagingBackForgetsWhatWasAfter();
    void seam();
    void tooManyOccurrences_data();
    void tooManyOccurrences();
    void reloading();

private:
    ExpandedIncidencesCache &cache() { return *ExpandedIncidencesCache::instance(); }
    QStringList lookUp(const char *start, const char *end)
    {
        return texts(cache().getExpandedEventsAndTodos(isoDate(start), isoDate(end)));
    }
    void fill(const char *start, const char *end)
    {
        cache().loadExpandedEventsAndTodos(isoDate(start), isoDate(end));
        m_database->takeCalls();
    }
    void add(const KCalCore::Incidence::Ptr &incidence)
    {
        QVERIFY(DbInstance::instance()->calendar()->addIncidence(incidence));
    }
    /// An hour at ten o'clock.
    void addMeeting(const char *uid, const char *date)
    {
        const QDateTime start(isoDate(date), QTime(10, 0));
        add(makeEvent(QLatin1String(uid), start, start.addSecs(3600)));
    }

    std::unique_ptr<PlainDatabase> m_database;
};

void ExpandedIncidencesCacheTest::init()
{
    m_database = std::make_unique<PlainDatabase>();
    m_database->openEnabled(DbInstance::NoUser);
}

void ExpandedIncidencesCacheTest::nothingToLookUp()
{
    m_database->open(); // not enabled
    m_database->takeCalls();
    addMeeting("meeting", "2011-03-10");
    QCOMPARE(lookUp("2011-03-10", "2011-03-10"), QStringList());
    QCOMPARE(m_database->takeCalls(), QString());
    m_database->openEnabled(DbInstance::NoUser);
    // Invalid dates.
    addMeeting("meeting", "2011-03-10");
    cache().reloadCache(); // of nothing
    QCOMPARE(lookUp("", "2011-03-10"), QStringList());
    QCOMPARE(lookUp("2011-03-10", "2011-03-10").size(), 1);
    QCOMPARE(lookUp("2011-03-10", ""), QStringList());
    m_database->takeCalls();
    QCOMPARE(lookUp("2011-03-10", "2011-03-10").size(), 1);
    QCOMPARE(m_database->takeCalls(), QString());
}

/// One day is that whole day, several days end at the last midnight.
void ExpandedIncidencesCacheTest::days()
{
    addMeeting("before", "2011-03-09");
    addMeeting("first", "2011-03-10");
    addMeeting("last", "2011-03-12");
    QCOMPARE(lookUp("2011-03-10", "2011-03-10"), list({"first 2011-03-10T10:00"}));
    QCOMPARE(m_database->takeCalls(), "load 2011-03-10 2011-03-11, loadRecurring, loadTodos");
    QCOMPARE(lookUp("2011-03-10", "2011-03-12"), list({"first 2011-03-10T10:00"}));
    QCOMPARE(lookUp("2011-03-10", "2011-03-13"),
             list({"first 2011-03-10T10:00", "last 2011-03-12T10:00"}));
}

void ExpandedIncidencesCacheTest::holdsEventsAndTodosInOrder()
{
    add(makeTodo("due", localTime("2011-03-11T12:00")));
    add(makeTodo("undated", QDateTime()));
    add(makeJournal("journal", localTime("2011-03-11T08:00")));
    add(makeAllDayEvent("trip", isoDate("2011-03-08"), isoDate("2011-03-12")));
    const auto daily =
        makeEvent("daily", localTime("2011-01-10T09:00"), localTime("2011-01-10T09:15"));
    daily->recurrence()->setDaily(1);
    add(daily);
    const WarningCapture quiet; // as often as there are days: reported
    addMeeting("meeting", "2011-03-10");
    QCOMPARE(lookUp("2011-03-10", "2011-03-13"),
             list({"trip 2011-03-10T00:00", "daily 2011-03-10T09:00", "meeting 2011-03-10T10:00",
                   "trip 2011-03-11T00:00", "daily 2011-03-11T09:00", "due 2011-03-11T12:00",
                   "daily 2011-03-12T09:00"}));
}

void ExpandedIncidencesCacheTest::bordersOfALookUp()
{
    add(makeAllDayEvent("ninth", isoDate("2011-03-09"), isoDate("2011-03-10")));
    add(makeAllDayEvent("tenth", isoDate("2011-03-10"), isoDate("2011-03-11")));
    add(makeEvent("late", localTime("2011-03-11T23:30"), localTime("2011-03-12T00:00")));
    add(makeAllDayEvent("twelfth", isoDate("2011-03-12"), isoDate("2011-03-13")));
    fill("2011-03-01", "2011-03-31");
    QCOMPARE(lookUp("2011-03-10", "2011-03-11"),
             list({"tenth 2011-03-10T00:00", "late 2011-03-11T23:30"}));
    addMeeting("too late", "2011-03-20");
    QCOMPARE(lookUp("2011-03-13", "2011-03-31"), QStringList());
    QCOMPARE(lookUp("2011-03-01", "2011-03-08"), QStringList());
    QCOMPARE(m_database->takeCalls(), QString()); // nobody is asked
    QCOMPARE(lookUp("2011-03-11", "2011-03-10"), QStringList());
}

void ExpandedIncidencesCacheTest::requests_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::addColumn<bool>("rebuilds");
    QTest::addColumn<QString>("cachedStart"); // afterwards
    QTest::addColumn<QString>("cachedEnd");

    const auto row = [](const char *name, const char *start, const char *end, bool rebuilds,
                        const char *cachedStart, const char *cachedEnd) {
        addRow(name, start, end, rebuilds, cachedStart, cachedEnd);
    };
    row("the cached range", "2011-05-01", "2011-05-31", false, "2011-05-01", "2011-05-31");
    row("ten days more", "2011-05-01", "2011-06-10", false, "2011-05-01", "2011-06-10");
    row("only days after it", "2011-06-05", "2011-06-10", false, "2011-05-01", "2011-06-10");
    row("a day before it", "2011-04-30", "2011-05-31", true, "2011-04-30", "2011-05-31");
    row("around it", "2011-04-30", "2011-06-10", true, "2011-04-30", "2011-06-10");
    row("before it", "2011-03-01", "2011-03-31", true, "2011-03-01", "2011-03-31");
    row("365 days after its end", "2012-05-30", "2012-06-02", false, "2011-05-01", "2012-06-02");
    row("366 days after its end", "2012-05-31", "2012-06-02", true, "2012-05-31", "2012-06-02");
    row("long before it", "2009-01-01", "2009-01-31", true, "2009-01-01", "2009-01-31");
}

void ExpandedIncidencesCacheTest::requests()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    QFETCH(bool, rebuilds);
    QFETCH(QString, cachedStart);
    QFETCH(QString, cachedEnd);
    fill("2011-05-01", "2011-05-31");
    // A rebuild finds this, an extension keeps what was expanded before.
    addMeeting("new", "2011-05-01");
    lookUp(qPrintable(start), qPrintable(end));
    const bool rebuilt = !m_database->takeCalls().isEmpty();
    QCOMPARE(rebuilt, rebuilds);

    // What is cached now stays as it was expanded; a day more on either side is expanded newly.
    const QDate before = isoDate(qPrintable(cachedStart)).addDays(-1);
    const QDate after = isoDate(qPrintable(cachedEnd));
    const int cached = lookUp(qPrintable(cachedStart), qPrintable(cachedEnd)).size();
    for (const QDate &date : {before, before.addDays(1), after.addDays(-1), after})
        addMeeting(qPrintable(date.toString(Qt::ISODate)), qPrintable(date.toString(Qt::ISODate)));
    QCOMPARE(lookUp(qPrintable(cachedStart), qPrintable(cachedEnd)).size(), cached);
    QCOMPARE(cache().getExpandedEventsAndTodos(after, after.addDays(1)).size(), 1);
    QCOMPARE(cache().getExpandedEventsAndTodos(before, before).size(), 1);
}

void ExpandedIncidencesCacheTest::pagingBackForgetsWhatWasAfter()
{
    addMeeting("april", "2011-04-10");
    addMeeting("may", "2011-05-10");
    fill("2011-05-01", "2011-06-01");
    QCOMPARE(lookUp("2011-04-01", "2011-05-01"), list({"april 2011-04-10T10:00"}));
    // The old days are appended again when they are asked for.
    QCOMPARE(lookUp("2011-05-01", "2011-06-01"), list({"may 2011-05-10T10:00"}));
    QCOMPARE(lookUp("2011-04-01", "2011-06-01").size(), 2);
}

void ExpandedIncidencesCacheTest::seam()
{
    // The midnight of 11 March ends the first range and begins what is appended. With windows that
    // are open at their end nothing is there twice, and what lies over it goes on behind it.
    add(makeEvent("night", localTime("2011-03-10T22:00"), localTime("2011-03-11T06:00")));
    add(makeEvent("until midnight", localTime("2011-03-10T23:00"), localTime("2011-03-11T00:00")));
    add(makeEvent("from midnight", localTime("2011-03-11T00:00"), localTime("2011-03-11T01:00")));
    add(makeAllDayEvent("trip", isoDate("2011-03-10"), isoDate("2011-03-13")));
    add(makeTodo("due", localTime("2011-03-11T00:00")));
    const auto weekly =
        makeEvent("series", localTime("2011-03-04T23:00"), localTime("2011-03-05T01:00"));
    weekly->recurrence()->setDaily(6); // 4, 10 and 16 March
    add(weekly);

    const WarningCapture quiet; // a range of one day has room for one occurrence
    fill("2011-03-10", "2011-03-11");
    const QStringList before = list({"trip 2011-03-10T00:00", "night 2011-03-10T22:00",
                                     "until midnight 2011-03-10T23:00", "series 2011-03-10T23:00"});
    QCOMPARE(sorted(lookUp("2011-03-10", "2011-03-11")), sorted(before));
    const QStringList after =
        list({"due 2011-03-11T00:00", "from midnight 2011-03-11T00:00", "night 2011-03-11T00:00",
              "series 2011-03-11T00:00", "trip 2011-03-11T00:00", "trip 2011-03-12T00:00"});
    QCOMPARE(sorted(lookUp("2011-03-11", "2011-03-13")), after);
    QCOMPARE(m_database->takeCalls(), QString()); // appending loads nothing
    QCOMPARE(lookUp("2011-03-10", "2011-03-13").size(), before.size() + after.size());
}

void ExpandedIncidencesCacheTest::tooManyOccurrences_data()
{
    addColumns<int, int, QString, QStringList, int>("everyHours", "hours", "end", "warnings",
                                                    "most");

    const QString often = "There is a recurrences more frequent than a day.";
    const QString oftenMultiDay = "There is a recurring multiday more frequent than a day.";
    addRow("every hour", 1, 1, "2011-03-20", QStringList{often}, 10);
    addRow("three days every day", 24, 72, "2011-03-20", QStringList{often, oftenMultiDay}, 10);
    addRow("every other day", 48, 1, "2011-03-20", QStringList(), 5);
}

void ExpandedIncidencesCacheTest::tooManyOccurrences()
{
    QFETCH(int, everyHours);
    QFETCH(int, hours);
    QFETCH(QString, end);
    QFETCH(int, most);
    const QDateTime start = localTime("2011-03-10T00:00");
    const auto event = makeEvent("often", start, start.addSecs(hours * 3600));
    event->recurrence()->setHourly(everyHours);
    add(event);
    WarningCapture warnings;
    fill("2011-03-10", qPrintable(end));
    QTEST(warnings.take(), "warnings");
    const int found = lookUp("2011-03-10", qPrintable(end)).size();
    QVERIFY2(found > 0 && found <= most, QByteArray::number(found));

    // The same for what is appended.
    cache().loadExpandedEventsAndTodos(isoDate("2011-03-01"), isoDate("2011-03-10"));
    warnings.take();
    lookUp("2011-03-01", qPrintable(end));
    QTEST(warnings.take(), "warnings");
}

void ExpandedIncidencesCacheTest::reloading()
{
    fill("2011-03-01", "2011-03-31");
    addMeeting("new", "2011-03-11");
    QCOMPARE(lookUp("2011-03-10", "2011-03-12"), QStringList());
    cache().reloadCache();
    QCOMPARE(lookUp("2011-03-10", "2011-03-12"), list({"new 2011-03-11T10:00"}));
    cache().clearExpandedIncidences();
    QCOMPARE(lookUp("2011-03-11", "2011-03-11"), list({"new 2011-03-11T10:00"}));
}

QTEST_GUILESS_MAIN(ExpandedIncidencesCacheTest)
#include "tst_expandedincidencescache.moc"
