# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# The database file below the storage: connection, schema, and incidences as rows.

set(MKCAL_SQLITE_SOURCES
    src/sqlite/childreader.cpp
    src/sqlite/childwriter.cpp
    src/sqlite/componentkeys.cpp
    src/sqlite/componentreader.cpp
    src/sqlite/componentwriter.cpp
    src/sqlite/connection.cpp
    src/sqlite/datetimecolumns.cpp
    src/sqlite/incidencecomparison.cpp
    src/sqlite/incidencecontent.cpp
    src/sqlite/metatable.cpp
    src/sqlite/notebooktable.cpp
    src/sqlite/recurrencereader.cpp
    src/sqlite/recurrencewriter.cpp
    src/sqlite/remindertable.cpp
    src/sqlite/schema.cpp
    src/sqlite/schema.qrc
    src/sqlite/statement.cpp
    src/sqlite/storagecheck.cpp
    src/sqlite/storagerepair.cpp)
