// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendarscene.h"
#include "testtable.h"

using namespace CalendarScene;
using mKCal::ExtendedCalendar;

namespace
{
using Incidence = KCalCore::Incidence;

KCalCore::Todo::Ptr task()
{
    const auto task = newTodo("a", "2011-05-04T18:00");
    task->setDtStart(at("2011-05-02T09:00"));
    return recurring(task, "FREQ=WEEKLY;COUNT=4");
}

/// Five weeks from 2 May on, with the second meeting changed, as are those after it if asked for.
Family withMoved(bool andLater)
{
    const auto series = meeting("FREQ=WEEKLY;COUNT=5");
    const auto moved =
        exception(series, at("2011-05-09T10:00"), "2011-05-10T15:00", "2011-05-10T18:00");
    moved->setThisAndFuture(andLater);
    return {series, moved};
}

void addPeriod(const KCalCore::Event::Ptr &series, const QString &start, const QString &end)
{
    series->recurrence()->addRDateTimePeriod(KCalCore::Period(at(start), at(end)));
}

/// What is shown, whatever it is called.
QStringList times(const ExtendedCalendar &calendar)
{
    QStringList lines = agenda(calendar, "2011-01-01", "2013-01-01");
    for (QString &line : lines) {
        line.remove(0, line.indexOf(QLatin1Char(' ')) + 1);
    }
    return lines;
}

/// The first one is the series.
void row(const char *name, const Family &family, const KDateTime &cut, int later)
{
    addRow(name, family, cut, later);
}

void addRuleRows()
{
    const QString march("2011-03-07T10:00");
    const KDateTime inJune(at("2011-06-06T10:00"));
    row("until, over both clock changes", {meeting("FREQ=WEEKLY;UNTIL=20111231T000000Z", march)},
        inJune, 30);
    row("endless", {meeting("FREQ=WEEKLY", march)}, inJune, 83);
    row("asked for in UTC", {meeting("FREQ=WEEKLY", march)},
        KDateTime(at("2011-06-06T07:00", "UTC")), 83);
    row("COUNT", {meeting("FREQ=WEEKLY;COUNT=20", march)}, inJune, 7);
    row("COUNT, only the last one later", {meeting("FREQ=WEEKLY;COUNT=20", march)},
        KDateTime(at("2011-07-18T10:00")), 1);
    const auto excluded = meeting("FREQ=WEEKLY;COUNT=20", march);
    excluded->recurrence()->addExDateTime(at("2011-03-21T10:00"));
    excluded->recurrence()->addExDate(QDate(2011, 6, 13));
    row("COUNT with excluded ones on both sides", {excluded}, inJune, 6);
    row("COUNT, start off the rule", {meeting("FREQ=WEEKLY;BYDAY=TH;COUNT=5", march)},
        KDateTime(at("2011-03-24T10:00")), 3);
    row("two days every other week, cut in mid-week",
        {meeting("FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,TH", march)}, KDateTime(at("2011-03-10T10:00")),
        43 + 52);
    row("last day of the month", {meeting("FREQ=MONTHLY;BYMONTHDAY=-1", "2011-01-31T10:00")},
        KDateTime(at("2011-05-31T10:00")), 20);
}

void addClockRows()
{
    row("all-day, over the short day",
        {series("FREQ=DAILY;UNTIL=20110331", "2011-03-20", "2011-03-22")},
        KDateTime(QDate(2011, 3, 27)), 5);
    const auto excluded = series("FREQ=DAILY;COUNT=20", "2011-10-20", "2011-10-21");
    excluded->recurrence()->addExDate(QDate(2011, 10, 25));
    excluded->recurrence()->addExDate(QDate(2011, 11, 1));
    row("all-day with excluded dates", {excluded}, KDateTime(QDate(2011, 10, 30)), 9);
    row("a skipped start before the cut", {meeting("FREQ=DAILY;COUNT=6", "2011-03-26T03:30")},
        KDateTime(at("2011-03-29T03:30")), 3);
    row("floating", {series("FREQ=DAILY;COUNT=10", "2011-10-26T10:00", "2011-10-26T11:00", "")},
        KDateTime(at("2011-10-30T10:00", "")), 6);
    const QByteArray newYork("America/New_York");
    row("another zone",
        {series("FREQ=DAILY;COUNT=10", "2011-03-10T10:00", "2011-03-10T11:00", newYork)},
        KDateTime(at("2011-03-14T10:00", newYork)), 6);
}

void addDateRows()
{
    const auto dates = meeting("FREQ=WEEKLY;COUNT=4");
    for (const char *time : {"2011-05-04T12:00", "2011-05-11T12:00"}) {
        dates->recurrence()->addRDateTime(at(time));
    }
    addPeriod(dates, "2011-05-05T12:00", "2011-05-05T22:00");
    addPeriod(dates, "2011-06-05T12:00", "2011-06-05T22:00");
    row("RDATEs and a period on both sides", {dates}, KDateTime(at("2011-05-09T10:00")), 5);
    const auto cutAtDate = meeting("FREQ=WEEKLY;COUNT=4");
    cutAtDate->recurrence()->addRDateTime(at("2011-05-12T10:00"));
    row("cut at an RDATE", {cutAtDate}, KDateTime(at("2011-05-12T10:00")), 3);
    const auto notWednesdays = meeting("FREQ=DAILY;COUNT=14");
    auto *rule = new KCalCore::RecurrenceRule;
    rule->setRecurrenceType(KCalCore::RecurrenceRule::rWeekly);
    rule->setFrequency(1);
    rule->setByDays({KCalCore::RecurrenceRule::WDayPos(0, 3)});
    rule->setDuration(-1);
    rule->setStartDt(notWednesdays->dtStart());
    notWednesdays->recurrence()->addExRule(rule);
    row("EXRULE", {notWednesdays}, KDateTime(at("2011-05-09T10:00")), 6);
}

void addExceptionRows()
{
    const auto series = meeting("FREQ=WEEKLY;COUNT=5");
    row("exceptions moved over the cut, both ways",
        {series, exception(series, at("2011-05-09T10:00"), "2011-06-09T10:00", "2011-06-09T11:00"),
         exception(series, at("2011-05-23T10:00"), "2011-05-03T10:00", "2011-05-03T11:00")},
        KDateTime(at("2011-05-16T10:00")), 3);
    const auto other = meeting("FREQ=WEEKLY;COUNT=5");
    row("an exception at the cut",
        {other, exception(other, at("2011-05-16T10:00"), "2011-05-15T10:00", "2011-05-15T11:00")},
        KDateTime(at("2011-05-16T10:00")), 3);
    row("an exception from there on before the cut", withMoved(true),
        KDateTime(at("2011-05-23T10:00")), 2);
    row("to-do with start and due date", {task()}, KDateTime(at("2011-05-09T09:00")), 3);
}
} // namespace

