# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

set(TOUCHCORE_WIDGETS_HEADERS
    include/touchcore/mlabelstyle.h
    include/touchcore/mlabel.h
    include/touchcore/mimagewidget.h
    include/touchcore/mseparator.h
    include/touchcore/mlistitem.h
    include/touchcore/mbuttonmodel.h
    include/touchcore/mbutton.h
    include/touchcore/mbuttongroup.h
    include/touchcore/mbuttonstyle.h
    include/touchcore/mbuttonview.h
    include/touchcore/mbuttonviews.h
)
set(TOUCHCORE_WIDGETS_SOURCES
    src/widgets/textblock.cpp
    src/widgets/richtext.cpp
    src/widgets/iconpainter.cpp
    src/widgets/press.cpp
    src/widgets/mlabel.cpp
    src/widgets/mimagewidget.cpp
    src/widgets/mseparator.cpp
    src/widgets/mlistitem.cpp
    src/widgets/mbuttonmodel.cpp
    src/widgets/mbutton.cpp
    src/widgets/mbuttongroup.cpp
    src/widgets/mbuttonview.cpp
    src/widgets/mbuttonviews.cpp
    src/widgets/mbuttongroupview.cpp
)
