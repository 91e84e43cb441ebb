# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# The storage: what is loaded, what is unsaved, what others changed, and the calls on it.

set(MKCAL_STORAGE_SOURCES
    src/storage/changemarker.cpp
    src/storage/changerecord.cpp
    src/storage/changewatcher.cpp
    src/storage/dateranges.cpp
    src/storage/extendedstorage.cpp
    src/storage/foreignchanges.cpp
    src/storage/incidenceloader.cpp
    src/storage/loadrecord.cpp
    src/storage/reminderschedule.cpp
    src/storage/sqlitebulkwriter.cpp
    src/storage/sqlitestorage.cpp
    src/storage/sqlitestorage_load.cpp
    src/storage/sqlitestorage_notebooks.cpp
    src/storage/sqlitestorage_query.cpp
    src/storage/sqlitestorage_reminders.cpp
    src/storage/sqlitestorage_save.cpp)
