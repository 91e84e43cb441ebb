// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_SERIESCUT_H
#define MKCAL_SERIESCUT_H

#include "seriesrules.h"

namespace mKCal
{
/// Gives an incidence the times of @p span, each in the time spec that it had before.
void moveTo(KCalCore::Incidence *incidence, const TimeSpan &span, const ZoneClock &clock);

/// A THISANDFUTURE exception that goes on from a later start of its series: a copy, as far from
/// that start as @p exception is from the one that it replaces.
KCalCore::Incidence::Ptr carriedOn(const KCalCore::Incidence &exception,
                                   const QDateTime &recurrenceId);

/// Divides the rules and dates of a series at one of its starts.
class SeriesCut
{
public:
    /// @param first the start, as a recurrence identifier of @p series, with which the later part
    ///        begins.
    SeriesCut(const KCalCore::Incidence::Ptr &series, const QDateTime &first,
              const ZoneClock &clock);

    /// The series from the cut on, with a UID of its own. Null when the cut would change which
    /// occurrences there are: a rule that counts its steps from the old start cannot always be
    /// written from the new one.
    KCalCore::Incidence::Ptr laterPart() const;
    /// Ends the series before the cut.
    void endEarlier() const;

private:
    void divideRules(KCalCore::Recurrence *recurrence) const;
    bool divideRule(const KCalCore::RecurrenceRule &whole, KCalCore::RecurrenceRule *later) const;
    /// How many occurrences a rule with a count has before the cut.
    int countBefore(const KCalCore::RecurrenceRule &rule) const;
    bool endRule(KCalCore::RecurrenceRule *rule) const;
    bool isSameFromCutOn(const KCalCore::Incidence &later) const;
    bool isLater(const QDateTime &dateTime) const { return dateTime >= m_first; }

    KCalCore::Incidence::Ptr m_series;
    QDateTime m_first;
    ZoneClock m_clock;
};
} // namespace mKCal

#endif
