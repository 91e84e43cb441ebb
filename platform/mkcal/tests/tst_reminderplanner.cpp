// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendar/reminderplanner.h"
#include "calendarscene.h"

using namespace CalendarScene;

namespace
{
KCalCore::Alarm::Ptr alarm(const KCalCore::Incidence::Ptr &incidence)
{
    KCalCore::Alarm::Ptr alarm = incidence->newAlarm();
    alarm->setDisplayAlarm(QStringLiteral("ring"));
    alarm->setEnabled(true);
    return alarm;
}

template <typename Pointer> Pointer ringing(const Pointer &incidence, int minutes)
{
    alarm(incidence)->setStartOffset(KCalCore::Duration(minutes * 60));
    return incidence;
}

template <typename Pointer> Pointer ringingAtEnd(const Pointer &incidence, int minutes)
{
    alarm(incidence)->setEndOffset(KCalCore::Duration(minutes * 60));
    return incidence;
}

template <typename Pointer> Pointer ringingDaysBefore(const Pointer &incidence, int days)
{
    alarm(incidence)->setStartOffset(KCalCore::Duration(-days, KCalCore::Duration::Days));
    return incidence;
}

template <typename Pointer> Pointer ringingOn(const Pointer &incidence, const QDateTime &time)
{
    alarm(incidence)->setTime(time);
    return incidence;
}

KCalCore::Event::Ptr cancelled(const KCalCore::Event::Ptr &event)
{
    event->setStatus(KCalCore::Incidence::StatusCanceled);
    return event;
}

KCalCore::Todo::Ptr task()
{
    auto task = newTodo("a", "2011-05-02T18:00");
    task->setDtStart(at("2011-05-02T09:00"));
    return task;
}

/// "2011-05-02T06:45Z", then "#1" for the second alarm and the recurrence identifier if there is
/// one.
QStringList shown(const mKCal::ReminderList &reminders)
{
    QStringList lines;
    for (const mKCal::Reminder &reminder : reminders) {
        QString line = reminder.time.toString(QStringLiteral("yyyy-MM-ddThh:mmZ"));
        if (reminder.alarm > 0) {
            line += QStringLiteral("#%1").arg(reminder.alarm);
        }
        if (reminder.recurrenceId.isValid()) {
            line += QLatin1Char(' ')
                + reminder.recurrenceId.dateTime().toString(QStringLiteral("MM-ddThh:mm"));
        }
        lines.append(line);
    }
    return lines;
}

void row(const char *name, const Family &family, const QStringList &expected)
{
    QTest::newRow(name) << family << expected;
}

void addTimeRows()
{
    row("before the start", {ringing(meeting(), -15)}, {"2011-05-02T06:45Z"});
    row("after the end", {ringingAtEnd(meeting(), 5)}, {"2011-05-02T08:05Z"});
    row("at a time of its own", {ringingOn(meeting(), at("2011-05-02T05:00", "UTC"))},
        {"2011-05-02T05:00Z"});
    row("at a floating time", {ringingOn(meeting(), at("2011-05-02T09:00", ""))},
        {"2011-05-02T06:00Z"});
    row("two alarms, by time", {ringing(ringing(meeting(), -15), -60)},
        {"2011-05-02T06:00Z#1", "2011-05-02T06:45Z"});
    row("days keep the wall clock",
        {ringingDaysBefore(newEvent("a", "2011-10-30T12:00", "2011-10-30T13:00"), 1)},
        {"2011-10-29T09:00Z"});
    row("all-day, on the evening before",
        {ringing(newEvent("a", "2011-05-03", "2011-05-04"), -240)}, {"2011-05-02T17:00Z"});
    row("all-day, from its exclusive end",
        {ringingAtEnd(newEvent("a", "2011-05-03", "2011-05-05"), -60)}, {"2011-05-04T20:00Z"});
    row("a year before", {ringingDaysBefore(newEvent("a", "2012-05-01T10:00"), 365)},
        {"2011-05-02T07:00Z"});
    row("from the window's first moment, not its last",
        {ringing(ringing(newEvent("a", "2011-05-01"), 0), 60 * 24 * 365)}, {"2011-04-30T21:00Z"});
}

void addSilentRows()
{
    row("not enabled", {[] {
            auto event = ringing(meeting(), -15);
            event->alarms().constFirst()->setEnabled(false);
            return event;
        }()},
        {});
    row("only the first of repeated rings", {[] {
            auto event = ringing(meeting(), -15);
            event->alarms().constFirst()->setRepeatCount(3);
            event->alarms().constFirst()->setSnoozeTime(KCalCore::Duration(300));
            return event;
        }()},
        {"2011-05-02T06:45Z"});
    row("cancelled", {cancelled(ringing(meeting(), -15))}, {});
}

void addTodoRows()
{
    row("to-do with start and due date", {ringingAtEnd(ringing(task(), 0), 0)},
        {"2011-05-02T06:00Z", "2011-05-02T15:00Z#1"});
    row("to-do without a start", {ringing(newTodo("a", "2011-05-02T18:00"), -30)},
        {"2011-05-02T14:30Z"});
    row("to-do without dates", {ringing(newTodo("a", {}), -30)}, {});
    row("to-do without dates, at a time",
        {ringingOn(newTodo("a", {}), at("2011-05-02T05:00", "UTC"))}, {"2011-05-02T05:00Z"});
    row("completed", {[] {
            auto done = ringing(task(), 0);
            done->setCompleted(true);
            return done;
        }()},
        {});
    row("recurring to-do, of which two are done", {[] {
            auto often = ringingAtEnd(recurring(task(), "FREQ=DAILY;COUNT=4"), -60);
            often->setDtRecurrence(at("2011-05-04T09:00"));
            return often;
        }()},
        {"2011-05-04T14:00Z 05-04T09:00", "2011-05-05T14:00Z 05-05T09:00"});
}

void addSeriesRows()
{
    row("each occurrence", {ringing(meeting("FREQ=DAILY;COUNT=3"), -15)},
        {"2011-05-02T06:45Z 05-02T10:00", "2011-05-03T06:45Z 05-03T10:00",
         "2011-05-04T06:45Z 05-04T10:00"});
    row("over the clock change",
        {ringing(
            recurring(newEvent("a", "2011-10-29T10:00", "2011-10-29T11:00"), "FREQ=DAILY;COUNT=2"),
            0)},
        {"2011-10-29T07:00Z 10-29T10:00", "2011-10-30T08:00Z 10-30T10:00"});
    row("a series with a time of its own rings once",
        {ringingOn(meeting("FREQ=DAILY;COUNT=3"), at("2011-05-02T05:00", "UTC"))},
        {"2011-05-02T05:00Z"});
    const auto series = ringing(meeting("FREQ=DAILY;COUNT=4"), 0);
    const auto moved =
        exception(series, at("2011-05-03T10:00"), "2011-05-03T15:00", "2011-05-03T16:00");
    const auto dropped = cancelled(
        exception(series, at("2011-05-04T10:00"), "2011-05-04T10:00", "2011-05-04T11:00"));
    row("exceptions, one of them cancelled", {series, moved, dropped},
        {"2011-05-02T07:00Z 05-02T10:00", "2011-05-03T12:00Z 05-03T10:00",
         "2011-05-05T07:00Z 05-05T10:00"});
    const auto later =
        exception(series, at("2011-05-04T10:00"), "2011-05-04T12:00", "2011-05-04T13:00");
    later->setThisAndFuture(true);
    later->alarms().constFirst()->setStartOffset(KCalCore::Duration(-3600));
    row("from there on with another offset", {series, later},
        {"2011-05-02T07:00Z 05-02T10:00", "2011-05-03T07:00Z 05-03T10:00",
         "2011-05-04T08:00Z 05-04T10:00", "2011-05-05T08:00Z 05-05T10:00"});
}
} // namespace

