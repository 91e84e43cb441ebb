// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendarscene.h"
#include "testtable.h"

using namespace CalendarScene;
using mKCal::ExtendedCalendar;

/// Caps, rules beyond reason, and the pieces of what lasts over midnight.
class TestExpansionLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cap_data();
    void cap();
    void absurdRules_data();
    void absurdRules();
    void pieces_data();
    void pieces();
    void capOfPieces();
    void seam();

private:
    const ExtendedCalendar m_calendar{QTimeZone("Europe/Helsinki")};
};

void TestExpansionLimits::cap_data()
{
    addColumns<int, int, bool>("cap", "expected", "isHit");
    // Ten start in the window, two are running when it begins.
    addRow("enough", 11, 12, false);
    addRow("just reached", 10, 12, true);
    addRow("cut", 3, 5, true);
    addRow("none", 0, 2, true);
}

void TestExpansionLimits::cap()
{
    QFETCH(int, cap);
    QFETCH(bool, isHit);
    Family list{recurring(newEvent("a", "2011-05-01T12:00", "2011-05-03T13:00"), "FREQ=DAILY"),
                newEvent("once", "2011-05-10T09:00", "2011-05-10T10:00")};
    const KDateTime from(at("2011-05-10"));
    const KDateTime to(at("2011-05-20"));
    bool wasHit = false;
    const auto expanded = m_calendar.expandRecurrences(&list, from, to, cap, &wasHit);
    QTEST(expanded.size() - 1, "expected");
    QCOMPARE(wasHit, isHit);

    wasHit = true;
    Family none;
    QVERIFY(m_calendar.expandRecurrences(&none, from, to, cap, &wasHit).isEmpty());
    QVERIFY(wasHit);
}

void TestExpansionLimits::absurdRules_data()
{
    addColumns<QString, QString, int>("rule", "start", "inMay2011");
    const auto row = [](const QString &rule, const QString &start, int inMay2011) {
        addRow(qPrintable(rule), rule, start, inMay2011);
    };
    row("FREQ=SECONDLY", "2011-05-01T00:00", 1000);
    row("FREQ=MINUTELY", "1961-05-01T00:00", 1000);
    row("FREQ=DAILY", "1961-05-01T08:00", 31);
    row("FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30", "2000-01-01T00:00", 0);
    row("FREQ=YEARLY;COUNT=3;BYMONTH=4;BYMONTHDAY=31", "2011-05-01T00:00", 1);
    // Not absurd at all.
    row("FREQ=YEARLY;BYMONTH=2,5;BYMONTHDAY=29", "2000-02-29T00:00", 1);
    // Still going on, and over.
    row("FREQ=DAILY;COUNT=20000", "1961-05-01T08:00", 31);
    row("FREQ=HOURLY;COUNT=20000", "1961-05-01T08:00", 0);
    row("FREQ=WEEKLY;COUNT=2000000000;BYDAY=MO,TU", "2011-05-02T08:00", 10);
    row("FREQ=YEARLY;COUNT=2000000000;BYDAY=MO", "2011-05-02T08:00", 5);
}

void TestExpansionLimits::absurdRules()
{
    QFETCH(QString, rule);
    QFETCH(QString, start);
    ExtendedCalendar calendar{QTimeZone("Europe/Helsinki")};
    const QString end = at(start).addYears(2).toString(Qt::ISODate).left(16);
    calendar.addEvent(recurring(newEvent("a", start), rule));
    QTEST(agenda(calendar, "2011-05-01", "2011-06-01").size(), "inMay2011");

    // Lasting two years, countless ones run at once.
    Family list{recurring(newEvent("b", start, end), rule)};
    const auto expanded = calendar.expandRecurrences(&list, KDateTime(at("2011-05-01")),
                                                     KDateTime(at("2011-06-01")), 1000);
    QVERIFY(expanded.size() <= 2000);
}

