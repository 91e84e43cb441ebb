// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendarscene.h"

using namespace CalendarScene;
using mKCal::ExtendedCalendar;

namespace
{
using Build = KCalCore::Incidence::Ptr (*)(ExtendedCalendar &);
} // namespace

Q_DECLARE_METATYPE(Build)

namespace
{
KCalCore::Event::Ptr meeting(const QString &rule, const QString &start)
{
    const QString end = at(start).addSecs(3600).toString(Qt::ISODate).left(16);
    return recurring(newEvent("a", start, end), rule);
}

template <typename Pointer>
KCalCore::Incidence::Ptr added(ExtendedCalendar &calendar, const Pointer &incidence)
{
    calendar.addIncidence(incidence, "home");
    return incidence;
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

void row(const char *name, const KDateTime &cut, int later, Build build)
{
    QTest::newRow(name) << build << cut << later;
}

void addRuleRows()
{
    const KDateTime inJune(at("2011-06-06T10:00"));
    row("endless, over both clock changes", inJune, 30, [](ExtendedCalendar &c) {
        return added(c, meeting("FREQ=WEEKLY;UNTIL=20111231T000000Z", "2011-03-07T10:00"));
    });
    row("endless", inJune, 83,
        [](ExtendedCalendar &c) { return added(c, meeting("FREQ=WEEKLY", "2011-03-07T10:00")); });
    row("asked for in UTC", KDateTime(at("2011-06-06T07:00", "UTC")), 83,
        [](ExtendedCalendar &c) { return added(c, meeting("FREQ=WEEKLY", "2011-03-07T10:00")); });
}

void addCountRows()
{
    const KDateTime inJune(at("2011-06-06T10:00"));
    row("COUNT", inJune, 7, [](ExtendedCalendar &c) {
        return added(c, meeting("FREQ=WEEKLY;COUNT=20", "2011-03-07T10:00"));
    });
    row("COUNT, only the last one later", KDateTime(at("2011-07-18T10:00")), 1,
        [](ExtendedCalendar &c) {
            return added(c, meeting("FREQ=WEEKLY;COUNT=20", "2011-03-07T10:00"));
        });
    row("COUNT with excluded ones on both sides", inJune, 6, [](ExtendedCalendar &c) {
        const auto series = meeting("FREQ=WEEKLY;COUNT=20", "2011-03-07T10:00");
        series->recurrence()->addExDateTime(at("2011-03-21T10:00"));
        series->recurrence()->addExDate(QDate(2011, 6, 13));
        return added(c, series);
    });
    row("COUNT, start off the rule", KDateTime(at("2011-03-24T10:00")), 3, [](ExtendedCalendar &c) {
        return added(c, meeting("FREQ=WEEKLY;BYDAY=TH;COUNT=5", "2011-03-07T10:00"));
    });
    row("two days every other week, cut in mid-week", KDateTime(at("2011-03-10T10:00")), 43 + 52,
        [](ExtendedCalendar &c) {
            return added(c, meeting("FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,TH", "2011-03-07T10:00"));
        });
    row("last day of the month", KDateTime(at("2011-05-31T10:00")), 20, [](ExtendedCalendar &c) {
        return added(c, meeting("FREQ=MONTHLY;BYMONTHDAY=-1", "2011-01-31T10:00"));
    });
}

void addClockRows()
{
    row("all-day, over the short day", KDateTime(QDate(2011, 3, 27)), 5, [](ExtendedCalendar &c) {
        return added(
            c, recurring(newEvent("a", "2011-03-20", "2011-03-22"), "FREQ=DAILY;UNTIL=20110331"));
    });
    row("all-day with excluded dates", KDateTime(QDate(2011, 10, 30)), 9, [](ExtendedCalendar &c) {
        const auto series =
            recurring(newEvent("a", "2011-10-20", "2011-10-21"), "FREQ=DAILY;COUNT=20");
        series->recurrence()->addExDate(QDate(2011, 10, 25));
        series->recurrence()->addExDate(QDate(2011, 11, 1));
        return added(c, series);
    });
    row("a skipped start before the cut", KDateTime(at("2011-03-29T03:30")), 3,
        [](ExtendedCalendar &c) {
            return added(c, meeting("FREQ=DAILY;COUNT=6", "2011-03-26T03:30"));
        });
    row("floating", KDateTime(at("2011-10-30T10:00", "")), 6, [](ExtendedCalendar &c) {
        return added(c,
                     recurring(newEvent("a", "2011-10-26T10:00", "2011-10-26T11:00", ""),
                               "FREQ=DAILY;COUNT=10"));
    });
    row("another zone", KDateTime(at("2011-03-14T10:00", "America/New_York")), 6,
        [](ExtendedCalendar &c) {
            return added(
                c,
                recurring(newEvent("a", "2011-03-10T10:00", "2011-03-10T11:00", "America/New_York"),
                          "FREQ=DAILY;COUNT=10"));
        });
}

void addDateRows()
{
    row("RDATEs and a period on both sides", KDateTime(at("2011-05-09T10:00")), 5,
        [](ExtendedCalendar &c) {
            const auto series = meeting("FREQ=WEEKLY;COUNT=4", "2011-05-02T10:00");
            for (const char *time : {"2011-05-04T12:00", "2011-05-11T12:00"}) {
                series->recurrence()->addRDateTime(at(time));
            }
            series->recurrence()->addRDateTimePeriod(
                KCalCore::Period(at("2011-05-05T12:00"), at("2011-05-05T22:00")));
            series->recurrence()->addRDateTimePeriod(
                KCalCore::Period(at("2011-06-05T12:00"), at("2011-06-05T22:00")));
            return added(c, series);
        });
    row("cut at an RDATE", KDateTime(at("2011-05-12T10:00")), 3, [](ExtendedCalendar &c) {
        const auto series = meeting("FREQ=WEEKLY;COUNT=4", "2011-05-02T10:00");
        series->recurrence()->addRDateTime(at("2011-05-12T10:00"));
        return added(c, series);
    });
    row("EXRULE", KDateTime(at("2011-05-09T10:00")), 6, [](ExtendedCalendar &c) {
        const auto series = meeting("FREQ=DAILY;COUNT=14", "2011-05-02T10:00");
        auto *rule = new KCalCore::RecurrenceRule;
        rule->setRecurrenceType(KCalCore::RecurrenceRule::rWeekly);
        rule->setFrequency(1);
        rule->setByDays({KCalCore::RecurrenceRule::WDayPos(0, 3)});
        rule->setDuration(-1);
        rule->setStartDt(series->dtStart());
        series->recurrence()->addExRule(rule);
        return added(c, series);
    });
}

void addExceptionRows()
{
    row("exceptions moved over the cut, both ways", KDateTime(at("2011-05-16T10:00")), 3,
        [](ExtendedCalendar &c) {
            const auto series = meeting("FREQ=WEEKLY;COUNT=5", "2011-05-02T10:00");
            added(c, series);
            added(
                c,
                exception(series, at("2011-05-09T10:00"), "2011-06-09T10:00", "2011-06-09T11:00"));
            added(
                c,
                exception(series, at("2011-05-23T10:00"), "2011-05-03T10:00", "2011-05-03T11:00"));
            return KCalCore::Incidence::Ptr(series);
        });
    row("an exception at the cut", KDateTime(at("2011-05-16T10:00")), 3, [](ExtendedCalendar &c) {
        const auto series = meeting("FREQ=WEEKLY;COUNT=5", "2011-05-02T10:00");
        added(c, series);
        added(c, exception(series, at("2011-05-16T10:00"), "2011-05-15T10:00", "2011-05-15T11:00"));
        return KCalCore::Incidence::Ptr(series);
    });
    row("an exception from there on before the cut", KDateTime(at("2011-05-23T10:00")), 2,
        [](ExtendedCalendar &c) {
            const auto series = meeting("FREQ=WEEKLY;COUNT=5", "2011-05-02T10:00");
            added(c, series);
            const auto later =
                exception(series, at("2011-05-09T10:00"), "2011-05-10T15:00", "2011-05-10T18:00");
            later->setThisAndFuture(true);
            added(c, later);
            return KCalCore::Incidence::Ptr(series);
        });
    row("to-do with start and due date", KDateTime(at("2011-05-09T09:00")), 3,
        [](ExtendedCalendar &c) {
            const auto task = newTodo("a", "2011-05-04T18:00");
            task->setDtStart(at("2011-05-02T09:00"));
            return added(c, recurring(task, "FREQ=WEEKLY;COUNT=4"));
        });
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
    void dissociateException();
    void dissociateRefused();
    void dissociateCarriesOn();

private:
    std::unique_ptr<ExtendedCalendar> m_calendar;
};

void TestSeries::init()
{
    m_calendar = std::make_unique<ExtendedCalendar>(QTimeZone("Europe/Helsinki"));
    QVERIFY(m_calendar->addNotebook("home", true));
    QVERIFY(m_calendar->addNotebook("work", true));
    QVERIFY(m_calendar->setDefaultNotebook("work"));
}

void TestSeries::split_data()
{
    QTest::addColumn<Build>("build");
    QTest::addColumn<KDateTime>("cut");
    QTest::addColumn<int>("later");

    addRuleRows();
    addCountRows();
    addClockRows();
    addDateRows();
    addExceptionRows();
}

void TestSeries::split()
{
    QFETCH(Build, build);
    QFETCH(KDateTime, cut);
    const auto series = build(*m_calendar);
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
    const auto series = meeting("FREQ=WEEKLY;COUNT=20", "2011-03-07T10:00");
    series->setSummary("Choir", false);
    added(*m_calendar, series);
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
    QTest::addColumn<Build>("build");
    QTest::addColumn<KDateTime>("cut");

    const Build weekly = [](ExtendedCalendar &c) {
        return added(c, meeting("FREQ=WEEKLY;COUNT=5", "2011-05-02T10:00"));
    };
    QTest::newRow("the first") << weekly << KDateTime(at("2011-05-02T10:00"));
    QTest::newRow("no occurrence") << weekly << KDateTime(at("2011-05-03T10:00"));
    QTest::newRow("after the last") << weekly << KDateTime(at("2011-06-06T10:00"));
    QTest::newRow("invalid") << weekly << KDateTime();
    QTest::newRow("does not recur")
        << Build([](ExtendedCalendar &c) { return added(c, newEvent("a", "2011-05-02T10:00")); })
        << KDateTime(at("2011-05-02T10:00"));
    QTest::newRow("not in the calendar") << Build([](ExtendedCalendar &) {
        return KCalCore::Incidence::Ptr(meeting("FREQ=DAILY", "2011-05-02T10:00"));
    }) << KDateTime(at("2011-05-03T10:00"));
    QTest::newRow("a rule that counts its steps from the start") << Build([](ExtendedCalendar &c) {
        const auto series = meeting("FREQ=DAILY;INTERVAL=5;COUNT=9", "2011-05-02T10:00");
        series->recurrence()->addRDateTime(at("2011-05-09T10:00"));
        return added(c, series);
    }) << KDateTime(at("2011-05-09T10:00"));
}

void TestSeries::splitRefused()
{
    QFETCH(Build, build);
    QFETCH(KDateTime, cut);
    const auto series = build(*m_calendar);
    const QStringList before = times(*m_calendar);
    QVERIFY(!m_calendar->splitSeries(series, cut));
    QCOMPARE(times(*m_calendar), before);
}

void TestSeries::dissociate_data()
{
    QTest::addColumn<Build>("build");
    QTest::addColumn<KDateTime>("occurrence");
    QTest::addColumn<QString>("start");

    const Build daily = [](ExtendedCalendar &c) {
        return added(c, meeting("FREQ=DAILY;COUNT=9", "2011-03-24T03:30"));
    };
    const auto row = [](const char *name, const KDateTime &occurrence, const QString &start,
                        Build build) { QTest::newRow(name) << build << occurrence << start; };
    row("in mid-series", KDateTime(at("2011-03-25T03:30")), "2011-03-25T03:30", daily);
    row("asked for in UTC", KDateTime(at("2011-03-25T01:30", "UTC")), "2011-03-25T03:30", daily);
    row("the first", KDateTime(at("2011-03-24T03:30")), "2011-03-24T03:30", daily);
    row("one that the clock skips", KDateTime(at("2011-03-27T04:30")), "2011-03-27T04:30", daily);
    row("all-day over the short day", KDateTime(QDate(2011, 3, 26)), "2011-03-26T00:00",
        [](ExtendedCalendar &c) {
            return added(
                c, recurring(newEvent("a", "2011-03-20", "2011-03-22"), "FREQ=DAILY;COUNT=9"));
        });
    row("an RDATE period", KDateTime(at("2011-05-05T12:00")), "2011-05-05T12:00",
        [](ExtendedCalendar &c) {
            const auto series = meeting("FREQ=DAILY;COUNT=2", "2011-05-02T10:00");
            series->recurrence()->addRDateTimePeriod(
                KCalCore::Period(at("2011-05-05T12:00"), at("2011-05-05T22:00")));
            return added(c, series);
        });
    row("after an exception from there on", KDateTime(at("2011-05-24T15:00")), "2011-05-24T15:00",
        [](ExtendedCalendar &c) {
            const auto series = meeting("FREQ=WEEKLY;COUNT=5", "2011-05-02T10:00");
            added(c, series);
            const auto later =
                exception(series, at("2011-05-09T10:00"), "2011-05-10T15:00", "2011-05-10T18:00");
            later->setThisAndFuture(true);
            added(c, later);
            return KCalCore::Incidence::Ptr(series);
        });
    row("to-do", KDateTime(at("2011-05-09T09:00")), "2011-05-09T09:00", [](ExtendedCalendar &c) {
        const auto task = newTodo("a", "2011-05-04T18:00");
        task->setDtStart(at("2011-05-02T09:00"));
        return added(c, recurring(task, "FREQ=WEEKLY;COUNT=4"));
    });
}

void TestSeries::dissociate()
{
    QFETCH(Build, build);
    QFETCH(KDateTime, occurrence);
    const auto series = build(*m_calendar);
    const QStringList before = times(*m_calendar);
    const auto detached =
        m_calendar->dissociateSingleOccurrence(series, occurrence, occurrence.timeSpec());
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
    QVERIFY(!m_calendar->dissociateSingleOccurrence(series, occurrence, occurrence.timeSpec()));
}

void TestSeries::dissociateException()
{
    const auto series = meeting("FREQ=WEEKLY;COUNT=5", "2011-05-02T10:00");
    added(*m_calendar, series);
    const auto moved =
        exception(series, at("2011-05-09T10:00"), "2011-05-10T15:00", "2011-05-10T18:00");
    added(*m_calendar, moved);
    const QStringList before = times(*m_calendar);
    const KDateTime occurrence(at("2011-05-09T10:00"));
    const auto detached =
        m_calendar->dissociateSingleOccurrence(series, occurrence, occurrence.timeSpec());
    QVERIFY(detached);
    QCOMPARE(detached->dtStart(), at("2011-05-10T15:00"));
    QCOMPARE(times(*m_calendar), before);
    QVERIFY(!m_calendar->incidence("a", occurrence));
}

void TestSeries::dissociateRefused()
{
    const auto series = meeting("FREQ=WEEKLY;COUNT=5", "2011-05-02T10:00");
    added(*m_calendar, series);
    const auto cancelled =
        exception(series, at("2011-05-09T10:00"), "2011-05-09T10:00", "2011-05-09T11:00");
    cancelled->setStatus(KCalCore::Incidence::StatusCanceled);
    added(*m_calendar, cancelled);
    const auto once = newEvent("once", "2011-05-02T10:00");
    added(*m_calendar, once);
    const auto spec = KDateTime::Spec::LocalZone();
    const QStringList before = times(*m_calendar);
    for (const char *time : {"2011-05-03T10:00", "2011-05-09T10:00", "2011-06-06T10:00"}) {
        QVERIFY(!m_calendar->dissociateSingleOccurrence(series, KDateTime(at(time)), spec));
    }
    QVERIFY(!m_calendar->dissociateSingleOccurrence(once, KDateTime(once->dtStart()), spec));
    QVERIFY(!m_calendar->dissociateSingleOccurrence({}, KDateTime(once->dtStart()), spec));
    QVERIFY(!m_calendar->dissociateSingleOccurrence(series, KDateTime(), spec));
    QCOMPARE(times(*m_calendar), before);
}

void TestSeries::dissociateCarriesOn()
{
    // What counts from an occurrence on goes on counting when that one is taken out.
    const auto series = meeting("FREQ=WEEKLY;COUNT=5", "2011-05-02T10:00");
    added(*m_calendar, series);
    const auto later =
        exception(series, at("2011-05-09T10:00"), "2011-05-10T15:00", "2011-05-10T18:00");
    later->setThisAndFuture(true);
    added(*m_calendar, later);
    const QStringList before = times(*m_calendar);
    const KDateTime occurrence(at("2011-05-09T10:00"));
    QVERIFY(m_calendar->dissociateSingleOccurrence(series, occurrence, occurrence.timeSpec()));
    QCOMPARE(times(*m_calendar), before);
}

CALENDAR_TEST_MAIN(TestSeries, "Europe/Helsinki")
#include "tst_series.moc"
