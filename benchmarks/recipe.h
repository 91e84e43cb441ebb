// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef RECIPE_H
#define RECIPE_H

#include <kcalcompat/kcalcore.h>

#include <KCalendarCore/RecurrenceRule>

#include <QTimeZone>
#include <QVector>

/// A date-time as plain values.
struct WallClock {
    QDate date;
    QTime time;
    Qt::TimeSpec spec = Qt::LocalTime;
    QTimeZone zone;

    static WallClock of(const QDateTime &dateTime);
    QDateTime dateTime() const;
};

/// What a sample incidence says, as plain values that lie in memory: building the incidence from
/// them is the least that reading it from anywhere can cost.
struct Recipe {
    struct AlarmValues {
        QString text;
        int startOffset = 0;
    };
    struct AttendeeValues {
        QString name;
        QString email;
        KCalCore::Attendee::PartStat status = KCalCore::Attendee::NeedsAction;
    };
    struct RuleValues {
        KCalCore::RecurrenceRule::PeriodType type = KCalCore::RecurrenceRule::rNone;
        uint frequency = 1;
        int duration = -1;
        WallClock end;
        QList<KCalCore::RecurrenceRule::WDayPos> byDays;
        QList<int> byMonthDays;
        QList<int> byMonths;
    };

    KCalCore::Incidence::IncidenceType type = KCalCore::Incidence::TypeEvent;
    QString uid;
    QString summary;
    QString location;
    QString description;
    QString customValue;
    QString organizerName;
    QString organizerEmail;
    QStringList categories;
    QVector<AlarmValues> alarms;
    QVector<AttendeeValues> attendees;
    QVector<RuleValues> rules;
    QVector<WallClock> excluded;
    WallClock created;
    WallClock lastModified;
    WallClock start;
    WallClock end; ///< a to-do's: when it is due
    WallClock completed;
    WallClock recurrenceId;
    int priority = 0;
    bool allDay = false;

    static Recipe of(const KCalCore::Incidence &incidence);
    KCalCore::Incidence::Ptr build() const;
};

#endif