class TestReminderPlanner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plan_data();
    void plan();
    void zone();
    void fields();
    void absurdRule();
};

void TestReminderPlanner::plan_data()
{
    QTest::addColumn<Family>("family");
    QTest::addColumn<QStringList>("expected");

    addTimeRows();
    addSilentRows();
    addTodoRows();
    addSeriesRows();
}

void TestReminderPlanner::plan()
{
    QFETCH(Family, family);
    QTEST(shown(mKCal::planReminders(family, QTimeZone("Europe/Helsinki"),
                                     at("2011-04-30T21:00", "UTC"), at("2011-12-01", "UTC"))),
          "expected");
}

void TestReminderPlanner::zone()
{
    // All-day and floating ones ring by the clock of the zone that the device is in.
    const Family family{ringing(newEvent("a", "2011-05-02", "2011-05-03"), 480)};
    QCOMPARE(shown(mKCal::planReminders(family, QTimeZone("America/New_York"), at("2011-05-01"),
                                        at("2011-06-01"))),
             QStringList("2011-05-02T12:00Z"));
}

void TestReminderPlanner::fields()
{
    const Family family{ringing(meeting(), 0)};
    const QDateTime ring = at("2011-05-02T07:00", "UTC");
    const auto reminders =
        mKCal::planReminders(family, QTimeZone("Europe/Helsinki"), ring, ring.addSecs(1));
    QCOMPARE(reminders.size(), 1);
    QCOMPARE(reminders.first().uid, QStringLiteral("a"));
    QCOMPARE(reminders.first().time.timeSpec(), Qt::UTC);
    QVERIFY(!reminders.first().recurrenceId.isValid());
    QVERIFY(mKCal::planReminders(family, QTimeZone("Europe/Helsinki"), ring.addSecs(-60), ring)
                .isEmpty());
}

void TestReminderPlanner::absurdRule()
{
    const Family family{ringingDaysBefore(ringing(meeting("FREQ=SECONDLY"), 0), 30)};
    const auto reminders = mKCal::planReminders(family, QTimeZone("Europe/Helsinki"),
                                                at("2011-06-01"), at("2011-08-01"));
    QVERIFY(!reminders.isEmpty());
    QVERIFY(reminders.size() <= 2001);
}

CALENDAR_TEST_MAIN(TestReminderPlanner, "Europe/Helsinki")
#include "tst_reminderplanner.moc"
