// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendarscene.h"

using namespace CalendarScene;
using mKCal::ExtendedCalendar;

namespace
{
using Event = KCalCore::Event::Ptr;

Event weekly()
{
    return meeting("FREQ=WEEKLY;COUNT=5");
}

/// Replaces the occurrence of 16 May.
Event instead(const Event &series, const QString &start, const QString &end)
{
    return exception(series, at("2011-05-16T10:00"), start, end);
}

Event cancelled(const Event &exception)
{
    exception->setStatus(KCalCore::Incidence::StatusCanceled);
    return exception;
}

Event fromThere(const Event &exception)
{
    exception->setThisAndFuture(true);
    return exception;
}

void addSingleRows()
{
    const Event series = weekly();
    const Family moved{series, instead(series, "2011-05-18T15:00", "2011-05-18T17:00")};
    agendaRow("moved within the window", moved, "2011-05-09", "2011-05-24",
              {"a 05-09 10:00 > 11:00", "a 05-18 15:00 > 17:00", "a 05-23 10:00 > 11:00"});
    agendaRow("moved in", moved, "2011-05-18", "2011-05-19", {"a 05-18 15:00 > 17:00"});
    agendaRow("moved out", moved, "2011-05-16", "2011-05-17", {});
    agendaRow("moved to after the series has ended",
              {series, instead(series, "2011-08-01T15:00", "2011-08-01T17:00")}, "2011-08-01",
              "2011-08-02", {"a 08-01 15:00 > 17:00"});
    agendaRow("cancelled",
              {series, cancelled(instead(series, "2011-05-16T10:00", "2011-05-16T11:00"))},
              "2011-05-09", "2011-05-24", {"a 05-09 10:00 > 11:00", "a 05-23 10:00 > 11:00"});
    const auto inUtc = instead(series, "2011-05-16T12:00", "2011-05-16T13:00");
    inUtc->setRecurrenceId(at("2011-05-16T07:00", "UTC").addMSecs(20));
    agendaRow("named in UTC, with milliseconds", {series, inUtc}, "2011-05-16", "2011-05-17",
              {"a 05-16 12:00 > 13:00"});
}

void addFromThereRows()
{
    const Event series = weekly();
    agendaRow("from there on",
              {series, fromThere(instead(series, "2011-05-17T09:00", "2011-05-17T12:00"))},
              "2011-05-01", "2011-07-01",
              {"a 05-02 10:00 > 11:00", "a 05-09 10:00 > 11:00", "a 05-17 09:00 > 12:00",
               "a 05-24 09:00 > 12:00", "a 05-31 09:00 > 12:00"});
    const Event spring = meeting("FREQ=DAILY;COUNT=9", "2011-03-20T10:00");
    agendaRow("from there on, over the clock change, with one moved back",
              {spring,
               fromThere(exception(spring, at("2011-03-26T10:00"), "2011-03-26T03:30",
                                   "2011-03-26T04:00")),
               exception(spring, at("2011-03-28T10:00"), "2011-03-28T10:00", "2011-03-28T11:00")},
              "2011-03-25", "2011-04-10",
              {"a 03-25 10:00 > 11:00", "a 03-26 03:30 > 04:00", "a 03-27 04:30 > 05:00",
               "a 03-28 10:00 > 11:00"});
    const Event days = CalendarScene::series("FREQ=DAILY", "2011-05-01", "2011-05-02");
    agendaRow(
        "from there on, twice, then cancelled",
        {days, fromThere(exception(days, at("2011-05-03", ""), "2011-05-13", "2011-05-15")),
         fromThere(exception(days, at("2011-05-05", ""), "2011-05-05T20:00", "2011-05-05T21:00")),
         cancelled(fromThere(exception(days, at("2011-05-07", ""), "2011-05-07", "2011-05-08")))},
        "2011-05-01", "2011-06-01",
        {"a 05-01 00:00 > 05-02 00:00", "a 05-02 00:00 > 05-03 00:00", "a 05-05 20:00 > 21:00",
         "a 05-06 20:00 > 21:00", "a 05-13 00:00 > 05-15 00:00", "a 05-14 00:00 > 05-16 00:00"});
}

void addIdentifierRows()
{
    Family skipped;
    for (const char *zone : {"Europe/Helsinki", ""}) {
        const auto series = recurring(
            newEvent(*zone ? "zoned" : "floating", "2011-03-26T03:30", "2011-03-26T03:45", zone),
            "FREQ=DAILY;COUNT=3");
        skipped << series
                << exception(series, at("2011-03-27T04:30", zone), "2011-03-27T09:00",
                             "2011-03-27T09:15");
        series->recurrence()->addExDateTime(at("2011-03-26T03:30", zone));
    }
    agendaRow("instead of starts that the clock skips, zoned and floating", skipped, "2011-03-20",
              "2011-04-01",
              {"floating 03-27 09:00 > 09:15", "zoned 03-27 09:00 > 09:15",
               "floating 03-28 03:30 > 03:45", "zoned 03-28 03:30 > 03:45"});
    const Event days = CalendarScene::series("FREQ=DAILY;COUNT=3", "2011-05-01", "2011-05-02");
    agendaRow("all-day, named in the zone of another program",
              {days,
               exception(days, at("2011-05-02", "America/New_York"), "2011-05-20", "2011-05-21"),
               exception(days, at("2011-05-02T21:00", "UTC"), "2011-05-21", "2011-05-22")},
              "2011-05-01", "2011-06-01",
              {"a 05-01 00:00 > 05-02 00:00", "a 05-20 00:00 > 05-21 00:00",
               "a 05-21 00:00 > 05-22 00:00"});
}
} // namespace

