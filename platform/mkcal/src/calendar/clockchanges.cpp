// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "clockgaps.h"

#include <QHash>

#include <algorithm>
#include <mutex>

namespace mKCal
{
ClockGaps ClockGaps::of(const QTimeZone &zone)
{
    static std::mutex mutex;
    static QHash<QByteArray, ClockGaps> known;
    const std::lock_guard<std::mutex> lock(mutex);
    const auto found = known.constFind(zone.id());
    if (found != known.constEnd()) {
        return *found;
    }
    ClockGaps gaps;
    gaps.m_gaps = find(zone);
    known.insert(zone.id(), gaps);
    return gaps;
}

QVector<ClockGaps::Gap> ClockGaps::find(const QTimeZone &zone)
{
    QVector<Gap> gaps;
    const QDateTime from(QDate(1970, 1, 1), QTime(0, 0), Qt::UTC);
    const QDateTime to(QDate(2100, 1, 1), QTime(0, 0), Qt::UTC);
    int offset = zone.offsetFromUtc(from);
    const auto transitions = zone.transitions(from, to);
    for (const QTimeZone::OffsetData &transition : transitions) {
        const qint64 seconds = transition.atUtc.toSecsSinceEpoch();
        if (transition.offsetFromUtc > offset) {
            gaps.append({seconds * 1000, seconds + offset, seconds + transition.offsetFromUtc});
        }
        offset = transition.offsetFromUtc;
    }
    return gaps;
}

bool ClockGaps::skip(const QTime &time, Msecs from, Msecs to) const
{
    const auto isBefore = [](const Gap &gap, Msecs moment) { return gap.moment < moment; };
    auto gap = std::lower_bound(m_gaps.cbegin(), m_gaps.cend(), from - msecsPerDay, isBefore);
    const qint64 secondOfDay = time.msecsSinceStartOfDay() / 1000;
    for (; gap != m_gaps.cend() && gap->moment <= to + msecsPerDay; ++gap) {
        const qint64 intoDay = gap->begin % 86400;
        const qint64 until = secondOfDay - intoDay + (secondOfDay < intoDay ? 86400 : 0);
        if (until < gap->end - gap->begin) {
            return true;
        }
    }
    return false;
}
} // namespace mKCal
