// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_SCHEMA_H
#define MKCAL_SCHEMA_H

namespace mKCal
{
class Connection;

/// The layout of the database file, by numbered steps: step n (`schema/n.sql`) leads from version
/// n - 1 to version n, and a new file goes through all of them from step 0. `user_version` holds
/// the version, `application_id` tells our files from those of other programs.
class Schema
{
public:
    static constexpr int currentVersion = 1;
    static constexpr int applicationId = 0x64736b6c; // "dskl"

    /// Makes the tables in an empty file and upgrades those of an older version, after a copy of
    /// the file was written beside it (`<file>.v<version>-<UTC date and time>`). Refuses a newer
    /// version and a file of another program. The reason is in the connection's lastError().
    static bool prepare(Connection &connection);
    /// Whether the file is ours and of a version that is known here, be it an older one.
    static bool isKnown(Connection &connection);
    /// -1 when it cannot be read.
    static int version(Connection &connection);
};
} // namespace mKCal

#endif
