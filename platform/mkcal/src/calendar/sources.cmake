# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

set(MKCAL_CALENDAR_SOURCES
    src/calendar/calendarnotebooks.cpp
    src/calendar/calendarqueries.cpp
    src/calendar/clockchanges.cpp
    src/calendar/dateindex.cpp
    src/calendar/expansion.cpp
    src/calendar/extendedcalendar.cpp
    src/calendar/incidencetimes.cpp
    src/calendar/occurrences.cpp
    src/calendar/recurrenceidentity.cpp
    src/calendar/reminderplanner.cpp
    src/calendar/series.cpp
    src/calendar/seriescut.cpp
    src/calendar/seriesrules.cpp
    src/calendar/zoneclock.cpp)
