// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mlocale_p.h"
#include "mlocaleformats.h"

#include <touchcore/mcalendar.h>

MCalendar::MCalendar(MLocale::CalendarType type, const QString &timeZone)
    : m_type(type), m_timeZone(timeZone)
{
    // No name at all would mean the system's zone.
    if (!timeZone.isEmpty())
        m_zone = QTimeZone(timeZone.toLatin1());
}

void MCalendar::setDateTime(const QDateTime &dateTime)
{
    m_dateTime = m_zone.isValid() ? dateTime.toTimeZone(m_zone) : dateTime;
}

int MCalendar::daysInWeek() const
{
    return 7;
}

int MCalendar::firstDayOfWeek() const
{
    return MLocale::getDefault().d->formats().firstDayOfWeek();
}
