// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_OCCURRENCES_H
#define MKCAL_OCCURRENCES_H

#include "seriesrules.h"

#include <QSet>

#include <functional>

namespace mKCal
{
/// One time that an incidence takes place.
struct Occurrence {
    TimeSpan span;
    /// Whose length and texts count: the series, or the THISANDFUTURE exception that has taken
    /// over.
    KCalCore::Incidence::Ptr incidence;
};

/// The occurrences of a series, without those that an exception replaces.
///
/// THISANDFUTURE exceptions (RFC 5545, 3.2.13) cut the series into stretches: in each one counts
/// the distance between the exception's start and the start that it replaces, its length and its
/// texts. A cancelled one leaves its stretch empty.
class SeriesOccurrences
{
public:
    enum Next { Continue, Stop };
    /// Called with the start that the rules give the occurrence: its recurrence identifier.
    using Visitor = std::function<Next(const Occurrence &, const SeriesWalk &)>;

    /// @param series an incidence that recurs.
    /// @param exceptions those of its UID.
    SeriesOccurrences(const KCalCore::Incidence::Ptr &series,
                      const KCalCore::Incidence::List &exceptions, const ZoneClock &clock);

    /// Those that overlap the time from @p from to @p to, in the order of the rules' starts.
    /// @param mostRunning how many that began before @p from are handed out at most.
    void visit(Msecs from, Msecs to, const Visitor &visitor, int mostRunning = 1000) const;
    /// The one that takes place at @p start, or that the rules have there; false when there is
    /// none. @p recurrenceId is set to the start that the rules give it.
    bool find(const QDateTime &start, Occurrence *found, QDateTime *recurrenceId) const;

private:
    struct Stretch {
        KCalCore::Incidence::Ptr incidence;
        qint64 firstKey; ///< of the first start that belongs to it
        Length length;
        bool isShifted = false;
        qint64 shift = 0; ///< in seconds of the wall clock
        QTimeZone zone; ///< in which its starts are read when it is shifted
    };

    Stretch stretchOf(const KCalCore::Incidence::Ptr &incidence) const;
    Occurrence occurrenceOf(const Stretch &stretch, const SeriesWalk &walk) const;
    /// No start up to that key lasts until @p from.
    qint64 keyBefore(const Stretch &stretch, Msecs from) const;

    KCalCore::Incidence::Ptr m_series;
    SeriesScale m_scale;
    QSet<qint64> m_replaced;
    QVector<Stretch> m_stretches; ///< by firstKey
    qint64 m_longestPeriod = 0; ///< of the RDATE periods, in seconds
};
} // namespace mKCal

#endif
