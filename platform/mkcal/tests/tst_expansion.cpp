// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendarscene.h"
#include "testtable.h"

using namespace CalendarScene;
using mKCal::ExtendedCalendar;

namespace
{
using Incidence = KCalCore::Incidence;

KCalCore::Todo::Ptr task(const QString &uid, const QString &start, const QString &due)
{
    return with(newTodo(uid, due), [&](auto &todo) { todo.setDtStart(at(start)); });
}

KCalCore::Event::Ptr aDayLong(const QString &start)
{
    return with(newEvent("a", start), [](auto &incidence) {
        incidence.setDuration(KCalCore::Duration(1, KCalCore::Duration::Days));
    });
}

KCalCore::Event::Ptr withPeriod(const QString &start, const QString &end)
{
    return with(meeting("FREQ=DAILY;COUNT=1"), [&](auto &incidence) {
        incidence.recurrence()->addRDateTimePeriod(KCalCore::Period(at(start), at(end)));
    });
}

void addClockChangeRows()
{
    agendaRow("daily over the clock change keeps the wall clock",
              {meeting("FREQ=DAILY", "2011-03-20T10:00")}, "2011-03-26", "2011-03-29",
              {"a 03-26 10:00 > 11:00", "a 03-27 10:00 > 11:00", "a 03-28 10:00 > 11:00"});
    agendaRow("a start that the clock skips is read an hour later",
              {meeting("FREQ=DAILY", "2011-03-20T03:30")}, "2011-03-26", "2011-03-29",
              {"a 03-26 03:30 > 04:30", "a 03-27 04:30 > 05:30", "a 03-28 03:30 > 04:30"});
    agendaRow("a skipped start counts towards COUNT",
              {meeting("FREQ=DAILY;COUNT=3", "2011-03-26T03:30")}, "2011-03-25", "2011-04-05",
              {"a 03-26 03:30 > 04:30", "a 03-27 04:30 > 05:30", "a 03-28 03:30 > 04:30"});
    agendaRow("a skipped floating start, named by BYHOUR",
              {series("FREQ=DAILY;BYHOUR=3", "2011-03-20T01:00", "2011-03-20T02:00", "")},
              "2011-03-26", "2011-03-29",
              {"a 03-26 03:00 > 04:00", "a 03-27 04:00 > 05:00", "a 03-28 03:00 > 04:00"});
    agendaRow("hourly over the clock change is every hour that there is",
              {series("FREQ=HOURLY", "2011-03-27T00:15", {})}, "2011-03-27T02:00",
              "2011-03-27T05:00", {"a 03-27 02:15 > 02:15", "a 03-27 04:15 > 04:15"});
    agendaRow("all-day on the days of 23 and 25 hours",
              {series("FREQ=DAILY", "2011-03-20", "2011-03-22")}, "2011-03-27", "2011-03-28",
              {"a 03-26 00:00 > 03-28 00:00", "a 03-27 00:00 > 03-29 00:00"});
    agendaRow("all-day in autumn", {series("FREQ=DAILY", "2011-10-01", "2011-10-02")}, "2011-10-30",
              "2011-10-31", {"a 10-30 00:00 > 10-31 00:00"});
}

void addWindowRows()
{
    agendaRow("began before the window",
              {series("FREQ=WEEKLY", "2011-05-01T22:00", "2011-05-04T06:00")}, "2011-05-11",
              "2011-05-12", {"a 05-08 22:00 > 05-11 06:00"});
    agendaRow("overnight, running when the range starts",
              {series("FREQ=DAILY", "2011-05-01T22:00", "2011-05-02T06:00")}, "2011-05-10",
              "2011-05-11", {"a 05-09 22:00 > 05-10 06:00", "a 05-10 22:00 > 05-11 06:00"});
    agendaRow("what only touches the window is not in it",
              {newEvent("before", "2011-05-02T23:00", "2011-05-03T00:00"),
               newEvent("instant", "2011-05-03T00:00"),
               newEvent("after", "2011-05-04T00:00", "2011-05-04T01:00"),
               newEvent("day", "2011-05-02", "2011-05-03"),
               series("FREQ=DAILY", "2011-05-01T23:00", "2011-05-02T00:00")},
              "2011-05-03", "2011-05-04",
              {"instant 05-03 00:00 > 00:00", "a 05-03 23:00 > 05-04 00:00"});
    agendaRow("ordered by start, end and UID",
              {newEvent("c", "2011-05-02T10:00", "2011-05-02T11:00"),
               newEvent("b", "2011-05-02T10:00", "2011-05-02T12:00"),
               newEvent("a", "2011-05-02T10:00", "2011-05-02T11:00"),
               newEvent("d", "2011-05-01T10:00", "2011-05-05T12:00")},
              "2011-05-02", "2011-05-03",
              {"d 05-01 10:00 > 05-05 12:00", "a 05-02 10:00 > 11:00", "c 05-02 10:00 > 11:00",
               "b 05-02 10:00 > 12:00"});
}

void addRuleRows()
{
    const auto excluded = meeting("FREQ=DAILY;COUNT=4");
    excluded->recurrence()->addExDateTime(at("2011-05-03T07:00", "UTC"));
    excluded->recurrence()->addExDate(QDate(2011, 5, 4));
    agendaRow("excluded dates count towards COUNT", {excluded}, "2011-05-01", "2011-05-20",
              {"a 05-02 10:00 > 11:00", "a 05-05 10:00 > 11:00"});
    const auto everyOther = meeting("FREQ=DAILY;COUNT=4");
    auto *rule = new KCalCore::RecurrenceRule;
    rule->setRecurrenceType(KCalCore::RecurrenceRule::rDaily);
    rule->setFrequency(2);
    rule->setDuration(-1);
    rule->setStartDt(everyOther->dtStart());
    everyOther->recurrence()->addExRule(rule);
    agendaRow("EXRULE", {everyOther}, "2011-05-01", "2011-05-20",
              {"a 05-03 10:00 > 11:00", "a 05-05 10:00 > 11:00"});
    agendaRow("a start off the rule is an occurrence", {meeting("FREQ=WEEKLY;BYDAY=TH;COUNT=2")},
              "2011-05-01", "2011-05-20",
              {"a 05-02 10:00 > 11:00", "a 05-05 10:00 > 11:00", "a 05-12 10:00 > 11:00"});
    agendaRow("months without a 31st are passed over",
              {meeting("FREQ=MONTHLY", "2011-01-31T10:00")}, "2011-02-01", "2011-06-01",
              {"a 03-31 10:00 > 11:00", "a 05-31 10:00 > 11:00"});
    agendaRow("UNTIL before the start leaves the start",
              {meeting("FREQ=DAILY;UNTIL=20110401T000000Z")}, "2011-03-01", "2011-05-20",
              {"a 05-02 10:00 > 11:00"});
}

void addDateRows()
{
    const auto several = withPeriod("2011-05-05T20:00", "2011-05-07T02:00");
    several->recurrence()->addRDateTime(at("2011-05-10T08:00"));
    several->recurrence()->addRDateTime(at("2011-04-30T12:00"));
    agendaRow("several RDATEs, one before the start, one with an end of its own", {several},
              "2011-04-30", "2011-05-20",
              {"a 04-30 12:00 > 13:00", "a 05-02 10:00 > 11:00", "a 05-05 20:00 > 05-07 02:00",
               "a 05-10 08:00 > 09:00"});
    agendaRow("a long RDATE period runs into the window",
              {withPeriod("2011-05-05T20:00", "2011-05-17T02:00")}, "2011-05-16", "2011-05-20",
              {"a 05-05 20:00 > 05-17 02:00"});
    agendaRow("a nominal duration keeps the wall clock", {aDayLong("2011-03-26T12:00")},
              "2011-03-26", "2011-03-29", {"a 03-26 12:00 > 03-27 12:00"});
    agendaRow("all-day without an end lasts its day", {newEvent("a", "2011-05-02")}, "2011-05-01",
              "2011-05-05", {"a 05-02 00:00 > 05-03 00:00"});
}

void addTodoRows()
{
    agendaRow("a to-do is on its due date, with or without a start",
              {task("both", "2011-05-01T09:00", "2011-05-05T18:00"),
               task("started", "2011-05-04T09:00", {}), newTodo("day", "2011-05-03"),
               newTodo("undated", {})},
              "2011-05-01", "2011-05-20",
              {"day 05-03 00:00 > 05-04 00:00", "started 05-04 09:00 > 09:00",
               "both 05-05 18:00 > 18:00"});
    agendaRow("a recurring to-do with a start, on each due date once",
              {recurring(task("a", "2011-03-25T09:00", "2011-03-26T18:00"), "FREQ=DAILY;COUNT=3")},
              "2011-03-20", "2011-04-20",
              {"a 03-26 18:00 > 18:00", "a 03-27 18:00 > 18:00", "a 03-28 18:00 > 18:00"});
}

void addZoneRows()
{
    agendaRow("a series of another zone",
              {series("FREQ=WEEKLY", "2011-03-01T09:00", "2011-03-01T10:00", "America/New_York")},
              "2011-03-08", "2011-03-31",
              {"a 03-08 16:00 > 17:00", "a 03-15 15:00 > 16:00", "a 03-22 15:00 > 16:00",
               "a 03-29 16:00 > 17:00"});
    const Family birthday{series("FREQ=YEARLY", "1980-03-27", "1980-03-28")};
    agendaRow("all-day where midnight is skipped", birthday, "2011-03-20", "2011-04-01",
              {"a 03-27 01:00 > 03-28 00:00"}, "Asia/Beirut");
    agendaRow("all-day keeps its date west of Greenwich", birthday, "2011-03-20", "2011-04-01",
              {"a 03-27 00:00 > 03-28 00:00"}, "America/New_York");
    agendaRow("floating is read on the calendar's clock",
              {series("FREQ=DAILY;COUNT=3", "2011-03-11T02:30", "2011-03-11T03:30", "")},
              "2011-03-10", "2011-03-20",
              {"a 03-11 02:30 > 03:30", "a 03-12 02:30 > 03:30", "a 03-13 03:30 > 04:30"},
              "America/New_York");
    agendaRow("what is on the day that Apia left out comes a day later",
              {series("FREQ=DAILY", "2011-12-28", "2011-12-29")}, "2011-12-29", "2012-01-02",
              {"a 12-29 00:00 > 12-31 00:00", "a 12-31 00:00 > 2012-01-01 00:00",
               "a 12-31 00:00 > 2012-01-01 00:00", "a 2012-01-01 00:00 > 2012-01-02 00:00"},
              "Pacific/Apia");
    agendaRow("a clock that is put forward by half an hour",
              {series("FREQ=DAILY;COUNT=3", "2011-10-01T02:10", "2011-10-01T02:20",
                      "Australia/Lord_Howe")},
              "2011-09-30", "2011-10-10",
              {"a 10-01 02:10 > 02:20", "a 10-02 02:40 > 02:50", "a 10-03 02:10 > 02:20"},
              "Australia/Lord_Howe");
}
} // namespace

