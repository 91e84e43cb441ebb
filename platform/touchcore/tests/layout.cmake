# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

daskel_add_test(tst_mlayout LINK tarvotouchcore)
target_include_directories(tst_mlayout PRIVATE ${PROJECT_SOURCE_DIR}/platform/touchcore/src)
