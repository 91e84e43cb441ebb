# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

foreach(test tst_basetheme tst_mdesktopscheme tst_mscalableimage tst_mstylablewidget tst_mtheme
        tst_mviewfactory tst_mwidget tst_mwidgetcontroller tst_mwidgetmodel tst_mwidgetstyle
        tst_stylerules)
    daskel_add_test(${test} LINK tarvotouchcore)
    target_include_directories(${test} PRIVATE ${PROJECT_SOURCE_DIR}/platform/touchcore/src)
endforeach()

# It starts a message bus of its own.
target_sources(tst_mdesktopscheme PRIVATE fakeportal.h)
target_link_libraries(tst_mdesktopscheme PRIVATE Qt5::DBus)
target_include_directories(tst_mdesktopscheme PRIVATE ${PROJECT_SOURCE_DIR}/platform/systemtime/tests)

include(readme.cmake)

# A theme that lies where it would be installed beside the test.
file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/../share/daskel/themes/installed/theme.json
    CONTENT "{\"measures\": {\"installedProbe\": 1, \"installedOther\": 7}}\n")

target_link_libraries(tst_mscalableimage PRIVATE Qt5::Svg)
target_link_libraries(tst_basetheme PRIVATE touchcore_style_classes Qt5::Svg)
target_compile_definitions(tst_basetheme PRIVATE
    LIBRARY_THEME="${PROJECT_SOURCE_DIR}/themes/libdaskel/theme.json")
