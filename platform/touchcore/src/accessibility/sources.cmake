# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

set(TOUCHCORE_ACCESSIBILITY_SOURCES
    src/accessibility/accessiblefactory.cpp
    src/accessibility/accessiblegrid.cpp
    src/accessibility/accessibletexts.cpp
    src/accessibility/accessiblewidget.cpp
    src/accessibility/accessiblewindow.cpp
)