class TestExpansion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void occurrences_data();
    void occurrences() { checkAgenda(); }
    void timeSpecOfResults();
    void ends_data();
    void ends();
    void previous_data();
    void previous();
};

void TestExpansion::occurrences_data()
{
    agendaColumns();
    addClockChangeRows();
    addWindowRows();
    addRuleRows();
    addDateRows();
    addTodoRows();
    addZoneRows();
}

void TestExpansion::timeSpecOfResults()
{
    Incidence::List list{series("FREQ=DAILY", "2011-05-02T10:00", "2011-05-02T11:00", "UTC")};
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
    addColumns<Incidence::Ptr, QDateTime, QDateTime>("incidence", "start", "end");
    const auto row = [](const char *name, const Incidence::Ptr &incidence, const QDateTime &start,
                        const QDateTime &end) { addRow(name, incidence, start, end); };
    const auto twoDays = series("FREQ=DAILY", "2011-03-01", "2011-03-03");
    row("all-day over the short day", twoDays, at("2011-03-26", ""), at("2011-03-28", ""));
    row("all-day over the long day", twoDays, at("2011-10-30", ""), at("2011-11-01", ""));
    row("hours over the short day, asked in UTC",
        newEvent("a", "2011-03-01T22:00", "2011-03-02T06:00"), at("2011-03-26T20:00", "UTC"),
        at("2011-03-27T04:00", "UTC"));
    row("a day over the short day, asked in UTC", aDayLong("2011-03-01T22:00"),
        at("2011-03-26T20:00", "UTC"), at("2011-03-27T19:00", "UTC"));
    row("RDATE period", withPeriod("2011-05-05T20:00", "2011-05-07T02:00"), at("2011-05-05T20:00"),
        at("2011-05-07T02:00"));
    row("to-do", task("a", "2011-03-25T09:00", "2011-03-26T18:00"), at("2011-03-27T09:00"),
        at("2011-03-28T18:00"));
}

