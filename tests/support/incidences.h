// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef INCIDENCES_H
#define INCIDENCES_H

#include <mkcal/extendedcalendar.h>

#include <KCalendarCore/Event>
#include <KCalendarCore/Journal>
#include <KCalendarCore/Todo>

// Incidences for tests, not yet in a calendar. Times are those of the local zone.

/// "2011-03-10T10:00"
inline QDateTime localTime(const char *text)
{
    return QDateTime::fromString(QLatin1String(text), Qt::ISODate);
}

inline QDate isoDate(const char *text)
{
    return QDate::fromString(QLatin1String(text), Qt::ISODate);
}

inline KCalCore::Event::Ptr makeEvent(const QString &uid, const QDateTime &start,
                                      const QDateTime &end)
{
    auto event = KCalCore::Event::Ptr::create();
    event->setUid(uid);
    event->setSummary(uid, false);
    event->setDtStart(start);
    event->setDtEnd(end);
    return event;
}

/// @p end is exclusive.
inline KCalCore::Event::Ptr makeAllDayEvent(const QString &uid, const QDate &start,
                                            const QDate &end)
{
    const auto event = makeEvent(uid, start.startOfDay(), end.startOfDay());
    event->setAllDay(true);
    return event;
}

/// Due at @p due, or without dates when that is null.
inline KCalCore::Todo::Ptr makeTodo(const QString &uid, const QDateTime &due)
{
    auto todo = KCalCore::Todo::Ptr::create();
    todo->setUid(uid);
    todo->setSummary(uid, false);
    todo->setDtDue(due);
    return todo;
}

inline KCalCore::Journal::Ptr makeJournal(const QString &uid, const QDateTime &start)
{
    auto journal = KCalCore::Journal::Ptr::create();
    journal->setUid(uid);
    journal->setDtStart(start);
    return journal;
}

#endif
