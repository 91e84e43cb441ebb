// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "recurrenceidentity.h"

namespace mKCal
{
QDate recurrenceDate(const QDateTime &recurrenceId, const QTimeZone &zone)
{
    const bool isMidnightElsewhere =
        recurrenceId.timeSpec() == Qt::UTC && recurrenceId.time() != QTime(0, 0);
    return isMidnightElsewhere ? recurrenceId.toTimeZone(zone).date() : recurrenceId.date();
}

bool isSameOccurrence(const QDateTime &a, const QDateTime &b, bool byDate, const QTimeZone &zone)
{
    return byDate ? recurrenceDate(a, zone) == recurrenceDate(b, zone)
                  : a.toSecsSinceEpoch() == b.toSecsSinceEpoch();
}
} // namespace mKCal