/// Cutting series and taking occurrences out of them.
class TestSeries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void split_data();
    void split();
    void splitParts();
    void splitRefused_data();
    void splitRefused();
    void dissociate_data();
    void dissociate();
    void dissociateException_data();
    void dissociateException();
    void dissociateRefused();

private:
    /// The first one, which is the series.
    Incidence::Ptr add(const Family &family);
    Incidence::Ptr dissociate(const Incidence::Ptr &series, const KDateTime &occurrence)
    {
        return m_calendar->dissociateSingleOccurrence(series, occurrence, occurrence.timeSpec());
    }

    std::unique_ptr<ExtendedCalendar> m_calendar;
};

void TestSeries::init()
{
    m_calendar = std::make_unique<ExtendedCalendar>(QTimeZone("Europe/Helsinki"));
    QVERIFY(m_calendar->addNotebook("home", true));
    QVERIFY(m_calendar->addNotebook("work", true));
    QVERIFY(m_calendar->setDefaultNotebook("work"));
}

Incidence::Ptr TestSeries::add(const Family &family)
{
    for (const auto &incidence : family) {
        m_calendar->addIncidence(incidence, "home");
    }
    return family.first();
}

void TestSeries::split_data()
{
    addColumns<Family, KDateTime, int>("family", "cut", "later");
    addRuleRows();
    addClockRows();
    addDateRows();
    addExceptionRows();
}