/// What stands in for single occurrences of a series.
class TestExceptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expanded_data();
    void expanded() { checkAgenda(); }
    void handedOver();
    void textsOfLaterOnes();
    void rangesFollowThem();
};

void TestExceptions::expanded_data()
{
    agendaColumns();
    addSingleRows();
    addFromThereRows();
    addIdentifierRows();
}

void TestExceptions::handedOver()
{
    const ExtendedCalendar calendar{QTimeZone("Europe/Helsinki")};
    const auto series = weekly();
    const auto moved = instead(series, "2011-05-18T15:00", "2011-05-18T17:00");
    const KDateTime from(at("2011-05-16"));
    const KDateTime to(at("2011-05-23"));
    const QStringList expected{"a 05-18 15:00 > 17:00"};

    Family both{series, moved};
    QCOMPARE(shown(calendar.expandRecurrences(&both, from, to, 10)), expected);
    Family alone{moved};
    QCOMPARE(shown(calendar.expandRecurrences(&alone, from, to, 10)), expected);

    // A version that is handed over counts more than the one in the calendar.
    ExtendedCalendar stale{QTimeZone("Europe/Helsinki")};
    stale.addEvent(weekly());
    stale.addEvent(instead(series, "2011-05-20T15:00", "2011-05-20T17:00"));
    QCOMPARE(shown(stale.expandRecurrences(&both, from, to, 10)), expected);
}

void TestExceptions::textsOfLaterOnes()
{
    ExtendedCalendar calendar{QTimeZone("Europe/Helsinki")};
    const auto series = weekly();
    calendar.addEvent(series);
    const auto changed = fromThere(instead(series, "2011-05-16T12:00", "2011-05-16T13:00"));
    calendar.addEvent(changed);
    auto incidences = calendar.incidences(QDate(2011, 5, 23), QDate(2011, 5, 23));
    const auto expanded = calendar.expandRecurrences(&incidences, KDateTime(at("2011-05-23")),
                                                     KDateTime(at("2011-05-24")), 10);
    QCOMPARE(expanded.size(), 1);
    QCOMPARE(expanded.first().second, KCalCore::Incidence::Ptr(changed));
}

void TestExceptions::rangesFollowThem()
{
    ExtendedCalendar calendar{QTimeZone("Europe/Helsinki")};
    const auto series = weekly();
    calendar.addEvent(series);
    const QDate lastDay(2011, 6, 2);
    QVERIFY(calendar.rawEvents(lastDay, lastDay).isEmpty());
    const auto later = fromThere(instead(series, "2011-05-19T10:00", "2011-05-19T11:00"));
    calendar.addEvent(later);
    QCOMPARE(calendar.rawEventsForDate(lastDay), KCalCore::Event::List{series});
    calendar.deleteEvent(later);
    QVERIFY(calendar.rawEvents(lastDay, lastDay).isEmpty());
}

CALENDAR_TEST_MAIN(TestExceptions, "Europe/Helsinki")
#include "tst_exceptions.moc"
