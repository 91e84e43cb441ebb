// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_EXTENDEDSTORAGE_P_H
#define MKCAL_EXTENDEDSTORAGE_P_H

#include <mkcal/extendedstorage.h>

#include <QList>

namespace mKCal
{
class ExtendedStoragePrivate
{
public:
    explicit ExtendedStoragePrivate(const ExtendedCalendar::Ptr &storedCalendar)
        : calendar(storedCalendar)
    {
    }

    /// Calls @p notice for each observer that is still registered when its turn comes.
    template <typename Notice> void notify(const Notice &notice)
    {
        const QList<ExtendedStorageObserver *> present = observers;
        for (ExtendedStorageObserver *observer : present) {
            if (observers.contains(observer))
                notice(observer);
        }
    }

    ExtendedCalendar::Ptr calendar;
    QList<ExtendedStorageObserver *> observers;
};
} // namespace mKCal

#endif