void TestSeries::split()
{
    QFETCH(Family, family);
    QFETCH(KDateTime, cut);
    const auto series = add(family);
    const QStringList before = times(*m_calendar);
    const auto later = m_calendar->splitSeries(series, cut);
    QVERIFY(later);
    QCOMPARE(times(*m_calendar), before);
    QVERIFY(later->uid() != series->uid());
    QCOMPARE(later->dtStart().timeSpec(), series->dtStart().timeSpec());
    QCOMPARE(later->allDay(), series->allDay());
    QCOMPARE(m_calendar->notebook(later), QStringLiteral("home"));
    m_calendar->deleteIncidence(series);
    QTEST(times(*m_calendar).size(), "later");
}

void TestSeries::splitParts()
{
    const auto series = add({meeting("FREQ=WEEKLY;COUNT=20", "2011-03-07T10:00")});
    series->setSummary("Choir", false);
    const auto later = m_calendar->splitSeries(series, KDateTime(at("2011-06-06T10:00")));
    QVERIFY(later);
    QCOMPARE(series->recurrence()->duration(), 13);
    QCOMPARE(later->recurrence()->duration(), 7);
    QCOMPARE(later->dtStart(), at("2011-06-06T10:00"));
    QCOMPARE(later->summary(), QStringLiteral("Choir"));
    QVERIFY(m_calendar->rawEvents(QDate(2011, 6, 7), QDate(2011, 6, 8))
            == KCalCore::Event::List{later.dynamicCast<KCalCore::Event>()});
}

void TestSeries::splitRefused_data()
{
    addColumns<Family, KDateTime, bool>("family", "cut", "isAdded");
    const auto row = [](const char *name, const Incidence::Ptr &series, const KDateTime &cut,
                        bool isAdded = true) { addRow(name, Family{series}, cut, isAdded); };
    const QString weekly("FREQ=WEEKLY;COUNT=5");
    row("the first", meeting(weekly), KDateTime(at("2011-05-02T10:00")));
    row("no occurrence", meeting(weekly), KDateTime(at("2011-05-03T10:00")));
    row("after the last", meeting(weekly), KDateTime(at("2011-06-06T10:00")));
    row("invalid", meeting(weekly), KDateTime());
    row("does not recur", newEvent("a", "2011-05-02T10:00"), KDateTime(at("2011-05-02T10:00")));
    row("not in the calendar", meeting("FREQ=DAILY"), KDateTime(at("2011-05-03T10:00")), false);
    const auto counting = meeting("FREQ=DAILY;INTERVAL=5;COUNT=9");
    counting->recurrence()->addRDateTime(at("2011-05-09T10:00"));
    row("a rule that counts its steps from the start", counting, KDateTime(at("2011-05-09T10:00")));
}

void TestSeries::splitRefused()
{
    QFETCH(Family, family);
    QFETCH(KDateTime, cut);
    QFETCH(bool, isAdded);
    if (isAdded) {
        add(family);
    }
    const QStringList before = times(*m_calendar);
    QVERIFY(!m_calendar->splitSeries(family.first(), cut));
    QCOMPARE(times(*m_calendar), before);
}

