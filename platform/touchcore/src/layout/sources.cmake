# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

set(TOUCHCORE_LAYOUT_HEADERS
    include/touchcore/mabstractlayoutpolicy.h
    include/touchcore/mgridlayoutpolicy.h
    include/touchcore/mlayout.h
    include/touchcore/mlinearlayoutpolicy.h
)
set(TOUCHCORE_LAYOUT_SOURCES
    src/layout/layoutstandin.cpp
    src/layout/mabstractlayoutpolicy.cpp
    src/layout/mgridlayoutpolicy.cpp
    src/layout/mlayout.cpp
    src/layout/mlinearlayoutpolicy.cpp
)
