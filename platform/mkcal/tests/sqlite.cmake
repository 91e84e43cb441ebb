# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

daskel_add_test(tst_roundtrip
    SOURCES
        roundtrip_alarms.cpp
        roundtrip_people.cpp
        roundtrip_recurrence.cpp
        roundtrip_texts.cpp
        roundtrip_times.cpp
        roundtrip_todos.cpp
    LINK mkcal)
daskel_add_test(tst_schema LINK mkcal SQLite::SQLite3)
daskel_add_test(tst_sqliteconnection LINK mkcal SQLite::SQLite3)
daskel_add_test(tst_sqlitecomponents LINK mkcal)
daskel_add_test(tst_sqlitehostile
    SOURCES
        roundtrip_alarms.cpp
        roundtrip_people.cpp
        roundtrip_recurrence.cpp
    LINK mkcal)
daskel_add_test(tst_sqlitetables LINK mkcal)
daskel_add_test(tst_storagecheck LINK mkcal)
