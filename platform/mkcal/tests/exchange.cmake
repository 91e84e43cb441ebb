# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

daskel_add_test(tst_calendartext LINK mkcal)
daskel_add_test(tst_exportfeatures
    SOURCES
        roundtrip_alarms.cpp
        roundtrip_people.cpp
        roundtrip_recurrence.cpp
        roundtrip_texts.cpp
        roundtrip_times.cpp
        roundtrip_todos.cpp
    LINK mkcal)
daskel_add_test(tst_exporticalendar LINK mkcal)
daskel_add_test(tst_importfaults LINK mkcal)
daskel_add_test(tst_importfixtures LINK mkcal)
daskel_add_test(tst_importrepeated LINK mkcal)
daskel_add_test(tst_repeatedhour LINK mkcal)
foreach(test tst_importfixtures tst_importrepeated)
    target_compile_definitions(${test} PRIVATE
        ICS_FIXTURES="${CMAKE_CURRENT_SOURCE_DIR}/fixtures/ics")
endforeach()

# What others leak is no fault of ours.
set_property(TEST tst_exportfeatures tst_importfixtures tst_importrepeated APPEND PROPERTY
    ENVIRONMENT "LSAN_OPTIONS=suppressions=${CMAKE_CURRENT_SOURCE_DIR}/fixtures/lsan.supp")
