# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

daskel_add_test(tst_notices LINK mkcal SQLite::SQLite3)
daskel_add_test(tst_sqlitestorage_load LINK mkcal SQLite::SQLite3)
daskel_add_test(tst_sqlitestorage_notebooks LINK mkcal SQLite::SQLite3)
daskel_add_test(tst_sqlitestorage_save LINK mkcal SQLite::SQLite3)
