# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

set(TOUCHCORE_PANNING_HEADERS
    include/touchcore/mpannableviewport.h
    include/touchcore/mpannableviewportstyle.h
    include/touchcore/mphysics2dpanning.h
    include/touchcore/mpositionindicator.h
    include/touchcore/mpositionindicatorstyle.h
)
set(TOUCHCORE_PANNING_SOURCES
    src/panning/focusfollower.cpp
    src/panning/mpannableviewport.cpp
    src/panning/mphysics2dpanning.cpp
    src/panning/mpositionindicator.cpp
    src/panning/panaxis.cpp
    src/panning/panelayout.cpp
    src/panning/pangesture.cpp
    src/panning/panstep.cpp
    src/panning/wheelwatcher.cpp
)
