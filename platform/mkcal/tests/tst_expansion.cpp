// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendarscene.h"

using namespace CalendarScene;
using mKCal::ExtendedCalendar;

namespace
{
using Calendar = ExtendedCalendar;
using Build = void (*)(Calendar &);
} // namespace

Q_DECLARE_METATYPE(Build)

namespace
{
KCalCore::Event::Ptr meeting(const QString &rule,
                             const QString &start = QStringLiteral("2011-05-02T10:00"))
{
    const QString end = at(start).addSecs(3600).toString(Qt::ISODate).left(16);
    return recurring(newEvent(QStringLiteral("a"), start, end), rule);
}

KCalCore::Event::Ptr days(const QString &rule, const QString &start, const QString &end)
{
    return recurring(newEvent(QStringLiteral("a"), start, end), rule);
}

void addClockChangeRows()
{
    QTest::newRow("daily over the clock change keeps the wall clock")
        << Build([](Calendar &c) { c.addEvent(meeting("FREQ=DAILY", "2011-03-20T10:00")); })
        << "2011-03-26"
        << "2011-03-29"
        << QStringList{"a 2011-03-26 10:00 > 2011-03-26 11:00",
                       "a 2011-03-27 10:00 > 2011-03-27 11:00",
                       "a 2011-03-28 10:00 > 2011-03-28 11:00"};
    QTest::newRow("a start that the clock skips is read an hour later")
        << Build([](Calendar &c) { c.addEvent(meeting("FREQ=DAILY", "2011-03-20T03:30")); })
        << "2011-03-26"
        << "2011-03-29"
        << QStringList{"a 2011-03-26 03:30 > 2011-03-26 04:30",
                       "a 2011-03-27 04:30 > 2011-03-27 05:30",
                       "a 2011-03-28 03:30 > 2011-03-28 04:30"};
    QTest::newRow("a skipped start counts towards COUNT")
        << Build([](Calendar &c) { c.addEvent(meeting("FREQ=DAILY;COUNT=3", "2011-03-26T03:30")); })
        << "2011-03-25"
        << "2011-04-05"
        << QStringList{"a 2011-03-26 03:30 > 2011-03-26 04:30",
                       "a 2011-03-27 04:30 > 2011-03-27 05:30",
                       "a 2011-03-28 03:30 > 2011-03-28 04:30"};
    QTest::newRow("a skipped floating start, named by BYHOUR")
        << Build([](Calendar &c) {
               c.addEvent(recurring(newEvent("a", "2011-03-20T01:00", "2011-03-20T02:00", ""),
                                    "FREQ=DAILY;BYHOUR=3"));
           })
        << "2011-03-26"
        << "2011-03-29"
        << QStringList{"a 2011-03-26 03:00 > 2011-03-26 04:00",
                       "a 2011-03-27 04:00 > 2011-03-27 05:00",
                       "a 2011-03-28 03:00 > 2011-03-28 04:00"};
    QTest::newRow("hourly over the clock change is every hour that there is")
        << Build([](Calendar &c) {
               c.addEvent(recurring(newEvent("a", "2011-03-27T00:15"), "FREQ=HOURLY"));
           })
        << "2011-03-27T02:00"
        << "2011-03-27T05:00"
        << QStringList{"a 2011-03-27 02:15 > 2011-03-27 02:15",
                       "a 2011-03-27 04:15 > 2011-03-27 04:15"};
    QTest::newRow("all-day on the days of 23 and 25 hours")
        << Build([](Calendar &c) { c.addEvent(days("FREQ=DAILY", "2011-03-20", "2011-03-22")); })
        << "2011-03-27"
        << "2011-03-28"
        << QStringList{"a 2011-03-26 00:00 > 2011-03-28 00:00",
                       "a 2011-03-27 00:00 > 2011-03-29 00:00"};
    QTest::newRow("all-day in autumn")
        << Build([](Calendar &c) { c.addEvent(days("FREQ=DAILY", "2011-10-01", "2011-10-02")); })
        << "2011-10-30"
        << "2011-10-31" << QStringList{"a 2011-10-30 00:00 > 2011-10-31 00:00"};
}

void addWindowRows()
{
    QTest::newRow("began before the window") << Build([](Calendar &c) {
        c.addEvent(recurring(newEvent("a", "2011-05-01T22:00", "2011-05-04T06:00"), "FREQ=WEEKLY"));
    }) << "2011-05-11"
                                             << "2011-05-12"
                                             << QStringList{
                                                    "a 2011-05-08 22:00 > 2011-05-11 06:00"};
    QTest::newRow("overnight, running when the range starts")
        << Build([](Calendar &c) {
               c.addEvent(
                   recurring(newEvent("a", "2011-05-01T22:00", "2011-05-02T06:00"), "FREQ=DAILY"));
           })
        << "2011-05-10"
        << "2011-05-11"
        << QStringList{"a 2011-05-09 22:00 > 2011-05-10 06:00",
                       "a 2011-05-10 22:00 > 2011-05-11 06:00"};
    QTest::newRow("what only touches the window is not in it")
        << Build([](Calendar &c) {
               c.addEvent(newEvent("before", "2011-05-02T23:00", "2011-05-03T00:00"));
               c.addEvent(newEvent("instant", "2011-05-03T00:00"));
               c.addEvent(newEvent("after", "2011-05-04T00:00", "2011-05-04T01:00"));
               c.addEvent(newEvent("day", "2011-05-02", "2011-05-03"));
               c.addEvent(
                   recurring(newEvent("a", "2011-05-01T23:00", "2011-05-02T00:00"), "FREQ=DAILY"));
           })
        << "2011-05-03"
        << "2011-05-04"
        << QStringList{"instant 2011-05-03 00:00 > 2011-05-03 00:00",
                       "a 2011-05-03 23:00 > 2011-05-04 00:00"};
}

void addRuleRows()
{
    QTest::newRow("excluded dates count towards COUNT")
        << Build([](Calendar &c) {
               const auto series = meeting("FREQ=DAILY;COUNT=4");
               series->recurrence()->addExDateTime(at("2011-05-03T07:00", "UTC"));
               series->recurrence()->addExDate(QDate(2011, 5, 4));
               c.addEvent(series);
           })
        << "2011-05-01"
        << "2011-05-20"
        << QStringList{"a 2011-05-02 10:00 > 2011-05-02 11:00",
                       "a 2011-05-05 10:00 > 2011-05-05 11:00"};
    QTest::newRow("EXRULE") << Build([](Calendar &c) {
        const auto series = meeting("FREQ=DAILY;COUNT=4");
        auto *rule = new KCalCore::RecurrenceRule;
        rule->setRecurrenceType(KCalCore::RecurrenceRule::rDaily);
        rule->setFrequency(2);
        rule->setDuration(-1);
        rule->setStartDt(series->dtStart());
        series->recurrence()->addExRule(rule);
        c.addEvent(series);
    }) << "2011-05-01"
                            << "2011-05-20"
                            << QStringList{"a 2011-05-03 10:00 > 2011-05-03 11:00",
                                           "a 2011-05-05 10:00 > 2011-05-05 11:00"};
}

void addDateRows()
{
    QTest::newRow("several RDATEs, one before the start, one with an end of its own")
        << Build([](Calendar &c) {
               const auto series = meeting("FREQ=DAILY;COUNT=1");
               auto *recurrence = series->recurrence();
               recurrence->addRDateTime(at("2011-05-10T08:00"));
               recurrence->addRDateTime(at("2011-04-30T12:00"));
               recurrence->addRDateTimePeriod(
                   KCalCore::Period(at("2011-05-05T20:00"), at("2011-05-07T02:00")));
               c.addEvent(series);
           })
        << "2011-04-30"
        << "2011-05-20"
        << QStringList{
               "a 2011-04-30 12:00 > 2011-04-30 13:00", "a 2011-05-02 10:00 > 2011-05-02 11:00",
               "a 2011-05-05 20:00 > 2011-05-07 02:00", "a 2011-05-10 08:00 > 2011-05-10 09:00"};
    QTest::newRow("a long RDATE period runs into the window")
        << Build([](Calendar &c) {
               const auto series = meeting("FREQ=DAILY;COUNT=1");
               series->recurrence()->addRDateTimePeriod(
                   KCalCore::Period(at("2011-05-05T20:00"), at("2011-05-17T02:00")));
               c.addEvent(series);
           })
        << "2011-05-16"
        << "2011-05-20" << QStringList{"a 2011-05-05 20:00 > 2011-05-17 02:00"};
    QTest::newRow("a start off the rule is an occurrence")
        << Build([](Calendar &c) { c.addEvent(meeting("FREQ=WEEKLY;BYDAY=TH;COUNT=2")); })
        << "2011-05-01"
        << "2011-05-20"
        << QStringList{"a 2011-05-02 10:00 > 2011-05-02 11:00",
                       "a 2011-05-05 10:00 > 2011-05-05 11:00",
                       "a 2011-05-12 10:00 > 2011-05-12 11:00"};
    QTest::newRow("months without a 31st are passed over")
        << Build([](Calendar &c) { c.addEvent(meeting("FREQ=MONTHLY", "2011-01-31T10:00")); })
        << "2011-02-01"
        << "2011-06-01"
        << QStringList{"a 2011-03-31 10:00 > 2011-03-31 11:00",
                       "a 2011-05-31 10:00 > 2011-05-31 11:00"};
    QTest::newRow("UNTIL before the start leaves the start")
        << Build([](Calendar &c) { c.addEvent(meeting("FREQ=DAILY;UNTIL=20110401T000000Z")); })
        << "2011-03-01"
        << "2011-05-20" << QStringList{"a 2011-05-02 10:00 > 2011-05-02 11:00"};
}

void addLengthRows()
{
    QTest::newRow("a nominal duration keeps the wall clock")
        << Build([](Calendar &c) {
               const auto trip = newEvent("a", "2011-03-26T12:00");
               trip->setDuration(KCalCore::Duration(1, KCalCore::Duration::Days));
               c.addEvent(trip);
           })
        << "2011-03-26"
        << "2011-03-29" << QStringList{"a 2011-03-26 12:00 > 2011-03-27 12:00"};
    QTest::newRow("all-day without an end lasts its day")
        << Build([](Calendar &c) { c.addEvent(newEvent("a", "2011-05-02")); }) << "2011-05-01"
        << "2011-05-05" << QStringList{"a 2011-05-02 00:00 > 2011-05-03 00:00"};
}

void addTodoRows()
{
    QTest::newRow("a to-do is on its due date, with or without a start")
        << Build([](Calendar &c) {
               const auto both = newTodo("both", "2011-05-05T18:00");
               both->setDtStart(at("2011-05-01T09:00"));
               const auto started = newTodo("started", {});
               started->setDtStart(at("2011-05-04T09:00"));
               c.addTodo(both);
               c.addTodo(started);
               c.addTodo(newTodo("day", "2011-05-03"));
               c.addTodo(newTodo("undated", {}));
           })
        << "2011-05-01"
        << "2011-05-20"
        << QStringList{"day 2011-05-03 00:00 > 2011-05-04 00:00",
                       "started 2011-05-04 09:00 > 2011-05-04 09:00",
                       "both 2011-05-05 18:00 > 2011-05-05 18:00"};
    QTest::newRow("a recurring to-do with a start, on each due date once")
        << Build([](Calendar &c) {
               const auto task = newTodo("a", "2011-03-26T18:00");
               task->setDtStart(at("2011-03-25T09:00"));
               c.addTodo(recurring(task, "FREQ=DAILY;COUNT=3"));
           })
        << "2011-03-20"
        << "2011-04-20"
        << QStringList{"a 2011-03-26 18:00 > 2011-03-26 18:00",
                       "a 2011-03-27 18:00 > 2011-03-27 18:00",
                       "a 2011-03-28 18:00 > 2011-03-28 18:00"};
}

void addZoneRows()
{
    QTest::newRow("a series of another zone")
        << Build([](Calendar &c) {
               c.addEvent(recurring(
                   newEvent("a", "2011-03-01T09:00", "2011-03-01T10:00", "America/New_York"),
                   "FREQ=WEEKLY"));
           })
        << "2011-03-08"
        << "2011-03-31"
        << QStringList{
               "a 2011-03-08 16:00 > 2011-03-08 17:00", "a 2011-03-15 15:00 > 2011-03-15 16:00",
               "a 2011-03-22 15:00 > 2011-03-22 16:00", "a 2011-03-29 16:00 > 2011-03-29 17:00"};
}

void addOrderRows()
{
    QTest::newRow("ordered by start, end and UID")
        << Build([](Calendar &c) {
               c.addEvent(newEvent("c", "2011-05-02T10:00", "2011-05-02T11:00"));
               c.addEvent(newEvent("b", "2011-05-02T10:00", "2011-05-02T12:00"));
               c.addEvent(newEvent("a", "2011-05-02T10:00", "2011-05-02T11:00"));
               c.addEvent(newEvent("d", "2011-05-01T10:00", "2011-05-05T12:00"));
           })
        << "2011-05-02"
        << "2011-05-03"
        << QStringList{
               "d 2011-05-01 10:00 > 2011-05-05 12:00", "a 2011-05-02 10:00 > 2011-05-02 11:00",
               "c 2011-05-02 10:00 > 2011-05-02 11:00", "b 2011-05-02 10:00 > 2011-05-02 12:00"};
}
} // namespace

