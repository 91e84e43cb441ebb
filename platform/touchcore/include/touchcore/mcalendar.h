// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MCALENDAR_H
#define TOUCHCORE_MCALENDAR_H

#include <touchcore/mlocale.h>

#include <QDateTime>
#include <QTimeZone>

/// A moment on the calendar that it is to be shown in, for MLocale::formatDateTime(), and how weeks
/// go where the person lives. A value; on the UI thread, as MLocale.
class MCalendar
{
public:
    /// \a timeZone is a name of the zone database, such as "Europe/Helsinki". Without one, or with
    /// one that is not known, each date-time is shown in its own zone.
    explicit MCalendar(MLocale::CalendarType type = MLocale::DefaultCalendar,
                       const QString &timeZone = QString());

    MLocale::CalendarType type() const { return m_type; }
    QString timeZone() const { return m_timeZone; }

    /// Invalid until it is set, then in the calendar's zone.
    QDateTime dateTime() const { return m_dateTime; }
    void setDateTime(const QDateTime &dateTime);

    /// 7 in every calendar that there is a type for.
    int daysInWeek() const;
    /// The day that weeks begin with in the default locale as it is now: 1 is Monday, 7 Sunday.
    int firstDayOfWeek() const;

private:
    MLocale::CalendarType m_type;
    QString m_timeZone;
    QTimeZone m_zone;
    QDateTime m_dateTime;
};

#endif
