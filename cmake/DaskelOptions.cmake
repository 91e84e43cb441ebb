# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# What every target is compiled with, in one interface target: daskel_options.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

option(DASKEL_WERROR "Warnings are errors" OFF)
set(DASKEL_SANITIZERS "" CACHE STRING "Sanitizers to build with, such as address,undefined")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

add_library(daskel_options INTERFACE)
target_compile_options(daskel_options INTERFACE
    -Wall -Wextra -Wshadow -Woverloaded-virtual
    $<$<BOOL:${DASKEL_WERROR}>:-Werror>)
target_compile_definitions(daskel_options INTERFACE
    QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS
    QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00
    KCALENDARCORE_DISABLE_DEPRECATED_BEFORE_AND_AT=0x056700)

if(DASKEL_SANITIZERS)
    target_compile_options(daskel_options INTERFACE
        -fsanitize=${DASKEL_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(daskel_options INTERFACE -fsanitize=${DASKEL_SANITIZERS})
endif()
