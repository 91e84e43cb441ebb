// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_SERIESRULES_H
#define MKCAL_SERIESRULES_H

#include "incidencetimes.h"

#include <KCalendarCore/Recurrence>

#include <memory>

namespace mKCal
{
/// A moment that the last occurrence of a rule with a count does not pass, later than that by less
/// than one step of the rule; null when only counting them would tell, which can take milliseconds.
QDateTime boundOfCount(const KCalCore::RecurrenceRule &rule);

/// From the first start of a series to the end of its last occurrence (DateIndex::endless for
/// none), as its rules and RDATEs say; a THISANDFUTURE exception among @p exceptions moves it. The
/// end may be later than that of the last occurrence by less than one step of a rule: counting a
/// rule out can cost milliseconds.
/// @param first what spanOf() gives for @p series.
TimeSpan lifeOfSeries(const KCalCore::Incidence &series, const TimeSpan &first,
                      const KCalCore::Incidence::List &exceptions, const ZoneClock &clock);

/// What the starts of a series are counted in.
struct SeriesScale {
    SeriesScale(const KCalCore::Incidence &series, const ZoneClock &calendarClock);

    ZoneClock clock; ///< the calendar's
    QDateTime first; ///< where the rules start; they are in its time spec
    QTimeZone zone; ///< that first is in
    bool isAllDay;
    bool isWallBound;
    bool countsMoments; ///< it repeats within the day: both passes of an hour that comes twice

    /// What tells the starts of one series apart and orders them: seconds since 1970, of the wall
    /// clock when the series is bound to it. For a start in the series' own zone.
    qint64 keyOfStart(const QDateTime &start) const;
    /// The key of the start that a recurrence identifier names.
    qint64 keyOf(const QDateTime &recurrenceId) const;
    /// The key of a moment.
    qint64 keyAt(Msecs moment) const;
};

/// Walks the starts of a series one by one, in their order, by the recurrence engine of
/// KCalendarCore, and makes up for what that loses or cannot bear.
class SeriesWalk
{
public:
    /// For starts from @p from to @p to. The series must recur and outlive the walk.
    SeriesWalk(const KCalCore::Incidence &series, const SeriesScale &scale, Msecs from, Msecs to);

    /// Goes on with the first start after the one that @p key would be of.
    void goAfter(qint64 key);
    /// Goes to the next start; false when there is none.
    bool next();
    /// Goes to the last start up to @p key; false when there is none.
    bool goToLast(qint64 key);

    qint64 key() const { return m_scale.keyOfStart(m_scale.isAllDay ? m_current : start()); }
    /// The current start in the series' own zone, in the calendar's when it is bound to the wall.
    QDateTime start() const;
    /// The current start as a recurrence identifier: in the time spec of the series' start.
    QDateTime recurrenceId() const;

private:
    bool needsWallCopy(Msecs from, Msecs to) const;

    SeriesScale m_scale;
    const KCalCore::Recurrence *m_recurrence;
    std::unique_ptr<KCalCore::Recurrence> m_copy;
    bool m_isWallCopy = false; ///< m_copy counts the wall clock as UTC
    QDateTime m_current;
};
} // namespace mKCal

#endif
