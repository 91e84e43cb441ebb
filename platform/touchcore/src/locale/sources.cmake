# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

set(TOUCHCORE_LOCALE_HEADERS
    include/touchcore/mcalendar.h
    include/touchcore/mlocale.h
)
set(TOUCHCORE_LOCALE_SOURCES
    src/locale/mcalendar.cpp
    src/locale/mcatalogues.cpp
    src/locale/mdesktopsetting.cpp
    src/locale/mlocale.cpp
    src/locale/mlocaleformats.cpp
    src/locale/mlocalename.cpp
    src/locale/mposixpattern.cpp
)
