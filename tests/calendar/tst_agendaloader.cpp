// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "filleddatabase.h"
#include "incidences.h"
#include "loadedrows.h"
#include "loaders/agendaloader.h"
#include "warningcapture.h"

#include <KCalendarCore/ICalFormat>
#include <KCalendarCore/Recurrence>

#include <QtTest>

using KCalCore::Event;

namespace
{
const QDate today = FilledDatabase::today();

Event::Ptr meeting(const QString &uid, const char *start, int minutes = 60)
{
    return makeEvent(uid, localTime(start), localTime(start).addSecs(minutes * 60));
}

struct Agenda {
    explicit Agenda(const KCalCore::Incidence::List &incidences, int batch = 3)
        : database(incidences)
    {
        loader.setBatchSize(batch);
    }

    FilledDatabase database;
    AgendaLoader loader;
    LoadedRows rows{&loader};
    /// The cache warns of what repeats daily.
    WarningCapture warnings;
};
} // namespace

/// The agenda's batches: which days, in which order, from where.
class AgendaLoaderTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void daysReadInOrder();
    void todayIsAlwaysThere_data();
    void todayIsAlwaysThere();
    void emptyYearsAreJumpedOver();
    void todayIsReachedFromFarAway_data();
    void todayIsReachedFromFarAway();
    void goesOnWhereItStopped();
    void beginsAtTheAnchor();
    void invisibleNotebooksAreLeftOut();
    void whatRepeatsOftenIsWhole_data();
    void whatRepeatsOftenIsWhole();
    void changesCostTheSameAfterYears();
    void nothingBeforeTheDatabaseIsEnabled();
};

void AgendaLoaderTest::daysReadInOrder()
{
    const auto due = makeTodo("due", localTime("2011-03-11T00:00"));
    due->setAllDay(true);
    Agenda agenda({meeting("late", "2011-03-11T15:00"), meeting("early", "2011-03-11T08:00"), due,
                   makeAllDayEvent("holiday", QDate(2011, 3, 11), QDate(2011, 3, 12)),
                   meeting("overnight", "2011-03-10T22:00", 10 * 60),
                   makeJournal("diary", localTime("2011-03-11T20:00")),
                   meeting("next year", "2012-01-02T09:00")},
                  20);
    agenda.loader.load();
    QCOMPARE(agenda.rows.take(),
             QStringList({"[Thursday, 10 March · today]", "overnight 22:00", "[Friday, 11 March]",
                          "holiday 00:00", "due 00:00", "overnight 00:00", "early 08:00",
                          "late 15:00", "[Monday, 2 January 2012]", "next year 09:00"}));
    QCOMPARE(agenda.loader.incidenceCount(), 7);
}

void AgendaLoaderTest::todayIsAlwaysThere_data()
{
    QTest::addColumn<QStringList>("starts");
    QTest::addColumn<QDate>("anchor");
    QTest::addColumn<bool>("goesBack");
    QTest::addColumn<QStringList>("rows");
    const QString header("[Thursday, 10 March · today]");
    QTest::newRow("an empty calendar")
        << QStringList() << today << false << QStringList{header, "nothing"};
    QTest::newRow("a free day") << QStringList{"2011-03-12T09:00"} << today << false
                                << QStringList{header, "nothing", "[Saturday, 12 March]",
                                               "0 09:00"};
    QTest::newRow("passed on the way forward")
        << QStringList{"2009-05-02T09:00", "2013-05-02T09:00"} << QDate(2009, 5, 1) << false
        << QStringList{"[Saturday, 2 May 2009]", "0 09:00", header, "nothing",
                       "[Thursday, 2 May 2013]", "1 09:00"};
    QTest::newRow("after everything else")
        << QStringList{"2009-05-02T09:00"} << QDate(2009, 5, 1) << false
        << QStringList{"[Saturday, 2 May 2009]", "0 09:00", header, "nothing"};
    QTest::newRow("passed on the way back")
        << QStringList{"2009-05-02T09:00"} << QDate(2013, 5, 3) << true
        << QStringList{header, "nothing", "[Saturday, 2 May 2009]", "0 09:00"};
    QTest::newRow("before everything else")
        << QStringList{"2013-05-02T09:00"} << QDate(2013, 5, 3) << true
        << QStringList{"[Thursday, 2 May 2013]", "0 09:00", header, "nothing"};
}

