// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_PRELOADRANGE_P_H
#define DASKEL_PRELOADRANGE_P_H

#include <QDate>

namespace Daskel
{
struct DateRange {
    QDate start;
    QDate end;
};

/// What the calendar shows first, and so is loaded before it is asked for: this month with the
/// last and first weeks of its neighbours that a month page shows as well, and in any case the
/// week before @p today and the four weeks after it. Both days are part of the range.
DateRange calendarPreloadRange(const QDate &today);
} // namespace Daskel

#endif
