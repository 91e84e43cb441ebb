// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidences.h"
#include "testenvironment.h"
#include "testtable.h"

#include <daskel/db_instance.h>

#include <QtTest>

using KCalCore::Incidence;

/// Start and end of the occurrence that a time belongs to.
class DbOccurrenceTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void start_data();
    void start();
    void end_data();
    void end();

private:
    const TestEnvironment m_environment{QDate(2011, 3, 10)};
};

namespace
{
Incidence::Ptr daily(const Incidence::Ptr &incidence)
{
    incidence->recurrence()->setDaily(1);
    return incidence;
}

Incidence::Ptr meeting()
{
    return makeEvent("meeting", localTime("2011-03-10T10:00"), localTime("2011-03-10T11:30"));
}

Incidence::Ptr nightShift()
{
    return makeEvent("night shift", localTime("2011-03-10T22:00"), localTime("2011-03-11T06:00"));
}

Incidence::Ptr inNewYork()
{
    const QTimeZone zone("America/New_York");
    return makeEvent("New York", QDateTime(QDate(2011, 3, 10), QTime(9, 0), zone),
                     QDateTime(QDate(2011, 3, 10), QTime(10, 0), zone));
}

Incidence::Ptr holiday()
{
    return makeAllDayEvent("holiday", QDate(2011, 3, 10), QDate(2011, 3, 11));
}

Incidence::Ptr task()
{
    const auto todo = makeTodo("task", localTime("2011-03-10T18:00"));
    todo->setDtStart(localTime("2011-03-10T09:00"));
    return todo;
}

Incidence::Ptr allDayInNewYork()
{
    const QTimeZone zone("America/New_York");
    const auto event = makeEvent("holiday", QDate(2011, 3, 10).startOfDay(zone),
                                 QDate(2011, 3, 11).startOfDay(zone));
    event->setAllDay(true);
    return event;
}
} // namespace

void DbOccurrenceTest::start_data()
{
    addColumns<Incidence::Ptr, QDateTime, QDateTime>("incidence", "time", "start");

    const auto row = [](const char *name, const Incidence::Ptr &incidence, const char *time,
                        const char *start) {
        addRow(name, incidence, localTime(time), localTime(start));
    };
    row("no incidence", {}, "2011-03-10T10:00", "");
    row("single, another day", meeting(), "2011-06-01T00:00", "2011-03-10T10:00");
    row("recurring, exactly at its start", daily(meeting()), "2011-03-15T10:00",
        "2011-03-15T10:00");
    addRow("recurring, given in UTC", daily(meeting()), localTime("2011-03-15T10:00").toUTC(),
           localTime("2011-03-15T10:00"));
    row("recurring, before the first", daily(meeting()), "2011-03-09T10:00", "");
    row("another zone", inNewYork(), "2011-03-10T18:00", "2011-03-10T16:00");
    row("recurring in another zone whose clock changed first", daily(inNewYork()),
        "2011-03-14T18:00", "2011-03-14T15:00");
    row("recurring, all day", daily(holiday()), "2011-03-28T12:00", "2011-03-28T00:00");
    row("all day in another zone keeps its date", allDayInNewYork(), "2011-03-10T12:00",
        "2011-03-10T00:00");
    row("to-do without dates", makeTodo("todo", QDateTime()), "2011-03-10T12:00", "");
}

void DbOccurrenceTest::start()
{
    QFETCH(Incidence::Ptr, incidence);
    QFETCH(QDateTime, time);
    const QDateTime start = DbInstance::incidenceRecurrenceStart(incidence, time);
    QTEST(start, "start");
    if (start.isValid())
        QCOMPARE(start.timeSpec(), Qt::LocalTime);
}

void DbOccurrenceTest::end_data()
{
    addColumns<Incidence::Ptr, QDateTime, QDateTime, QDateTime>("incidence", "time", "end",
                                                                "endOfDay");

    const auto row = [](const char *name, const Incidence::Ptr &incidence, const char *time,
                        const char *end, const char *endOfDay) {
        addRow(name, incidence, localTime(time), localTime(end), localTime(endOfDay));
    };
    row("no incidence", {}, "2011-03-10T10:00", "", "");
    row("within the day", daily(meeting()), "2011-03-15T10:00", "2011-03-15T11:30",
        "2011-03-15T11:30");
    row("asked in its middle", daily(meeting()), "2011-03-15T10:45", "2011-03-15T11:30",
        "2011-03-15T11:30");
    row("over midnight, asked on the first day", daily(nightShift()), "2011-03-15T22:00",
        "2011-03-16T00:00", "2011-03-16T23:59:59");
    row("over midnight, asked on the second day", daily(nightShift()), "2011-03-16T01:00",
        "2011-03-16T06:00", "2011-03-16T06:00");
    row("all day, ends with the midnight after it", daily(holiday()), "2011-03-15T00:00",
        "2011-03-16T00:00", "2011-03-16T23:59:59");
    row("single, asked on a later day", meeting(), "2011-03-12T09:00", "2011-03-10T00:00",
        "2011-03-10T23:59:59");
    row("another zone", inNewYork(), "2011-03-10T16:30", "2011-03-10T17:00", "2011-03-10T17:00");
    row("to-do: when it is due", task(), "2011-03-10T09:30", "2011-03-10T18:00",
        "2011-03-10T18:00");
    row("to-do that starts nowhere", makeTodo("todo", localTime("2011-03-10T18:00")),
        "2011-03-10T12:00", "", "");
    row("journal ends where it starts", makeJournal("journal", localTime("2011-03-10T18:00")),
        "2011-03-10T20:00", "2011-03-10T18:00", "2011-03-10T18:00");
    addRow("over midnight, given in UTC", daily(nightShift()),
           localTime("2011-03-16T01:00").toUTC(), localTime("2011-03-16T06:00"),
           localTime("2011-03-16T06:00"));
    row("to-do without dates", makeTodo("todo", QDateTime()), "2011-03-10T12:00", "", "");
}

void DbOccurrenceTest::end()
{
    QFETCH(Incidence::Ptr, incidence);
    QFETCH(QDateTime, time);
    QTEST(DbInstance::incidenceEndTime(incidence, time, false), "end");
    QTEST(DbInstance::incidenceEndTime(incidence, time, true), "endOfDay");
}

QTEST_GUILESS_MAIN(DbOccurrenceTest)
#include "tst_dboccurrence.moc"
