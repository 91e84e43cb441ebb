# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

foreach(test
    tst_mbutton
    tst_mbuttongroup
    tst_mbuttonviews
    tst_mchoicelist
    tst_mdatepicker
    tst_mimagewidget
    tst_mlabel
    tst_mlistitem
    tst_mprogressindicator
    tst_mslider
    tst_mtextedit
    tst_mtimepicker)
    daskel_add_test(${test} LINK tarvotouchcore)
endforeach()