void TestSeries::dissociate_data()
{
    addColumns<Family, KDateTime, QString>("family", "occurrence", "start");
    const auto row = [](const char *name, const Family &family, const KDateTime &occurrence,
                        const QString &start) { addRow(name, family, occurrence, start); };
    const auto daily = [] { return Family{meeting("FREQ=DAILY;COUNT=9", "2011-03-24T03:30")}; };
    row("in mid-series", daily(), KDateTime(at("2011-03-25T03:30")), "2011-03-25T03:30");
    row("asked for in UTC", daily(), KDateTime(at("2011-03-25T01:30", "UTC")), "2011-03-25T03:30");
    row("the first", daily(), KDateTime(at("2011-03-24T03:30")), "2011-03-24T03:30");
    row("one that the clock skips", daily(), KDateTime(at("2011-03-27T04:30")), "2011-03-27T04:30");
    row("all-day over the short day", {series("FREQ=DAILY;COUNT=9", "2011-03-20", "2011-03-22")},
        KDateTime(QDate(2011, 3, 26)), "2011-03-26T00:00");
    const auto periods = meeting("FREQ=DAILY;COUNT=2");
    addPeriod(periods, "2011-05-05T12:00", "2011-05-05T22:00");
    row("an RDATE period", {periods}, KDateTime(at("2011-05-05T12:00")), "2011-05-05T12:00");
    row("after an exception from there on", withMoved(true), KDateTime(at("2011-05-24T15:00")),
        "2011-05-24T15:00");
    row("to-do", {task()}, KDateTime(at("2011-05-09T09:00")), "2011-05-09T09:00");
}

void TestSeries::dissociate()
{
    QFETCH(Family, family);
    QFETCH(KDateTime, occurrence);
    const auto series = add(family);
    const QStringList before = times(*m_calendar);
    const auto detached = dissociate(series, occurrence);
    QVERIFY(detached);
    QCOMPARE(times(*m_calendar), before);
    QTEST(detached->dtStart().toString(Qt::ISODate).left(16), "start");
    QVERIFY(!detached->recurs());
    QVERIFY(!detached->hasRecurrenceId());
    QCOMPARE(detached->uid().size(), 36);
    QCOMPARE(detached->dtStart().timeSpec(), series->dtStart().timeSpec());
    QCOMPARE(m_calendar->notebook(detached), QStringLiteral("home"));
    m_calendar->deleteIncidence(detached);
    QCOMPARE(times(*m_calendar).size(), before.size() - 1);
    // Once is enough.
    QVERIFY(!dissociate(series, occurrence));
}

void TestSeries::dissociateException_data()
{
    QTest::addColumn<bool>("andLater");
    addRow("alone", false);
    // What counts from an occurrence on goes on counting when that one is taken out.
    addRow("with those that follow", true);
}

void TestSeries::dissociateException()
{
    QFETCH(bool, andLater);
    const auto series = add(withMoved(andLater));
    const QStringList before = times(*m_calendar);
    const KDateTime occurrence(at("2011-05-09T10:00"));
    const auto detached = dissociate(series, occurrence);
    QVERIFY(detached);
    QCOMPARE(detached->dtStart(), at("2011-05-10T15:00"));
    QCOMPARE(times(*m_calendar), before);
    QVERIFY(!m_calendar->incidence("a", occurrence));
}

void TestSeries::dissociateRefused()
{
    const auto series = meeting("FREQ=WEEKLY;COUNT=5");
    const auto cancelled =
        exception(series, at("2011-05-09T10:00"), "2011-05-09T10:00", "2011-05-09T11:00");
    cancelled->setStatus(Incidence::StatusCanceled);
    const auto once = newEvent("once", "2011-05-02T10:00");
    add({series, cancelled, once});
    const QStringList before = times(*m_calendar);
    for (const char *time : {"2011-05-03T10:00", "2011-05-09T10:00", "2011-06-06T10:00"}) {
        QVERIFY(!dissociate(series, KDateTime(at(time))));
    }
    QVERIFY(!dissociate(once, KDateTime(once->dtStart())));
    QVERIFY(!dissociate({}, KDateTime(once->dtStart())));
    QVERIFY(!dissociate(series, KDateTime()));
    QCOMPARE(times(*m_calendar), before);
}

CALENDAR_TEST_MAIN(TestSeries, "Europe/Helsinki")
#include "tst_series.moc"
