// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/dateranges.h"

#include <algorithm>

namespace mKCal
{
namespace
{
qint64 secondsOf(const QDate &date)
{
    static const QDate epoch(1970, 1, 1);
    return epoch.daysTo(date) * 86400;
}
} // namespace

qint64 DateRange::firstKey() const
{
    return secondsOf(first) - 86400;
}

qint64 DateRange::endKey() const
{
    return secondsOf(last) + 2 * 86400;
}

void DateRanges::add(const DateRange &range)
{
    DateRange merged = range;
    QVector<DateRange> others;
    for (const DateRange &known : qAsConst(m_ranges)) {
        if (known.last.addDays(1) < merged.first || merged.last.addDays(1) < known.first) {
            others.append(known);
        } else {
            merged.first = std::min(merged.first, known.first);
            merged.last = std::max(merged.last, known.last);
        }
    }
    const auto later = std::find_if(others.begin(), others.end(), [&](const DateRange &other) {
        return merged.first < other.first;
    });
    others.insert(later, merged);
    m_ranges = others;
}

QVector<DateRange> DateRanges::missing(const DateRange &range) const
{
    QVector<DateRange> gaps;
    DateRange rest = range;
    for (const DateRange &known : m_ranges) {
        if (known.last < rest.first)
            continue;
        if (rest.last < known.first)
            break;
        if (rest.first < known.first)
            gaps.append({rest.first, known.first.addDays(-1)});
        rest.first = known.last.addDays(1);
    }
    if (rest.isValid())
        gaps.append(rest);
    return gaps;
}

bool DateRanges::overlaps(qint64 startKey, qint64 endKey) const
{
    return std::any_of(m_ranges.begin(), m_ranges.end(), [&](const DateRange &range) {
        return startKey < range.endKey() && endKey > range.firstKey();
    });
}
} // namespace mKCal
