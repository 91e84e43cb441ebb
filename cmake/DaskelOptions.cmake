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
option(DASKEL_PCH "Precompile common headers" OFF)
set(DASKEL_SANITIZERS "" CACHE STRING "Sanitizers to build with, such as address,undefined")

# Libraries are found beside the program that was installed with them, wherever the prefix lies.
file(RELATIVE_PATH DASKEL_BIN_TO_LIB ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set(CMAKE_INSTALL_RPATH $ORIGIN $ORIGIN/${DASKEL_BIN_TO_LIB})

# With paths relative to the checkout, build folders of equal options share what is compiled. A
# precompiled header hides times and macros from the compiler's cache, which then must not ask.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        ${CCACHE_PROGRAM})
endif()

add_library(daskel_options INTERFACE)
target_compile_options(daskel_options INTERFACE
    -Wall -Wextra -Wshadow -Woverloaded-virtual
    $<$<BOOL:${DASKEL_WERROR}>:-Werror>
    $<$<BOOL:${DASKEL_PCH}>:-fpch-preprocess>)
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
