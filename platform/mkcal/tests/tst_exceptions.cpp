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
KCalCore::Event::Ptr weekly()
{
    return recurring(newEvent("a", "2011-05-02T10:00", "2011-05-02T11:00"), "FREQ=WEEKLY;COUNT=5");
}

/// Replaces the occurrence of 16 May.
KCalCore::Event::Ptr instead(const KCalCore::Event::Ptr &series, const QString &start,
                             const QString &end)
{
    return exception(series, at("2011-05-16T10:00"), start, end);
}

void addCancelled(Calendar &calendar, const KCalCore::Event::Ptr &exception)
{
    exception->setStatus(KCalCore::Incidence::StatusCanceled);
    calendar.addEvent(exception);
}

void addFromThere(Calendar &calendar, const KCalCore::Event::Ptr &exception)
{
    exception->setThisAndFuture(true);
    calendar.addEvent(exception);
}

void addMovedRows()
{
    const Build moved = [](Calendar &c) {
        const auto series = weekly();
        c.addEvent(series);
        c.addEvent(instead(series, "2011-05-18T15:00", "2011-05-18T17:00"));
    };
    QTest::newRow("moved within the window")
        << moved << "2011-05-09"
        << "2011-05-24"
        << QStringList{"a 2011-05-09 10:00 > 2011-05-09 11:00",
                       "a 2011-05-18 15:00 > 2011-05-18 17:00",
                       "a 2011-05-23 10:00 > 2011-05-23 11:00"};
    QTest::newRow("moved in") << moved << "2011-05-18"
                              << "2011-05-19"
                              << QStringList{"a 2011-05-18 15:00 > 2011-05-18 17:00"};
    QTest::newRow("moved out") << moved << "2011-05-16"
                               << "2011-05-17" << QStringList{};
    QTest::newRow("moved to after the series has ended")
        << Build([](Calendar &c) {
               const auto series = weekly();
               c.addEvent(series);
               c.addEvent(instead(series, "2011-08-01T15:00", "2011-08-01T17:00"));
           })
        << "2011-08-01"
        << "2011-08-02" << QStringList{"a 2011-08-01 15:00 > 2011-08-01 17:00"};
}

void addSingleRows()
{
    QTest::newRow("cancelled") << Build([](Calendar &c) {
        const auto series = weekly();
        c.addEvent(series);
        addCancelled(c, instead(series, "2011-05-16T10:00", "2011-05-16T11:00"));
    }) << "2011-05-09"
                               << "2011-05-24"
                               << QStringList{"a 2011-05-09 10:00 > 2011-05-09 11:00",
                                              "a 2011-05-23 10:00 > 2011-05-23 11:00"};
    QTest::newRow("named in UTC, with milliseconds")
        << Build([](Calendar &c) {
               const auto series = weekly();
               c.addEvent(series);
               const auto other = instead(series, "2011-05-16T12:00", "2011-05-16T13:00");
               other->setRecurrenceId(at("2011-05-16T07:00", "UTC").addMSecs(20));
               c.addEvent(other);
           })
        << "2011-05-16"
        << "2011-05-17" << QStringList{"a 2011-05-16 12:00 > 2011-05-16 13:00"};
}

void addFromThereRows()
{
    QTest::newRow("from there on") << Build([](Calendar &c) {
        const auto series = weekly();
        c.addEvent(series);
        addFromThere(c, instead(series, "2011-05-17T09:00", "2011-05-17T12:00"));
    }) << "2011-05-01"
                                   << "2011-07-01"
                                   << QStringList{"a 2011-05-02 10:00 > 2011-05-02 11:00",
                                                  "a 2011-05-09 10:00 > 2011-05-09 11:00",
                                                  "a 2011-05-17 09:00 > 2011-05-17 12:00",
                                                  "a 2011-05-24 09:00 > 2011-05-24 12:00",
                                                  "a 2011-05-31 09:00 > 2011-05-31 12:00"};
    QTest::newRow("from there on, over the clock change, with one moved back")
        << Build([](Calendar &c) {
               const auto series = recurring(newEvent("a", "2011-03-20T10:00", "2011-03-20T11:00"),
                                             "FREQ=DAILY;COUNT=9");
               c.addEvent(series);
               addFromThere(c,
                            exception(series, at("2011-03-26T10:00"), "2011-03-26T03:30",
                                      "2011-03-26T04:00"));
               c.addEvent(exception(series, at("2011-03-28T10:00"), "2011-03-28T10:00",
                                    "2011-03-28T11:00"));
           })
        << "2011-03-25"
        << "2011-04-10"
        << QStringList{
               "a 2011-03-25 10:00 > 2011-03-25 11:00", "a 2011-03-26 03:30 > 2011-03-26 04:00",
               "a 2011-03-27 04:30 > 2011-03-27 05:00", "a 2011-03-28 10:00 > 2011-03-28 11:00"};
    QTest::newRow("from there on, twice, then cancelled")
        << Build([](Calendar &c) {
               const auto series =
                   recurring(newEvent("a", "2011-05-01", "2011-05-02"), "FREQ=DAILY");
               c.addEvent(series);
               addFromThere(c, exception(series, at("2011-05-03", ""), "2011-05-13", "2011-05-15"));
               addFromThere(
                   c,
                   exception(series, at("2011-05-05", ""), "2011-05-05T20:00", "2011-05-05T21:00"));
               const auto end = exception(series, at("2011-05-07", ""), "2011-05-07", "2011-05-08");
               end->setThisAndFuture(true);
               addCancelled(c, end);
           })
        << "2011-05-01"
        << "2011-06-01"
        << QStringList{
               "a 2011-05-01 00:00 > 2011-05-02 00:00", "a 2011-05-02 00:00 > 2011-05-03 00:00",
               "a 2011-05-05 20:00 > 2011-05-05 21:00", "a 2011-05-06 20:00 > 2011-05-06 21:00",
               "a 2011-05-13 00:00 > 2011-05-15 00:00", "a 2011-05-14 00:00 > 2011-05-16 00:00"};
}