void TestExpansionLimits::pieces_data()
{
    addColumns<QString, QString, bool, QStringList>("start", "end", "merge", "expected");
    const auto row = [](const char *name, const QString &start, const QString &end, bool merge,
                        const QStringList &expected) { addRow(name, start, end, merge, expected); };
    row("cut at the start of the window", "2011-04-28T12:00", "2011-05-02T12:00", false,
        {"a 05-01 00:00 > 05-02 00:00", "a 05-02 00:00 > 12:00"});
    row("ends at midnight", "2011-05-02T12:00", "2011-05-04T00:00", false,
        {"a 05-02 12:00 > 05-03 00:00", "a 05-03 00:00 > 05-04 00:00"});
    row("no piece after the window", "2011-05-03T12:00", "2011-05-09T12:00", true,
        {"a 05-03 12:00 > 05-04 00:00", "a 05-04 00:00 > 05-05 00:00"});
    row("all-day", "2011-05-02", "2011-05-04", false,
        {"a 05-02 00:00 > 05-03 00:00", "a 05-03 00:00 > 05-04 00:00"});
    row("a single day, merged", "2011-05-02", "2011-05-03", true, {"a 05-02 00:00 > 05-03 00:00"});
    row("up to midnight is a single day", "2011-05-02T20:00", "2011-05-03T00:00", false, {});
    row("overnight, begun before the window", "2011-04-30T20:00", "2011-05-01T03:00", true,
        {"a 05-01 00:00 > 03:00"});
}

void TestExpansionLimits::pieces()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    QFETCH(bool, merge);
    Family list{newEvent("a", start, end)};
    const auto expanded = m_calendar.expandRecurrences(&list, KDateTime(at("2011-05-01")),
                                                       KDateTime(at("2011-05-05")), 4);
    const auto pieces =
        m_calendar.expandMultiDay(expanded, QDate(2011, 5, 1), QDate(2011, 5, 5), 4, merge);
    QTEST(shown(pieces), "expected");
}

void TestExpansionLimits::capOfPieces()
{
    Family list{recurring(newEvent("a", "2011-05-01T12:00", "2011-05-02T12:00"), "FREQ=DAILY"),
                newEvent("trip", "2011-05-01T10:00", "2011-05-09T10:00"),
                newEvent("one", "2011-05-02T09:00", "2011-05-02T10:00")};
    const QDate start(2011, 5, 1);
    const QDate end(2011, 5, 4);
    const auto expanded = m_calendar.expandRecurrences(&list, KDateTime(start), KDateTime(end), 10);
    bool isHit = false;
    const auto pieces = m_calendar.expandMultiDay(expanded, start, end, 3, true, &isHit);
    QVERIFY(isHit);
    const QStringList expected{"trip 05-01 10:00 > 05-02 00:00", "a 05-01 12:00 > 05-02 00:00",
                               "a 05-02 00:00 > 12:00",          "trip 05-02 00:00 > 05-03 00:00",
                               "one 05-02 09:00 > 10:00",        "a 05-02 12:00 > 05-03 00:00",
                               "trip 05-03 00:00 > 05-04 00:00"};
    QCOMPARE(shown(pieces), expected);
}

void TestExpansionLimits::seam()
{
    // Two windows that meet: what runs over the seam is in both, cut there into pieces once each.
    Family list{newEvent("a", "2011-05-02T20:00", "2011-05-03T04:00"),
                newEvent("b", "2011-05-03T00:00", "2011-05-03T01:00")};
    QStringList lines;
    for (const QDate &day : {QDate(2011, 5, 2), QDate(2011, 5, 3)}) {
        const QDate next = day.addDays(1);
        const auto expanded =
            m_calendar.expandRecurrences(&list, KDateTime(day), KDateTime(next), 1);
        lines += shown(m_calendar.expandMultiDay(expanded, day, next, 1, true));
    }
    const QStringList expected{"a 05-02 20:00 > 05-03 00:00", "b 05-03 00:00 > 01:00",
                               "a 05-03 00:00 > 04:00"};
    QCOMPARE(lines, expected);
}

CALENDAR_TEST_MAIN(TestExpansionLimits, "Europe/Helsinki")
#include "tst_expansionlimits.moc"
