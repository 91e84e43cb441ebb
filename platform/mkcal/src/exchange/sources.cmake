# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# Incidences as iCalendar text: import, export and what lies between.

set(MKCAL_EXCHANGE_SOURCES
    src/exchange/attendeetext.cpp
    src/exchange/calendarexporter.cpp
    src/exchange/calendarimporter.cpp
    src/exchange/calendartext.cpp
    src/exchange/componentsplitter.cpp
    src/exchange/contentline.cpp
    src/exchange/icalendarconvention.cpp
    src/exchange/importsurvey.cpp
    src/exchange/incidenceimport.cpp
    src/exchange/incidencereader.cpp
    src/exchange/missingtimes.cpp
    src/exchange/textcarrier.cpp
    src/exchange/timezonerules.cpp
    src/exchange/timezonetexts.cpp)
