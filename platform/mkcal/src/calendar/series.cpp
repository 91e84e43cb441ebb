// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "extendedcalendar_p.h"
#include "occurrences.h"
#include "seriescut.h"

#include <kcalcompat/ksystemtimezones.h>

#include <KCalendarCore/Todo>

#include <algorithm>

using namespace mKCal;

namespace
{
/// A copy of its own: new UID, no recurrence.
KCalCore::Incidence::Ptr loneCopy(const KCalCore::Incidence &incidence)
{
    KCalCore::Incidence::Ptr copy(incidence.clone());
    copy->recreate();
    copy->setRecurrenceId(QDateTime());
    copy->setThisAndFuture(false);
    if (copy->recurs()) {
        copy->recurrence()->clear();
    }
    if (auto todo = copy.dynamicCast<KCalCore::Todo>()) {
        todo->setDtRecurrence(QDateTime());
    }
    return copy;
}

void exclude(KCalCore::Incidence *series, const QDateTime &recurrenceId)
{
    series->startUpdates();
    if (series->allDay()) {
        series->recurrence()->addExDate(recurrenceId.date());
    } else {
        series->recurrence()->addExDateTime(recurrenceId);
    }
    series->endUpdates();
}

QDateTime startIn(const KDateTime &occurrence, const KDateTime::Spec &timeSpec)
{
    const bool isDate = occurrence.isDateOnly() || !timeSpec.isValid();
    return (isDate ? occurrence : occurrence.toTimeSpec(timeSpec)).dateTime();
}

/// The start of @p series, at that key or later, that no exception replaces; null for none.
QDateTime freeStart(const KCalCore::Incidence &series, const KCalCore::Incidence::List &exceptions,
                    const SeriesScale &scale, qint64 key)
{
    QSet<qint64> replaced;
    for (const KCalCore::Incidence::Ptr &exception : exceptions) {
        replaced.insert(scale.keyOf(exception->recurrenceId()));
    }
    const Msecs from = (key - 86400) * 1000;
    SeriesWalk walk(series, scale, from, from + 3650 * msecsPerDay);
    walk.goAfter(key - 1);
    while (walk.next()) {
        if (!replaced.contains(walk.key())) {
            return walk.recurrenceId();
        }
    }
    return {};
}

/// The THISANDFUTURE exception that is in force at @p key; null for none.
KCalCore::Incidence::Ptr inForce(const KCalCore::Incidence::List &exceptions,
                                 const SeriesScale &scale, qint64 key)
{
    KCalCore::Incidence::Ptr latest;
    qint64 latestKey = 0;
    for (const KCalCore::Incidence::Ptr &exception : exceptions) {
        const qint64 since = scale.keyOf(exception->recurrenceId());
        if (exception->thisAndFuture() && since <= key && (!latest || since > latestKey)) {
            latest = exception;
            latestKey = since;
        }
    }
    return latest;
}
} // namespace

KCalCore::Incidence::Ptr
ExtendedCalendarPrivate::detachException(const KCalCore::Incidence::Ptr &series,
                                         const KCalCore::Incidence::Ptr &exception)
{
    if (exception->status() == KCalCore::Incidence::StatusCanceled) {
        return {};
    }
    const QString notebook = q->notebook(series);
    auto detached = loneCopy(*exception);
    KCalCore::Incidence::Ptr carried;
    if (exception->thisAndFuture()) {
        const SeriesScale scale(*series, clock);
        const qint64 key = scale.keyOf(exception->recurrenceId());
        const QDateTime next = freeStart(*series, exceptionsOf(series->uid()), scale, key + 1);
        if (next.isValid()) {
            carried = carriedOn(*exception, next);
        }
    }
    q->deleteIncidence(exception);
    exclude(series.data(), exception->recurrenceId());
    if (carried) {
        q->addIncidence(carried, notebook);
    }
    q->addIncidence(detached, notebook);
    return detached;
}

KCalCore::Incidence::Ptr
ExtendedCalendar::dissociateSingleOccurrence(const KCalCore::Incidence::Ptr &incidence,
                                             const KDateTime &occurrence,
                                             const KDateTime::Spec &timeSpec)
{
    if (!d->contains(incidence) || !incidence->recurs() || !occurrence.isValid()) {
        return {};
    }
    const QDateTime start = startIn(occurrence, timeSpec);
    if (const auto exception = d->find(incidence->uid(), KDateTime(start))) {
        return d->detachException(incidence, exception);
    }
    Occurrence found;
    QDateTime recurrenceId;
    const SeriesOccurrences occurrences(incidence, d->exceptionsOf(incidence->uid()), d->clock);
    if (!occurrences.find(start, &found, &recurrenceId)) {
        return {};
    }
    auto detached = loneCopy(*found.incidence);
    moveTo(detached.data(), found.span, d->clock);
    exclude(incidence.data(), recurrenceId);
    addIncidence(detached, notebook(incidence));
    return detached;
}

