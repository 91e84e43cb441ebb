// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_ROUNDTRIPFEATURES_H
#define MKCAL_ROUNDTRIPFEATURES_H

#include <kcalcompat/kcalcore.h>

#include <KCalendarCore/Event>
#include <KCalendarCore/Journal>
#include <KCalendarCore/Todo>

#include <QTimeZone>

#include <functional>

/// Something that an incidence can have and that must come back from the database.
struct Feature {
    QByteArray name;
    KCalCore::Incidence::Ptr plain; ///< without it
    std::function<void(KCalCore::Incidence &)> give;
};
Q_DECLARE_METATYPE(Feature)

inline QDateTime helsinki(int year, int month, int day, int hour = 10, int minute = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute), QTimeZone("Europe/Helsinki"));
}

inline QDateTime utc(int year, int month, int day, int hour = 10)
{
    return QDateTime(QDate(year, month, day), QTime(hour, 0), Qt::UTC);
}

inline QDateTime floating(int year, int month, int day, int hour = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, 0), Qt::LocalTime);
}

inline KCalCore::Event::Ptr plainEvent()
{
    auto event = KCalCore::Event::Ptr::create();
    event->setUid(QStringLiteral("round-trip"));
    event->setDtStart(helsinki(2011, 5, 2, 10));
    event->setDtEnd(helsinki(2011, 5, 2, 11));
    return event;
}

inline KCalCore::Todo::Ptr plainTodo()
{
    auto todo = KCalCore::Todo::Ptr::create();
    todo->setUid(QStringLiteral("round-trip"));
    todo->setDtStart(helsinki(2011, 5, 2, 10));
    todo->setDtDue(helsinki(2011, 5, 3, 10), true);
    return todo;
}

inline KCalCore::Journal::Ptr plainJournal()
{
    auto journal = KCalCore::Journal::Ptr::create();
    journal->setUid(QStringLiteral("round-trip"));
    journal->setDtStart(helsinki(2011, 5, 2, 10));
    return journal;
}

template <typename Type>
Feature feature(const char *name, const QSharedPointer<Type> &plain,
                const std::function<void(Type &)> &give)
{
    return {name, plain,
            [give](KCalCore::Incidence &incidence) { give(static_cast<Type &>(incidence)); }};
}

inline Feature event(const char *name, const std::function<void(KCalCore::Event &)> &give)
{
    return feature(name, plainEvent(), give);
}

using Features = QVector<Feature>;
Features timeFeatures();
Features textFeatures();
Features recurrenceFeatures();
Features alarmFeatures();
Features peopleFeatures();
Features todoAndJournalFeatures();

#endif
