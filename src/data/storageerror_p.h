// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_STORAGEERROR_P_H
#define DASKEL_STORAGEERROR_P_H

#include <mkcal/sqlitestorage.h>

namespace Daskel
{
/// Whether the device failed: @p errors, a list of codes that an SQLite storage keeps, holds
/// SQLITE_IOERR (10). Other storages keep no codes.
inline bool hasStorageError10(const mKCal::ExtendedStorage::Ptr &storage,
                              QList<int> (mKCal::SqliteStorage::*errors)() const)
{
    const auto sqlite = storage.dynamicCast<mKCal::SqliteStorage>();
    return sqlite && (sqlite.data()->*errors)().contains(10);
}
} // namespace Daskel

#endif
