// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_EXTENDEDSTORAGEOBSERVER_H
#define MKCAL_EXTENDEDSTORAGEOBSERVER_H

#include <QString>

namespace mKCal
{
class ExtendedStorage;

/// Somebody who wants to know when the stored calendar changed. Called on the UI thread.
class ExtendedStorageObserver
{
public:
    virtual ~ExtendedStorageObserver() = default;

    /// The stored calendar changed: synchronously inside save() for a change made here (exactly
    /// once for each successful save, also when there was nothing to write), from the event loop
    /// for a change made by another process, which is already in the calendar then.
    /// @param info what changed, for diagnostics.
    virtual void storageModified(ExtendedStorage *storage, const QString &info) = 0;
    /// A long operation goes on.
    virtual void storageProgress(ExtendedStorage *storage, const QString &info) = 0;
    /// A long operation ended. @param error whether it failed.
    virtual void storageFinished(ExtendedStorage *storage, bool error, const QString &info) = 0;
};
} // namespace mKCal

#endif