class TestExpansion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void occurrences_data();
    void occurrences();
    void otherZones_data();
    void otherZones();
    void timeSpecOfResults();
    void ends_data();
    void ends();
    void previous_data();
    void previous();
};

void TestExpansion::occurrences_data()
{
    QTest::addColumn<Build>("build");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QStringList>("expected");

    addClockChangeRows();
    addWindowRows();
    addRuleRows();
    addDateRows();
    addLengthRows();
    addTodoRows();
    addZoneRows();
    addOrderRows();
}

void TestExpansion::occurrences()
{
    QFETCH(Build, build);
    QFETCH(QString, from);
    QFETCH(QString, to);
    ExtendedCalendar calendar(QTimeZone("Europe/Helsinki"));
    build(calendar);
    QTEST(agenda(calendar, from, to), "expected");
}

void TestExpansion::otherZones_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<Build>("build");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QStringList>("expected");

    const auto birthday =
        Build([](Calendar &c) { c.addEvent(days("FREQ=YEARLY", "1980-03-27", "1980-03-28")); });
    QTest::newRow("all-day where midnight is skipped")
        << QByteArray("Asia/Beirut") << birthday << "2011-03-20"
        << "2011-04-01" << QStringList{"a 2011-03-27 01:00 > 2011-03-28 00:00"};
    QTest::newRow("all-day keeps its date west of Greenwich")
        << QByteArray("America/New_York") << birthday << "2011-03-20"
        << "2011-04-01" << QStringList{"a 2011-03-27 00:00 > 2011-03-28 00:00"};
    QTest::newRow("floating is read on the calendar's clock")
        << QByteArray("America/New_York") << Build([](Calendar &c) {
               c.addEvent(recurring(newEvent("a", "2011-03-11T02:30", "2011-03-11T03:30", ""),
                                    "FREQ=DAILY;COUNT=3"));
           })
        << "2011-03-10"
        << "2011-03-20"
        << QStringList{"a 2011-03-11 02:30 > 2011-03-11 03:30",
                       "a 2011-03-12 02:30 > 2011-03-12 03:30",
                       "a 2011-03-13 03:30 > 2011-03-13 04:30"};
    QTest::newRow("what is on the day that Apia left out comes a day later")
        << QByteArray("Pacific/Apia")
        << Build([](Calendar &c) { c.addEvent(days("FREQ=DAILY", "2011-12-28", "2011-12-29")); })
        << "2011-12-29"
        << "2012-01-02"
        << QStringList{
               "a 2011-12-29 00:00 > 2011-12-31 00:00", "a 2011-12-31 00:00 > 2012-01-01 00:00",
               "a 2011-12-31 00:00 > 2012-01-01 00:00", "a 2012-01-01 00:00 > 2012-01-02 00:00"};
    QTest::newRow("a clock that is put forward by half an hour")
        << QByteArray("Australia/Lord_Howe") << Build([](Calendar &c) {
               c.addEvent(recurring(
                   newEvent("a", "2011-10-01T02:10", "2011-10-01T02:20", "Australia/Lord_Howe"),
                   "FREQ=DAILY;COUNT=3"));
           })
        << "2011-09-30"
        << "2011-10-10"
        << QStringList{"a 2011-10-01 02:10 > 2011-10-01 02:20",
                       "a 2011-10-02 02:40 > 2011-10-02 02:50",
                       "a 2011-10-03 02:10 > 2011-10-03 02:20"};
}