void AgendaLoaderTest::todayIsAlwaysThere()
{
    QFETCH(QStringList, starts);
    QFETCH(QDate, anchor);
    QFETCH(bool, goesBack);
    KCalCore::Incidence::List incidences;
    for (const QString &start : starts)
        incidences << meeting(QString::number(incidences.size()), qPrintable(start));
    Agenda agenda(incidences, 20);
    agenda.loader.setAnchor(anchor);
    agenda.loader.load();
    if (goesBack) {
        QCOMPARE(agenda.rows.take(), QStringList());
        agenda.loader.loadEarlier();
    }
    QTEST(agenda.rows.take(), "rows");
    agenda.loader.loadLater();
    QCOMPARE(agenda.rows.take(), QStringList());
}

void AgendaLoaderTest::emptyYearsAreJumpedOver()
{
    Agenda agenda({meeting("first", "1999-06-01T09:00"), meeting("second", "2004-06-01T09:00"),
                   meeting("third", "2011-03-10T09:00"), meeting("fourth", "2020-01-15T09:00"),
                   meeting("fifth", "2029-12-31T09:00")},
                  1);
    agenda.loader.load();
    QCOMPARE(agenda.rows.takeUids(), QStringList("third"));
    agenda.loader.loadLater();
    QCOMPARE(agenda.rows.takeUids(), QStringList("fourth"));
    agenda.loader.loadLater();
    QCOMPARE(agenda.rows.takeUids(), QStringList("fifth"));
    agenda.loader.loadEarlier();
    QCOMPARE(agenda.rows.takeUids(), QStringList("second"));
    agenda.loader.loadEarlier();
    QCOMPARE(agenda.rows.takeUids(), QStringList("first"));
}

void AgendaLoaderTest::todayIsReachedFromFarAway_data()
{
    QTest::addColumn<QDate>("anchor");
    QTest::addColumn<bool>("goesBack");
    QTest::newRow("from the past") << QDate(1970, 1, 1) << false;
    QTest::newRow("from the future") << QDate(2070, 1, 1) << true;
}

void AgendaLoaderTest::todayIsReachedFromFarAway()
{
    QFETCH(QDate, anchor);
    QFETCH(bool, goesBack);
    Agenda agenda({meeting("now", "2011-03-10T09:00")});
    agenda.loader.setAnchor(anchor);
    agenda.loader.load();
    if (goesBack)
        agenda.loader.loadEarlier();
    QCOMPARE(agenda.rows.take(), QStringList({"[Thursday, 10 March · today]", "now 09:00"}));
}

void AgendaLoaderTest::goesOnWhereItStopped()
{
    const auto daily = meeting("daily", "2011-01-01T09:00");
    daily->recurrence()->setDaily(1);
    Agenda agenda({daily}, 5);
    agenda.loader.load();
    agenda.rows.takeDays();
    agenda.loader.loadEarlier();
    agenda.loader.loadEarlier();
    const auto back = agenda.rows.takeDays();
    QCOMPARE(back.size(), 10);
    QCOMPARE(back.first(), today.addDays(-1));
    QCOMPARE(back.last(), today.addDays(-10));
    for (int batch = 0; batch < 100; ++batch)
        agenda.loader.loadLater();
    const auto later = agenda.rows.takeDays();
    QCOMPARE(later.size(), 500);
    for (int i = 0; i < later.size(); ++i)
        QCOMPARE(later.at(i), today.addDays(5 + i));
}