void addIdentifierRows()
{
    QTest::newRow("instead of starts that the clock skips, zoned and floating")
        << Build([](Calendar &c) {
               for (const QByteArray &zone : {QByteArray("Europe/Helsinki"), QByteArray()}) {
                   const auto series =
                       recurring(newEvent(zone.isEmpty() ? "floating" : "zoned", "2011-03-26T03:30",
                                          "2011-03-26T03:45", zone),
                                 "FREQ=DAILY;COUNT=3");
                   c.addEvent(series);
                   c.addEvent(exception(series, at("2011-03-27T04:30", zone), "2011-03-27T09:00",
                                        "2011-03-27T09:15"));
                   series->recurrence()->addExDateTime(at("2011-03-26T03:30", zone));
               }
           })
        << "2011-03-20"
        << "2011-04-01"
        << QStringList{"floating 2011-03-27 09:00 > 2011-03-27 09:15",
                       "zoned 2011-03-27 09:00 > 2011-03-27 09:15",
                       "floating 2011-03-28 03:30 > 2011-03-28 03:45",
                       "zoned 2011-03-28 03:30 > 2011-03-28 03:45"};
    QTest::newRow("all-day, named in the zone of another program")
        << Build([](Calendar &c) {
               const auto series =
                   recurring(newEvent("a", "2011-05-01", "2011-05-02"), "FREQ=DAILY;COUNT=3");
               c.addEvent(series);
               c.addEvent(exception(series, at("2011-05-02", "America/New_York"), "2011-05-20",
                                    "2011-05-21"));
               c.addEvent(
                   exception(series, at("2011-05-02T21:00", "UTC"), "2011-05-21", "2011-05-22"));
           })
        << "2011-05-01"
        << "2011-06-01"
        << QStringList{"a 2011-05-01 00:00 > 2011-05-02 00:00",
                       "a 2011-05-20 00:00 > 2011-05-21 00:00",
                       "a 2011-05-21 00:00 > 2011-05-22 00:00"};
}
} // namespace

/// What stands in for single occurrences of a series.
class TestExceptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expanded_data();
    void expanded();
    void handedOver();
    void textsOfLaterOnes();
    void rangesFollowThem();
};

void TestExceptions::expanded_data()
{
    QTest::addColumn<Build>("build");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QStringList>("expected");

    addMovedRows();
    addSingleRows();
    addFromThereRows();
    addIdentifierRows();
}

void TestExceptions::expanded()
{
    QFETCH(Build, build);
    QFETCH(QString, from);
    QFETCH(QString, to);
    ExtendedCalendar calendar{QTimeZone("Europe/Helsinki")};
    build(calendar);
    QTEST(agenda(calendar, from, to), "expected");
}

void TestExceptions::handedOver()
{
    const ExtendedCalendar calendar{QTimeZone("Europe/Helsinki")};
    const auto series = weekly();
    const auto moved = instead(series, "2011-05-18T15:00", "2011-05-18T17:00");
    const KDateTime from(at("2011-05-16"));
    const KDateTime to(at("2011-05-23"));
    const QStringList expected{"a 2011-05-18 15:00 > 2011-05-18 17:00"};

    KCalCore::Incidence::List both{series, moved};
    QCOMPARE(shown(calendar.expandRecurrences(&both, from, to, 10)), expected);
    KCalCore::Incidence::List alone{moved};
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
    const auto changed = instead(series, "2011-05-16T12:00", "2011-05-16T13:00");
    changed->setSummary(QStringLiteral("new"), false);
    addFromThere(calendar, changed);
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
    const auto later = instead(series, "2011-05-19T10:00", "2011-05-19T11:00");
    addFromThere(calendar, later);
    QCOMPARE(calendar.rawEventsForDate(lastDay), KCalCore::Event::List{series});
    calendar.deleteEvent(later);
    QVERIFY(calendar.rawEvents(lastDay, lastDay).isEmpty());
}

CALENDAR_TEST_MAIN(TestExceptions, "Europe/Helsinki")
#include "tst_exceptions.moc"
