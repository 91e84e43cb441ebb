# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

set(TOUCHCORE_STYLE_HEADERS
    include/touchcore/mstyle.h
    include/touchcore/mwidgetstyle.h
    include/touchcore/mstylecontainer.h
    include/touchcore/mscalableimage.h
    include/touchcore/mstylablewidget.h
    include/touchcore/mtheme.h
)
set(TOUCHCORE_STYLE_SOURCES
    src/style/mstyle.cpp
    src/style/mwidgetstyle.cpp
    src/style/mstylecontainer.cpp
    src/style/mscalableimage.cpp
    src/style/ninepatch.cpp
    src/style/picture.cpp
    src/style/softshadow.cpp
    src/style/mstylablewidget.cpp
    src/style/mtheme.cpp
    src/style/stylefiller.cpp
    src/style/themefile.cpp
    src/style/themevalues.cpp
)
