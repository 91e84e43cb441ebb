// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "preloadrange_p.h"

#include <algorithm>

namespace Daskel
{
DateRange calendarPreloadRange(const QDate &today)
{
    const int month = today.month();
    // January keeps January: the page of January is rarely turned back to the old year, and the
    // week before today, below, covers what is near.
    const int startMonth = std::max(month - 1, 1);
    const int endMonth = month % 12 + 1;
    const int endYear = month == 12 ? today.year() + 1 : today.year();
    return {std::min(QDate(today.year(), startMonth, 23), today.addDays(-7)),
            std::max(QDate(endYear, endMonth, 21), today.addDays(28))};
}
} // namespace Daskel
