# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

set(TOUCHCORE_CORE_HEADERS
    include/touchcore/mwidgetmodel.h
    include/touchcore/mnamespace.h
    include/touchcore/mwidget.h
    include/touchcore/mwidgetcontroller.h
    include/touchcore/mwidgetview.h
    include/touchcore/mviewfactory.h
)
set(TOUCHCORE_CORE_SOURCES
    src/core/focusring.cpp
    src/core/mwidgetmodel.cpp
    src/core/mwidget.cpp
    src/core/mwidgetcontroller.cpp
    src/core/mwidgetview.cpp
    src/core/mviewfactory.cpp
)
