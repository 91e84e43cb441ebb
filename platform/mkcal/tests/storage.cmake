# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

daskel_add_test(tst_bulkwriter LINK mkcal SQLite::SQLite3)
daskel_add_test(tst_defaultfile LINK mkcal)
daskel_add_test(tst_loadrecord LINK mkcal)
daskel_add_test(tst_notices LINK mkcal SQLite::SQLite3)
daskel_add_test(tst_sqlitestorage_load LINK mkcal SQLite::SQLite3)
daskel_add_test(tst_sqlitestorage_notebooks LINK mkcal SQLite::SQLite3)
daskel_add_test(tst_sqlitestorage_reminders LINK mkcal SQLite::SQLite3)
daskel_add_test(tst_sqlitestorage_save LINK mkcal SQLite::SQLite3)
daskel_add_test(tst_storagethreads LABELS threaded LINK mkcal SQLite::SQLite3)

# A second process of the calendar, which tests start and command.
add_executable(storageprocess storageprocess.cpp)
target_link_libraries(storageprocess PRIVATE mkcal Qt5::Test SQLite::SQLite3 daskel_options)
foreach(test tst_storagecrashes tst_storageprocesses)
    daskel_add_test(${test} LINK mkcal SQLite::SQLite3)
    target_compile_definitions(${test} PRIVATE STORAGE_PROCESS="$<TARGET_FILE:storageprocess>")
    add_dependencies(${test} storageprocess)
endforeach()
