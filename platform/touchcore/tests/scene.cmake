# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

foreach(test tst_mapplicationpage tst_mbanner tst_mdialog tst_mobjectmenu tst_mscenemanager tst_mwindow)
    daskel_add_test(${test} LINK tarvotouchcore)
endforeach()
