// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_DATERANGES_H
#define MKCAL_DATERANGES_H

#include <QDate>
#include <QVector>

namespace mKCal
{
/// The days from first to last, both included.
struct DateRange {
    QDate first;
    QDate last;

    bool isValid() const { return first.isValid() && last.isValid() && first <= last; }
    // The derived keys of a row are seconds in UTC, or wall clock read as UTC; no zone is more than
    // a day away, so with a day more on both sides the range holds in every zone.
    /// The first second whose keys may belong to the range.
    qint64 firstKey() const;
    /// The second after the last one whose keys may belong to the range.
    qint64 endKey() const;
};

/// A set of days.
class DateRanges
{
public:
    void add(const DateRange &range);
    void clear() { m_ranges.clear(); }
    /// The parts of @p range that are not in the set, in order.
    QVector<DateRange> missing(const DateRange &range) const;
    /// Whether something with these keys may lie on one of the days; @p endKey is exclusive.
    bool overlaps(qint64 startKey, qint64 endKey) const;

private:
    QVector<DateRange> m_ranges; ///< ordered; neither touching nor overlapping
};
} // namespace mKCal

#endif