void TestExpansion::ends()
{
    QFETCH(Incidence::Ptr, incidence);
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    QCOMPARE(mKCal::occurrenceEnd(incidence, start), end);
    QCOMPARE(mKCal::occurrenceEnd(incidence, start).timeSpec(), end.timeSpec());
}

void TestExpansion::previous_data()
{
    addColumns<Incidence::Ptr, QDateTime, QDateTime>("incidence", "time", "expected");
    const auto row = [](const char *name, const Incidence::Ptr &incidence, const QDateTime &time,
                        const QDateTime &expected) { addRow(name, incidence, time, expected); };
    const auto daily = meeting("FREQ=DAILY", "2011-03-20T10:00");
    daily->recurrence()->addExDateTime(at("2011-03-24T10:00"));
    const auto several = meeting("FREQ=DAILY;COUNT=1");
    for (const char *added : {"2011-05-05T10:00", "2011-05-10T10:00", "2011-05-15T10:00"}) {
        several->recurrence()->addRDateTime(at(added));
    }
    const auto allDay = series("FREQ=WEEKLY;COUNT=2", "2011-05-02", "2011-05-03");
    allDay->recurrence()->addRDate(QDate(2011, 5, 4));
    allDay->recurrence()->addRDate(QDate(2011, 5, 6));

    row("at it", daily, at("2011-03-23T10:00"), at("2011-03-23T10:00"));
    row("just before it, asked in UTC", daily, at("2011-03-23T07:59:59", "UTC"),
        at("2011-03-22T10:00"));
    row("past an excluded one", daily, at("2011-03-25T09:00"), at("2011-03-23T10:00"));
    row("before the first", daily, at("2011-03-20T09:00"), QDateTime());
    row("the last of several RDATEs", several, at("2011-05-20"), at("2011-05-15T10:00"));
    row("between RDATEs", several, at("2011-05-14"), at("2011-05-10T10:00"));
    row("all-day RDATEs", allDay, at("2011-05-08"), at("2011-05-06", ""));
    row("a skipped start", meeting("FREQ=DAILY", "2011-03-20T03:30"), at("2011-03-27T12:00"),
        at("2011-03-27T04:30"));
    row("no recurrence", newEvent("a", "2011-05-01T10:00"), at("2011-06-01"),
        at("2011-05-01T10:00"));
}

void TestExpansion::previous()
{
    QFETCH(Incidence::Ptr, incidence);
    QFETCH(QDateTime, time);
    QTEST(mKCal::previousOccurrence(incidence, time), "expected");
}

CALENDAR_TEST_MAIN(TestExpansion, "Europe/Helsinki")
#include "tst_expansion.moc"
