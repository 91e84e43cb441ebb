# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# The worked example of the README, taken out of it: its header, source and theme.
set(readme ${PROJECT_SOURCE_DIR}/platform/touchcore/README.md)
set(example ${CMAKE_CURRENT_BINARY_DIR}/readmeexample)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${readme})
file(READ ${readme} text)
foreach(part "cpp\n// badge.h" "cpp\n// badge.cpp" "json")
    string(FIND "${text}" "```${part}\n" start)
    string(LENGTH "```${part}\n" length)
    math(EXPR start "${start} + ${length}")
    string(SUBSTRING "${text}" ${start} -1 rest)
    string(FIND "${rest}" "```\n" end)
    string(SUBSTRING "${rest}" 0 ${end} block)
    string(REGEX REPLACE "^.*// " "" name "${part}")
    string(REPLACE "json" "badge.json" name "${name}")
    file(CONFIGURE OUTPUT ${example}/${name} CONTENT "${block}" @ONLY)
endforeach()

daskel_add_test(tst_readmeexample
    SOURCES ${example}/badge.h ${example}/badge.cpp LINK tarvotouchcore)
target_include_directories(tst_readmeexample PRIVATE ${example})
target_compile_definitions(tst_readmeexample PRIVATE EXAMPLE_THEME="${example}/badge.json")