void TestExpansion::otherZones()
{
    QFETCH(QByteArray, zone);
    QFETCH(Build, build);
    QFETCH(QString, from);
    QFETCH(QString, to);
    ExtendedCalendar calendar{QTimeZone(zone)};
    build(calendar);
    QTEST(agenda(calendar, from, to), "expected");
}

void TestExpansion::timeSpecOfResults()
{
    const auto utcMeeting =
        recurring(newEvent("a", "2011-05-02T10:00", "2011-05-02T11:00", "UTC"), "FREQ=DAILY");
    KCalCore::Incidence::List list{utcMeeting};
    const KDateTime from(at("2011-05-03"));
    const KDateTime to(at("2011-05-04"));

    const ExtendedCalendar home{QTimeZone("Europe/Helsinki")};
    const auto atHome = home.expandRecurrences(&list, from, to, 10);
    QCOMPARE(atHome.size(), 1);
    QCOMPARE(atHome.first().first.dtStart, at("2011-05-03T13:00"));
    QCOMPARE(atHome.first().first.dtStart.timeSpec(), Qt::LocalTime);

    const ExtendedCalendar abroad{QTimeZone("Asia/Tokyo")};
    const auto inTokyo = abroad.expandRecurrences(&list, from, to, 10);
    QCOMPARE(inTokyo.size(), 1);
    QCOMPARE(inTokyo.first().first.dtEnd.timeZone().id(), QByteArray("Asia/Tokyo"));
    QCOMPARE(inTokyo.first().first.dtEnd.time(), QTime(20, 0));
}

