# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

daskel_add_test(tst_listrows LINK tarvotouchcore)
target_include_directories(tst_listrows PRIVATE ${PROJECT_SOURCE_DIR}/platform/touchcore/src)
foreach(test tst_mlist tst_mlistgrowing tst_mlistinput)
    daskel_add_test(${test} SOURCES listscreen.h LINK tarvotouchcore)
endforeach()
