// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/extendedstorage_p.h"

#include <mkcal/extendedstorageobserver.h>

namespace mKCal
{
ExtendedStorage::ExtendedStorage(const ExtendedCalendar::Ptr &calendar)
    : d(std::make_unique<ExtendedStoragePrivate>(calendar))
{
}

ExtendedStorage::~ExtendedStorage() = default;

ExtendedCalendar::Ptr ExtendedStorage::calendar() const
{
    return d->calendar;
}

void ExtendedStorage::registerObserver(ExtendedStorageObserver *observer)
{
    if (observer && !d->observers.contains(observer))
        d->observers.append(observer);
}

void ExtendedStorage::unregisterObserver(ExtendedStorageObserver *observer)
{
    d->observers.removeAll(observer);
}

void ExtendedStorage::notifyModified(const QString &info)
{
    d->notify([&](ExtendedStorageObserver *observer) { observer->storageModified(this, info); });
}

void ExtendedStorage::notifyProgress(const QString &info)
{
    d->notify([&](ExtendedStorageObserver *observer) { observer->storageProgress(this, info); });
}

void ExtendedStorage::notifyFinished(bool error, const QString &info)
{
    d->notify(
        [&](ExtendedStorageObserver *observer) { observer->storageFinished(this, error, info); });
}
} // namespace mKCal
