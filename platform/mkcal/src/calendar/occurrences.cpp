// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "occurrences.h"

#include <algorithm>
#include <limits>

namespace mKCal
{
SeriesOccurrences::SeriesOccurrences(const KCalCore::Incidence::Ptr &series,
                                     const KCalCore::Incidence::List &exceptions,
                                     const ZoneClock &clock)
    : m_series(series), m_scale(*series, clock)
{
    m_stretches.append(stretchOf(series));
    for (const KCalCore::Incidence::Ptr &exception : exceptions) {
        m_replaced.insert(m_scale.keyOf(exception->recurrenceId()));
        if (exception->thisAndFuture() && anchor(*exception).isValid()) {
            m_stretches.append(stretchOf(exception));
        }
    }
    std::sort(m_stretches.begin(), m_stretches.end(),
              [](const Stretch &a, const Stretch &b) { return a.firstKey < b.firstKey; });

    const KCalCore::Recurrence &recurrence = *series->recurrence();
    const auto added = recurrence.rDateTimes();
    for (const QDateTime &start : added) {
        const KCalCore::Period period = recurrence.rDateTimePeriod(start);
        if (period.isValid()) {
            m_longestPeriod = qMax(m_longestPeriod, period.start().secsTo(period.end()));
        }
    }
}

SeriesOccurrences::Stretch
SeriesOccurrences::stretchOf(const KCalCore::Incidence::Ptr &incidence) const
{
    Stretch stretch;
    stretch.incidence = incidence;
    stretch.length = Length::of(*incidence);
    const QDateTime start = anchor(*incidence);
    QDateTime replaced = m_scale.first;
    if (incidence == m_series) {
        stretch.firstKey = std::numeric_limits<qint64>::min();
        stretch.isShifted = incidence->type() == KCalCore::IncidenceBase::TypeTodo;
    } else {
        stretch.firstKey = m_scale.keyOf(incidence->recurrenceId());
        stretch.isShifted = true;
        replaced = m_scale.isWallBound
            ? QDateTime::fromSecsSinceEpoch(stretch.firstKey, Qt::UTC)
            : QDateTime::fromSecsSinceEpoch(stretch.firstKey, m_scale.zone);
    }
    stretch.shift = wallSeconds(start) - wallSeconds(replaced);
    stretch.zone = isWallBound(*incidence) ? m_scale.clock.zone() : start.timeZone();
    return stretch;
}

Occurrence SeriesOccurrences::occurrenceOf(const Stretch &stretch, const SeriesWalk &walk) const
{
    QDateTime start = walk.start();
    if (stretch.isShifted) {
        const QDateTime wall =
            QDateTime::fromSecsSinceEpoch(wallSeconds(start) + stretch.shift, Qt::UTC);
        start = atWallClock(wall.date(), wall.time(), stretch.zone);
    }
    const Length &length = stretch.length;
    TimeSpan span;
    span.start = length.allDay ? m_scale.clock.dayStart(start.date()) : momentOf(start);
    span.end = qMax(span.start, length.endAfter(start, m_scale.clock));
    if (m_longestPeriod > 0 && stretch.incidence == m_series) {
        const KCalCore::Period period =
            m_series->recurrence()->rDateTimePeriod(walk.recurrenceId());
        if (period.isValid()) {
            span.end = period.end().toMSecsSinceEpoch();
        }
    }
    return {span, stretch.incidence};
}

qint64 SeriesOccurrences::keyBefore(const Stretch &stretch, Msecs from) const
{
    const qint64 lasting = qMax(stretch.length.atMostSeconds(), m_longestPeriod);
    if (stretch.isShifted) {
        // A day more, because the clock may change between the start and where it is moved to.
        return m_scale.keyAt(from - (lasting + stretch.shift + 86400) * 1000);
    }
    if (stretch.length.allDay && m_longestPeriod == 0) {
        const QDate lastPast = m_scale.clock.date(from).addDays(-stretch.length.days);
        return wallSeconds(QDateTime(lastPast, QTime(23, 59, 59), Qt::UTC));
    }
    return m_scale.keyAt(from - qMax<qint64>(1, lasting) * 1000);
}

void SeriesOccurrences::visit(Msecs from, Msecs to, const Visitor &visitor, int mostRunning) const
{
    SeriesWalk walk(*m_series, m_scale, from, to);
    int running = 0;
    for (int i = 0; i < m_stretches.size(); ++i) {
        const Stretch &stretch = m_stretches.at(i);
        const qint64 endKey = i + 1 < m_stretches.size() ? m_stretches.at(i + 1).firstKey
                                                         : std::numeric_limits<qint64>::max();
        if (stretch.incidence != m_series
            && stretch.incidence->status() == KCalCore::Incidence::StatusCanceled) {
            continue;
        }
        const qint64 before = keyBefore(stretch, from);
        walk.goAfter(i == 0 ? before : qMax(before, stretch.firstKey - 1));
        while (walk.next() && walk.key() < endKey) {
            const Occurrence occurrence = occurrenceOf(stretch, walk);
            if (occurrence.span.start >= to) {
                break;
            }
            if (!occurrence.span.overlaps(from, to) || m_replaced.contains(walk.key())) {
                continue;
            }
            if (occurrence.span.start < from && ++running > mostRunning) {
                walk.goAfter(qMax(walk.key(), m_scale.keyAt(from - 1000)));
                continue;
            }
            if (visitor(occurrence, walk) == Stop) {
                return;
            }
        }
    }
}

bool SeriesOccurrences::find(const QDateTime &start, Occurrence *found,
                             QDateTime *recurrenceId) const
{
    const Msecs moment = start.toMSecsSinceEpoch();
    bool isFound = false;
    visit(moment, moment + 1000, [&](const Occurrence &occurrence, const SeriesWalk &walk) {
        isFound = occurrence.span.start == moment;
        if (isFound) {
            *found = occurrence;
            *recurrenceId = walk.recurrenceId();
        }
        return isFound ? Stop : Continue;
    });
    if (isFound) {
        return true;
    }
    const qint64 key = m_scale.keyOf(start);
    SeriesWalk walk(*m_series, m_scale, moment - msecsPerDay, moment + msecsPerDay);
    walk.goAfter(key - 1);
    if (m_replaced.contains(key) || !walk.next() || walk.key() != key) {
        return false;
    }
    const auto after = std::upper_bound(
        m_stretches.cbegin(), m_stretches.cend(), key,
        [](qint64 wanted, const Stretch &stretch) { return wanted < stretch.firstKey; });
    const Stretch &stretch = *std::prev(after);
    *found = occurrenceOf(stretch, walk);
    *recurrenceId = walk.recurrenceId();
    return stretch.incidence == m_series
        || stretch.incidence->status() != KCalCore::Incidence::StatusCanceled;
}
} // namespace mKCal