void AgendaLoaderTest::beginsAtTheAnchor()
{
    Agenda agenda({meeting("now", "2011-03-10T09:00"), meeting("then", "2015-03-10T09:00")}, 1);
    agenda.loader.setAnchor(QDate(2015, 1, 1));
    agenda.loader.load();
    QCOMPARE(agenda.rows.takeUids(), QStringList("then"));
    QCOMPARE(agenda.loader.incidenceCount(), 1);
    agenda.loader.setAnchor(QDate());
    agenda.loader.load();
    QCOMPARE(agenda.rows.takeUids(), QStringList("now"));
    QCOMPARE(agenda.loader.incidenceCount(), 1);
}

void AgendaLoaderTest::invisibleNotebooksAreLeftOut()
{
    const WarningCapture warnings;
    const auto daily = meeting("daily", "2011-01-01T09:00");
    daily->recurrence()->setDaily(1);
    const FilledDatabase database({meeting("seen", "2011-04-10T09:00")}, {daily});
    AgendaLoader loader;
    LoadedRows rows{&loader};
    loader.load();
    QCOMPARE(rows.take(),
             QStringList(
                 {"[Thursday, 10 March · today]", "nothing", "[Sunday, 10 April]", "seen 09:00"}));
    loader.loadLater();
    loader.loadEarlier();
    QCOMPARE(rows.take(), QStringList());
}

void AgendaLoaderTest::whatRepeatsOftenIsWhole_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("rowsPerDay");
    QTest::newRow("every hour") << "FREQ=HOURLY" << 10 << 24;
    QTest::newRow("twice a day") << "FREQ=DAILY;BYHOUR=9,21" << 10 << 2;
    QTest::newRow("every night") << "FREQ=DAILY" << 20 * 60 << 2;
    QTest::newRow("every day") << "FREQ=DAILY" << 10 << 1;
}

void AgendaLoaderTest::whatRepeatsOftenIsWhole()
{
    QFETCH(QString, rule);
    QFETCH(int, minutes);
    QFETCH(int, rowsPerDay);
    const auto event = meeting("often", "2011-01-01T09:00", minutes);
    auto *recurrenceRule = new KCalCore::RecurrenceRule;
    QVERIFY(KCalCore::ICalFormat().fromString(recurrenceRule, rule));
    recurrenceRule->setStartDt(event->dtStart());
    event->recurrence()->addRRule(recurrenceRule);
    constexpr int days = 10; // the clock is changed later in the month
    Agenda agenda({event}, days * rowsPerDay);
    agenda.loader.load();
    QCOMPARE(agenda.rows.takeUids().size(), days * rowsPerDay);
    agenda.loader.loadEarlier();
    QCOMPARE(agenda.rows.takeUids().size(), days * rowsPerDay);
}

void AgendaLoaderTest::changesCostTheSameAfterYears()
{
    const auto daily = meeting("daily", "2011-01-01T09:00");
    daily->recurrence()->setDaily(1);
    Agenda agenda({daily}, 50);
    agenda.loader.load();
    while (agenda.rows.takeDays().last() < QDate(2021, 3, 10))
        agenda.loader.loadLater();
    // What is cached does not hold what was added since; what is not cached does.
    const auto isCached = [](const QDate &day) {
        DbInstance::instance()->calendar()->addEvent(
            meeting(day.toString(), qPrintable(day.toString("yyyy-MM-ddT12:00"))));
        const auto shown = ExpandedIncidencesCache::instance()->getExpandedEventsAndTodos(day, day);
        return shown.size() == 1;
    };
    QVERIFY(isCached(QDate(2021, 3, 5)));
    QVERIFY(!isCached(QDate(2020, 1, 10)));
}

void AgendaLoaderTest::nothingBeforeTheDatabaseIsEnabled()
{
    DatabaseFixture fixture{today};
    fixture.open();
    AgendaLoader loader;
    LoadedRows rows{&loader};
    loader.load();
    loader.loadEarlier();
    loader.loadLater();
    QCOMPARE(rows.take(), QStringList());
}

LOADER_TEST_MAIN(AgendaLoaderTest)
#include "tst_agendaloader.moc"
