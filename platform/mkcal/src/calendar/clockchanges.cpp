// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "clockchanges.h"

#include <QHash>

#include <algorithm>
#include <mutex>

namespace mKCal
{
ClockChanges ClockChanges::of(const QTimeZone &zone)
{
    static std::mutex mutex;
    static QHash<QByteArray, ClockChanges> known;
    const std::lock_guard<std::mutex> lock(mutex);
    const auto found = known.constFind(zone.id());
    if (found != known.constEnd()) {
        return *found;
    }
    ClockChanges changes;
    changes.m_changes = find(zone);
    known.insert(zone.id(), changes);
    return changes;
}

QVector<ClockChanges::Change> ClockChanges::find(const QTimeZone &zone)
{
    QVector<Change> changes;
    const QDateTime from(QDate(1970, 1, 1), QTime(0, 0), Qt::UTC);
    const QDateTime to(QDate(2100, 1, 1), QTime(0, 0), Qt::UTC);
    int offset = zone.offsetFromUtc(from);
    const auto transitions = zone.transitions(from, to);
    for (const QTimeZone::OffsetData &transition : transitions) {
        const qint64 seconds = transition.atUtc.toSecsSinceEpoch();
        if (transition.offsetFromUtc != offset) {
            changes.append({seconds * 1000, seconds + qMin(offset, transition.offsetFromUtc),
                            seconds + qMax(offset, transition.offsetFromUtc)});
        }
        offset = transition.offsetFromUtc;
    }
    return changes;
}

bool ClockChanges::concern(const QTime &time, Msecs from, Msecs to) const
{
    const auto isBefore = [](const Change &change, Msecs moment) { return change.moment < moment; };
    auto change =
        std::lower_bound(m_changes.cbegin(), m_changes.cend(), from - msecsPerDay, isBefore);
    const qint64 secondOfDay = time.msecsSinceStartOfDay() / 1000;
    for (; change != m_changes.cend() && change->moment <= to + msecsPerDay; ++change) {
        const qint64 intoDay = change->begin % 86400;
        const qint64 until = secondOfDay - intoDay + (secondOfDay < intoDay ? 86400 : 0);
        if (until < change->end - change->begin) {
            return true;
        }
    }
    return false;
}
} // namespace mKCal