KCalCore::Incidence::Ptr ExtendedCalendar::splitSeries(const KCalCore::Incidence::Ptr &incidence,
                                                       const KDateTime &firstLater)
{
    if (!d->contains(incidence) || !incidence->recurs() || !firstLater.isValid()) {
        return {};
    }
    const ZoneClock &clock = d->clock;
    const SeriesScale scale(*incidence, clock);
    const KCalCore::Incidence::List exceptions = d->exceptionsOf(incidence->uid());
    Occurrence found;
    QDateTime first;
    // Where an exception stands the rules count, or there would be no cutting before it.
    if (!SeriesOccurrences(incidence, {}, clock).find(firstLater.dateTime(), &found, &first)
        && !SeriesOccurrences(incidence, exceptions, clock)
                .find(firstLater.dateTime(), &found, &first)) {
        return {};
    }
    const qint64 key = scale.keyOfStart(first);
    const QDateTime earliest = freeStart(*incidence, {}, scale, scale.keyOfStart(scale.first) - 1);
    const SeriesCut cut(incidence, first, clock);
    auto later = scale.keyOfStart(earliest) < key ? cut.laterPart() : nullptr;
    if (!later) {
        return {};
    }
    const QString notebookUid = notebook(incidence);
    KCalCore::Incidence::List moving;
    std::copy_if(exceptions.cbegin(), exceptions.cend(), std::back_inserter(moving),
                 [&](const auto &other) { return scale.keyOf(other->recurrenceId()) >= key; });
    const auto ruling = inForce(exceptions, scale, key);
    const QDateTime carriedTo = freeStart(*incidence, moving, scale, key);
    const bool isCarried = ruling && !moving.contains(ruling) && carriedTo.isValid();

    cut.endEarlier();
    addIncidence(later, notebookUid);
    for (const KCalCore::Incidence::Ptr &exception : qAsConst(moving)) {
        deleteIncidence(exception);
        exception->setUid(later->uid());
        addIncidence(exception, notebookUid);
    }
    if (isCarried) {
        const auto carried = carriedOn(*ruling, carriedTo);
        carried->setUid(later->uid());
        addIncidence(carried, notebookUid);
    }
    return later;
}

QDateTime mKCal::occurrenceEnd(const KCalCore::Incidence::Ptr &incidence,
                               const QDateTime &occurrenceStart)
{
    if (!incidence || !occurrenceStart.isValid()) {
        return {};
    }
    if (const auto todo = incidence.dynamicCast<KCalCore::Todo>()) {
        const bool takesTime = todo->hasStartDate() && todo->hasDueDate();
        return takesTime
            ? shiftedByWall(occurrenceStart,
                            wallSeconds(todo->dtDue(true)) - wallSeconds(todo->dtStart(true)))
            : occurrenceStart;
    }
    if (incidence->type() != KCalCore::IncidenceBase::TypeEvent) {
        return occurrenceStart;
    }
    if (incidence->recurs()) {
        const auto period = incidence->recurrence()->rDateTimePeriod(occurrenceStart);
        if (period.isValid()) {
            return inSpecOf(occurrenceStart, period.end());
        }
    }
    const Length length = Length::of(*incidence);
    if (length.allDay || length.days == 0) {
        return shiftedByWall(occurrenceStart, length.days * 86400).addSecs(length.seconds);
    }
    const QDateTime own = inSpecOf(incidence->dtStart(), occurrenceStart);
    return inSpecOf(occurrenceStart, shiftedByWall(own, length.days * 86400));
}

QDateTime mKCal::previousOccurrence(const KCalCore::Incidence::Ptr &incidence,
                                    const QDateTime &time)
{
    if (!incidence || !time.isValid()) {
        return {};
    }
    if (!incidence->recurs()) {
        const QDateTime start = incidence->dtStart();
        return start.isValid() && start <= time ? start : QDateTime();
    }
    const SeriesScale scale(*incidence, ZoneClock(KSystemTimeZones::local()));
    const Msecs moment = time.toMSecsSinceEpoch();
    SeriesWalk walk(*incidence, scale, scale.first.toMSecsSinceEpoch(), moment);
    return walk.goToLast(scale.keyAt(moment)) ? walk.recurrenceId() : QDateTime();
}
