// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef CALENDARSCENE_H
#define CALENDARSCENE_H

#include <mkcal/extendedcalendar.h>

#include <KCalendarCore/ICalFormat>

#include <QCoreApplication>
#include <QtTest>

#include <ctime>

/// The main function of a test that runs in a system zone of its own.
#define CALENDAR_TEST_MAIN(TestClass, zone)                                                        \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        qputenv("TZ", zone);                                                                       \
        tzset();                                                                                   \
        QCoreApplication application(argc, argv);                                                  \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }

namespace CalendarScene
{
/// "2011-05-01" or "2011-05-01T10:00", in the named zone, "UTC", or as clock time ("").
inline QDateTime at(const QString &text, const QByteArray &zone = "Europe/Helsinki")
{
    const QDateTime written = QDateTime::fromString(
        text.contains(QLatin1Char('T')) ? text : text + QStringLiteral("T00:00"), Qt::ISODate);
    if (zone.isEmpty()) {
        return QDateTime(written.date(), written.time());
    }
    return zone == "UTC" ? QDateTime(written.date(), written.time(), Qt::UTC)
                         : QDateTime(written.date(), written.time(), QTimeZone(zone));
}

/// An event; all-day, and then floating, when @p start is a date. Without @p end it takes no time.
inline KCalCore::Event::Ptr newEvent(const QString &uid, const QString &start,
                                     const QString &end = {},
                                     const QByteArray &zone = "Europe/Helsinki")
{
    const bool isAllDay = !start.contains(QLatin1Char('T'));
    KCalCore::Event::Ptr event(new KCalCore::Event);
    event->setUid(uid);
    event->setDtStart(at(start, isAllDay ? QByteArray() : zone));
    event->setAllDay(isAllDay);
    if (!end.isEmpty()) {
        event->setDtEnd(at(end, isAllDay ? QByteArray() : zone));
    }
    return event;
}

inline KCalCore::Todo::Ptr newTodo(const QString &uid, const QString &due,
                                   const QByteArray &zone = "Europe/Helsinki")
{
    KCalCore::Todo::Ptr todo(new KCalCore::Todo);
    todo->setUid(uid);
    if (!due.isEmpty()) {
        const bool isAllDay = !due.contains(QLatin1Char('T'));
        todo->setDtDue(at(due, isAllDay ? QByteArray() : zone));
        todo->setAllDay(isAllDay);
    }
    return todo;
}

inline KCalCore::Journal::Ptr newJournal(const QString &uid, const QString &start)
{
    KCalCore::Journal::Ptr journal(new KCalCore::Journal);
    journal->setUid(uid);
    journal->setDtStart(at(start, {}));
    journal->setAllDay(!start.contains(QLatin1Char('T')));
    return journal;
}

/// Adds a rule written as in RFC 5545, such as "FREQ=DAILY;COUNT=3".
template <typename Pointer> Pointer recurring(const Pointer &incidence, const QString &rule)
{
    auto *parsed = new KCalCore::RecurrenceRule;
    parsed->setStartDt(incidence->recurrence()->startDateTime());
    parsed->setAllDay(incidence->allDay());
    if (!KCalCore::ICalFormat().fromString(parsed, rule)) {
        qFatal("no rule: %s", qPrintable(rule));
    }
    parsed->setStartDt(incidence->recurrence()->startDateTime());
    incidence->recurrence()->addRRule(parsed);
    return incidence;
}

/// "a", an event that recurs.
inline KCalCore::Event::Ptr series(const QString &rule, const QString &start, const QString &end,
                                   const QByteArray &zone = "Europe/Helsinki")
{
    return recurring(newEvent(QStringLiteral("a"), start, end, zone), rule);
}

/// "a", an hour on 2 May, or as often as @p rule says.
inline KCalCore::Event::Ptr meeting(const QString &rule = {},
                                    const QString &start = QStringLiteral("2011-05-02T10:00"))
{
    const QString end = at(start).addSecs(3600).toString(Qt::ISODate).left(16);
    return rule.isEmpty() ? newEvent(QStringLiteral("a"), start, end) : series(rule, start, end);
}

/// Stands in for one occurrence of @p series.
template <typename Pointer>
Pointer exception(const Pointer &series, const QDateTime &recurrenceId, const QString &start,
                  const QString &end)
{
    const bool isAllDay = !start.contains(QLatin1Char('T'));
    Pointer exception(series->clone());
    if (exception->recurs()) {
        exception->recurrence()->clear();
    }
    exception->setRecurrenceId(recurrenceId);
    const QByteArray zone = isAllDay || series->dtStart().timeSpec() == Qt::LocalTime
        ? QByteArray()
        : series->dtStart().timeZone().id();
    exception->setDtStart(at(start, zone));
    exception->setAllDay(isAllDay);
    exception->setDtEnd(at(end, zone));
    return exception;
}

/// @p incidence after @p edit.
template <typename Pointer, typename Edit> Pointer with(const Pointer &incidence, const Edit &edit)
{
    edit(*incidence);
    return incidence;
}

/// "05-01 10:00", with the year when it is not 2011, in which most scenes play.
inline QString shortText(const QDateTime &time)
{
    return time.toString(time.date().year() == 2011 ? QStringLiteral("MM-dd hh:mm")
                                                    : QStringLiteral("yyyy-MM-dd hh:mm"));
}

/// "uid 05-01 10:00 > 11:00" or "uid 05-01 10:00 > 05-02 09:00", as the calendar's clock shows it.
inline QStringList shown(const mKCal::ExtendedCalendar::ExpandedIncidenceList &list)
{
    QStringList lines;
    for (const auto &occurrence : list) {
        const QDateTime &start = occurrence.first.dtStart;
        const QDateTime &end = occurrence.first.dtEnd;
        lines.append(occurrence.second->uid() + QLatin1Char(' ') + shortText(start)
                     + QStringLiteral(" > ")
                     + (end.date() == start.date() ? end.toString(QStringLiteral("hh:mm"))
                                                   : shortText(end)));
    }
    return lines;
}

template <typename List> QStringList uids(const List &incidences)
{
    QStringList uids;
    for (const auto &incidence : incidences) {
        uids.append(incidence->uid());
    }
    return uids;
}

/// The events and to-dos of the calendar that occur from @p from up to @p to.
inline QStringList agenda(const mKCal::ExtendedCalendar &calendar, const QString &from,
                          const QString &to)
{
    const QByteArray zone = calendar.timeZone().id();
    const QDateTime start = at(from, zone);
    const QDateTime end = at(to, zone);
    KCalCore::Incidence::List incidences = calendar.incidences(start.date(), end.date());
    return shown(calendar.expandRecurrences(&incidences, KDateTime(start), KDateTime(end), 1000));
}

// A table of agendas.

/// What is in a calendar.
using Family = KCalCore::Incidence::List;

inline void agendaColumns()
{
    QTest::addColumn<Family>("family");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QByteArray>("zone");
}

inline void agendaRow(const char *name, const Family &family, const QString &from,
                      const QString &to, const QStringList &expected,
                      const QByteArray &zone = "Europe/Helsinki")
{
    QTest::newRow(name) << family << from << to << expected << zone;
}

inline void checkAgenda()
{
    QFETCH(Family, family);
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QByteArray, zone);
    mKCal::ExtendedCalendar calendar{QTimeZone(zone)};
    for (const auto &incidence : qAsConst(family)) {
        calendar.addIncidence(incidence);
    }
    QTEST(agenda(calendar, from, to), "expected");
}
} // namespace CalendarScene

#endif