void TestExpansion::ends_data()
{
    QTest::addColumn<KCalCore::Incidence::Ptr>("incidence");
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");

    const auto spring = KCalCore::Incidence::Ptr(days("FREQ=DAILY", "2011-03-01", "2011-03-03"));
    QTest::newRow("all-day over the short day")
        << spring << at("2011-03-26", "") << at("2011-03-28", "");
    QTest::newRow("all-day over the long day")
        << spring << at("2011-10-30", "") << at("2011-11-01", "");
    QTest::newRow("hours over the short day, asked in UTC")
        << KCalCore::Incidence::Ptr(newEvent("a", "2011-03-01T22:00", "2011-03-02T06:00"))
        << at("2011-03-26T20:00", "UTC") << at("2011-03-27T04:00", "UTC");
    const auto nominal = newEvent("a", "2011-03-01T22:00");
    nominal->setDuration(KCalCore::Duration(1, KCalCore::Duration::Days));
    QTest::newRow("a day over the short day, asked in UTC")
        << KCalCore::Incidence::Ptr(nominal) << at("2011-03-26T20:00", "UTC")
        << at("2011-03-27T19:00", "UTC");
    const auto periods = meeting("FREQ=DAILY;COUNT=1");
    periods->recurrence()->addRDateTimePeriod(
        KCalCore::Period(at("2011-05-05T20:00"), at("2011-05-07T02:00")));
    QTest::newRow("RDATE period") << KCalCore::Incidence::Ptr(periods) << at("2011-05-05T20:00")
                                  << at("2011-05-07T02:00");
    const auto task = newTodo("a", "2011-03-26T18:00");
    task->setDtStart(at("2011-03-25T09:00"));
    QTest::newRow("to-do") << KCalCore::Incidence::Ptr(task) << at("2011-03-27T09:00")
                           << at("2011-03-28T18:00");
}

