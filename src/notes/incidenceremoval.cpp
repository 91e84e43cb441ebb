// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidenceremoval.h"

#include <daskel/db_instance.h>

namespace
{
mKCal::ExtendedCalendar::Ptr calendar()
{
    return DbInstance::instance()->calendar();
}

/// Under which start the series has what is shown from \a start on.
QVector<KDateTime> possibleStarts(KCalCore::Incidence::Ptr series, const KDateTime &recurrenceId,
                                  const KDateTime &start)
{
    if (recurrenceId.isValid())
        return {recurrenceId};
    // What is shown may be the piece of a later day.
    const QDateTime shown = start.isValid() ? start.dateTime() : series->dtStart();
    return {KDateTime(shown), KDateTime(DbInstance::incidenceRecurrenceStart(series, shown))};
}

/// A called-off occurrence is no note of its own: it leaves nothing but the gap.
bool removeCancelled(const KCalCore::Incidence::Ptr &series, const KDateTime &recurrenceId)
{
    const auto exception = calendar()->incidence(series->uid(), recurrenceId);
    if (!recurrenceId.isValid() || !exception)
        return false;
    series->startUpdates();
    if (series->allDay())
        series->recurrence()->addExDate(exception->recurrenceId().date());
    else
        series->recurrence()->addExDateTime(exception->recurrenceId());
    series->endUpdates();
    return calendar()->deleteIncidence(exception);
}

bool removeOccurrence(const KCalCore::Incidence::Ptr &series, const KDateTime &recurrenceId,
                      const KDateTime &start)
{
    for (const KDateTime &occurrence : possibleStarts(series, recurrenceId, start)) {
        const auto detached = calendar()->dissociateSingleOccurrence(series, occurrence,
                                                                     KDateTime::Spec::LocalZone());
        if (detached)
            return calendar()->deleteIncidence(detached);
    }
    return removeCancelled(series, recurrenceId);
}

bool removeLater(const KCalCore::Incidence::Ptr &series, const KDateTime &recurrenceId,
                 const KDateTime &start)
{
    const QVector<KDateTime> starts = possibleStarts(series, recurrenceId, start);
    for (const KDateTime &first : starts) {
        if (const auto later = calendar()->splitSeries(series, first))
            return calendar()->deleteIncidence(later);
    }
    // Nothing is left before the first occurrence.
    const QDateTime first = starts.last().dateTime();
    return first <= series->dtStart() && calendar()->deleteIncidence(series);
}
} // namespace

bool IncidenceRemoval::remove(const QString &uid, const KDateTime &recurrenceId,
                              const KDateTime &start, NoteDeletion::Extent extent)
{
    const auto shown = DbInstance::instance()->incidence(uid, recurrenceId);
    const auto series = DbInstance::instance()->incidence(uid, KDateTime());
    const KCalCore::Incidence::Ptr whole = series ? series : shown;
    if (!shown)
        return false;
    KCalCore::Incidence::List before{KCalCore::Incidence::Ptr(whole->clone())};
    const KCalCore::Incidence::List exceptions = calendar()->instances(whole);
    for (const KCalCore::Incidence::Ptr &exception : exceptions)
        before.append(KCalCore::Incidence::Ptr(exception->clone()));
    const QString notebook = calendar()->notebook(whole);

    bool isDone = false;
    if (!whole->recurs() || extent == NoteDeletion::WholeSeries)
        isDone = calendar()->deleteIncidence(whole);
    else if (extent == NoteDeletion::ThisAndLater)
        isDone = removeLater(whole, recurrenceId, start);
    else
        isDone = removeOccurrence(whole, recurrenceId, start);
    if (isDone) {
        m_before = before;
        m_notebook = notebook;
    }
    return isDone;
}

void IncidenceRemoval::putBack()
{
    for (const KCalCore::Incidence::Ptr &incidence : qAsConst(m_before))
        calendar()->addIncidence(incidence, m_notebook);
    m_before.clear();
}
