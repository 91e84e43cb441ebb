# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

foreach(test IN ITEMS
    tst_dateindex
    tst_exceptions
    tst_expansion
    tst_expansionlimits
    tst_extendedcalendar
    tst_notebook
    tst_reminderplanner
    tst_series)
    daskel_add_test(${test} LINK mkcal)
endforeach()