void TestExpansion::ends()
{
    QFETCH(KCalCore::Incidence::Ptr, incidence);
    QFETCH(QDateTime, start);
    QTEST(mKCal::occurrenceEnd(incidence, start), "end");
    QFETCH(QDateTime, end);
    QCOMPARE(mKCal::occurrenceEnd(incidence, start).timeSpec(), end.timeSpec());
}

void TestExpansion::previous_data()
{
    QTest::addColumn<KCalCore::Incidence::Ptr>("incidence");
    QTest::addColumn<QDateTime>("time");
    QTest::addColumn<QDateTime>("expected");

    const auto daily = meeting("FREQ=DAILY", "2011-03-20T10:00");
    daily->recurrence()->addExDateTime(at("2011-03-24T10:00"));
    const auto several = meeting("FREQ=DAILY;COUNT=1");
    for (const char *added : {"2011-05-05T10:00", "2011-05-10T10:00", "2011-05-15T10:00"}) {
        several->recurrence()->addRDateTime(at(added));
    }
    const auto skipped = meeting("FREQ=DAILY", "2011-03-20T03:30");
    const auto allDay = days("FREQ=WEEKLY;COUNT=2", "2011-05-02", "2011-05-03");
    allDay->recurrence()->addRDate(QDate(2011, 5, 4));
    allDay->recurrence()->addRDate(QDate(2011, 5, 6));

    using Pointer = KCalCore::Incidence::Ptr;
    QTest::newRow("at it") << Pointer(daily) << at("2011-03-23T10:00") << at("2011-03-23T10:00");
    QTest::newRow("just before it, asked in UTC")
        << Pointer(daily) << at("2011-03-23T07:59:59", "UTC") << at("2011-03-22T10:00");
    QTest::newRow("past an excluded one")
        << Pointer(daily) << at("2011-03-25T09:00") << at("2011-03-23T10:00");
    QTest::newRow("before the first") << Pointer(daily) << at("2011-03-20T09:00") << QDateTime();
    QTest::newRow("the last of several RDATEs")
        << Pointer(several) << at("2011-05-20") << at("2011-05-15T10:00");
    QTest::newRow("between RDATEs")
        << Pointer(several) << at("2011-05-14") << at("2011-05-10T10:00");
    QTest::newRow("all-day RDATEs") << Pointer(allDay) << at("2011-05-08") << at("2011-05-06", "");
    QTest::newRow("a skipped start")
        << Pointer(skipped) << at("2011-03-27T12:00") << at("2011-03-27T04:30");
    QTest::newRow("no recurrence")
        << Pointer(newEvent("a", "2011-05-01T10:00")) << at("2011-06-01") << at("2011-05-01T10:00");
}

void TestExpansion::previous()
{
    QFETCH(KCalCore::Incidence::Ptr, incidence);
    QFETCH(QDateTime, time);
    QTEST(mKCal::previousOccurrence(incidence, time), "expected");
}

CALENDAR_TEST_MAIN(TestExpansion, "Europe/Helsinki")
#include "tst_expansion.moc"
