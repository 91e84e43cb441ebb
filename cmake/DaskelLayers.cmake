# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# One CMake target per layer, which links only the layers below it that it may use.
# Public headers stand in the target's header set: each is compiled alone by the target
# all_verify_interface_header_sets.

set(DASKEL_INCLUDE_INSTALL_DIR ${CMAKE_INSTALL_INCLUDEDIR}/libdaskel)

# The headers that nearly every file includes, compiled once for all targets of a build folder: this
# halves the time that a file takes.
if(DASKEL_PCH)
    add_library(daskel_pch OBJECT ${CMAKE_CURRENT_LIST_DIR}/precompiled.cpp)
    target_link_libraries(daskel_pch PRIVATE daskel_options KF5::CalendarCore)
    target_precompile_headers(daskel_pch PRIVATE
        <KCalendarCore/ICalFormat>
        <KCalendarCore/MemoryCalendar>
        <QDateTime>
        <QDebug>
        <QHash>
        <QTimeZone>
        <QVector>)

    # The toolkit and its tests know no calendar.
    add_library(touchcore_pch OBJECT ${CMAKE_CURRENT_LIST_DIR}/precompiled.cpp)
    target_link_libraries(touchcore_pch PRIVATE daskel_options Qt5::Widgets)
    target_precompile_headers(touchcore_pch PRIVATE
        <QApplication>
        <QGraphicsLinearLayout>
        <QGraphicsScene>
        <QGraphicsSceneMouseEvent>
        <QGraphicsView>
        <QGraphicsWidget>
        <QPainter>
        <QTimer>)
endif()

# The compiler takes them only where the calendar's own options are in force.
set(DASKEL_CALENDAR_LIBRARIES KF5::CalendarCore kcalcompat mkcal daskel_data libdaskel)
function(daskel_use_precompiled_headers target)
    foreach(library IN LISTS ARGN)
        if(DASKEL_PCH AND library IN_LIST DASKEL_CALENDAR_LIBRARIES)
            target_precompile_headers(${target} REUSE_FROM daskel_pch)
            return()
        endif()
    endforeach()
    if(DASKEL_PCH AND (target STREQUAL "tarvotouchcore" OR "tarvotouchcore" IN_LIST ARGN))
        target_precompile_headers(${target} REUSE_FROM touchcore_pch)
    endif()
endfunction()

# daskel_add_layer(<name> SHARED|OBJECT
#     [OUTPUT_NAME <library name>] INCLUDE_DIR <dir> HEADERS <files> SOURCES <files>
#     PUBLIC <targets> [PRIVATE <targets>])
function(daskel_add_layer name kind)
    cmake_parse_arguments(LAYER "" "OUTPUT_NAME;INCLUDE_DIR" "HEADERS;SOURCES;PUBLIC;PRIVATE" ${ARGN})
    add_library(${name} ${kind} ${LAYER_SOURCES})
    target_sources(${name} PUBLIC FILE_SET HEADERS
        BASE_DIRS ${LAYER_INCLUDE_DIR} FILES ${LAYER_HEADERS})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${LAYER_PUBLIC} PRIVATE daskel_options ${LAYER_PRIVATE})
    set_target_properties(${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
    daskel_use_precompiled_headers(${name} ${LAYER_PUBLIC})
    if(kind STREQUAL "SHARED")
        set_target_properties(${name} PROPERTIES
            OUTPUT_NAME ${LAYER_OUTPUT_NAME}
            VERSION ${PROJECT_VERSION}
            SOVERSION ${PROJECT_VERSION_MAJOR})
    endif()
endfunction()

# daskel_add_test(<name> [LABELS <labels>] [SOURCES <files>] LINK <targets>)
# builds <name>.cpp (and SOURCES) into one test binary and registers it.
# The label "threaded" marks what also runs under ThreadSanitizer; the target threaded_tests
# builds just those.
add_custom_target(threaded_tests)
set(DASKEL_LEAKS_NOT_OURS
    LSAN_OPTIONS=suppressions=${CMAKE_CURRENT_LIST_DIR}/leaks.txt:print_suppressions=0)
function(daskel_add_test name)
    cmake_parse_arguments(TEST "" "" "LABELS;SOURCES;LINK" ${ARGN})
    add_executable(${name} ${name}.cpp ${TEST_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support)
    target_link_libraries(${name} PRIVATE ${TEST_LINK} Qt5::Test daskel_options)
    daskel_use_precompiled_headers(${name} ${TEST_LINK})
    if("threaded" IN_LIST TEST_LABELS)
        add_dependencies(threaded_tests ${name})
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        LABELS "${TEST_LABELS}"
        TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;${DASKEL_LEAKS_NOT_OURS}")
endfunction()
