# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

set(TOUCHCORE_LIST_HEADERS
    include/touchcore/mcellcreator.h
    include/touchcore/mlist.h
    include/touchcore/mwidgetrecycler.h
)
set(TOUCHCORE_LIST_SOURCES
    src/list/groupheadercreator.cpp
    src/list/listrows.cpp
    src/list/mcellcreator.cpp
    src/list/mlist.cpp
    src/list/mlistcells.cpp
    src/list/mlistinput.cpp
    src/list/mlistrows.cpp
    src/list/mwidgetrecycler.cpp
    src/list/rowheights.cpp
)
