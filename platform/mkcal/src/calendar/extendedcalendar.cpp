// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "extendedcalendar_p.h"
#include "recurrenceidentity.h"
#include "seriesrules.h"

#include <kcalcompat/ksystemtimezones.h>

#include <algorithm>

using namespace mKCal;

namespace
{
QTimeZone validZone(const QTimeZone &zone)
{
    return zone.isValid() ? zone : KSystemTimeZones::local();
}
} // namespace

KCalCore::Incidence::List Family::members() const
{
    KCalCore::Incidence::List members = exceptions;
    if (series) {
        members.prepend(series);
    }
    return members;
}

ExtendedCalendarPrivate::ExtendedCalendarPrivate(ExtendedCalendar *calendar)
    : q(calendar), clock(calendar->timeZone())
{
}

KCalCore::Incidence::Ptr ExtendedCalendarPrivate::find(const QString &uid,
                                                       const KDateTime &recurrenceId) const
{
    const auto family = families.constFind(uid);
    if (family == families.constEnd()) {
        return {};
    }
    if (!recurrenceId.isValid()) {
        return family->series;
    }
    const QTimeZone zone = clock.zone();
    const bool isAllDaySeries = family->series && family->series->allDay();
    for (const KCalCore::Incidence::Ptr &exception : family->exceptions) {
        const bool byDate = recurrenceId.isDateOnly() || isAllDaySeries || exception->allDay();
        if (isSameOccurrence(exception->recurrenceId(), recurrenceId.dateTime(), byDate, zone)) {
            return exception;
        }
    }
    return {};
}

KCalCore::Incidence::Ptr ExtendedCalendarPrivate::find(const QString &uid,
                                                       const QDateTime &recurrenceId) const
{
    return find(uid, recurrenceId.isValid() ? KDateTime(recurrenceId) : KDateTime());
}

bool ExtendedCalendarPrivate::contains(const KCalCore::Incidence::Ptr &incidence) const
{
    return incidence && dates.find(incidence.data()) != nullptr;
}

KCalCore::Incidence::List ExtendedCalendarPrivate::exceptionsOf(const QString &uid) const
{
    const auto family = families.constFind(uid);
    return family == families.constEnd() ? KCalCore::Incidence::List() : family->exceptions;
}

void ExtendedCalendarPrivate::enter(const KCalCore::Incidence::Ptr &incidence,
                                    const QString &notebook)
{
    Family &family = families[incidence->uid()];
    if (family.isEmpty() || !incidence->hasRecurrenceId()) {
        family.notebook = notebook;
    }
    if (incidence->hasRecurrenceId()) {
        family.exceptions.append(incidence);
    } else {
        family.series = incidence;
    }
    index(incidence, family);
}

void ExtendedCalendarPrivate::leave(const KCalCore::Incidence::Ptr &incidence)
{
    dates.remove(incidence.data());
    Family &family = families[incidence->uid()];
    if (family.series == incidence) {
        family.series.reset();
    } else {
        family.exceptions.removeOne(incidence);
        if (family.series && incidence->thisAndFuture()) {
            index(family.series, family);
        }
    }
}

void ExtendedCalendarPrivate::takeSilently(const KCalCore::Incidence::Ptr &incidence)
{
    leave(incidence);
    keepsExceptions = true;
    q->setObserversEnabled(false);
    q->MemoryCalendar::deleteIncidence(incidence);
    q->setObserversEnabled(true);
    keepsExceptions = false;
}

void ExtendedCalendarPrivate::forgetIfEmpty(const QString &uid)
{
    const auto family = families.find(uid);
    if (family != families.end() && family->isEmpty()) {
        families.erase(family);
    }
}

void ExtendedCalendarPrivate::index(const KCalCore::Incidence::Ptr &incidence)
{
    index(incidence, families.value(incidence->uid()));
}

void ExtendedCalendarPrivate::index(const KCalCore::Incidence::Ptr &incidence, const Family &family)
{
    DateIndex::Entry entry;
    entry.uid = incidence->uid();
    entry.recurrenceId =
        incidence->hasRecurrenceId() ? incidence->recurrenceId().toMSecsSinceEpoch() : 0;
    entry.incidence = incidence;
    entry.type = incidence->type();
    entry.isDated = anchor(*incidence).isValid();
    if (entry.isDated) {
        entry.isWallBound = isWallBound(*incidence);
        entry.recurs = incidence->recurs();
        entry.first = spanOf(*incidence, clock);
        entry.until = entry.first.end;
        if (entry.recurs) {
            const TimeSpan alive = lifeOfSeries(*incidence, entry.first, family.exceptions, clock);
            entry.first.start = alive.start;
            entry.until = alive.end;
        }
    }
    dates.insert(entry);
    if (incidence->hasRecurrenceId() && incidence->thisAndFuture() && family.series) {
        index(family.series, family);
    }
}

void ExtendedCalendarPrivate::indexAgain()
{
    dates.clear();
    for (const Family &family : qAsConst(families)) {
        const auto members = family.members();
        for (const KCalCore::Incidence::Ptr &incidence : members) {
            index(incidence, family);
        }
    }
}

ExtendedCalendar::ExtendedCalendar(const KDateTime::Spec &timeSpec)
    : ExtendedCalendar(timeSpec.timeZone())
{
}

ExtendedCalendar::ExtendedCalendar(const QByteArray &timeZoneId)
    : ExtendedCalendar(KSystemTimeZones::zone(timeZoneId))
{
}

ExtendedCalendar::ExtendedCalendar(const QTimeZone &timeZone)
    : MemoryCalendar(validZone(timeZone)), d(std::make_unique<ExtendedCalendarPrivate>(this))
{
    setUpdateLastModifiedOnChange(false);
#if KCALENDARCORE_VERSION < QT_VERSION_CHECK(6, 0, 0)
    setDeletionTracking(false);
#endif
}

ExtendedCalendar::~ExtendedCalendar() = default;

void ExtendedCalendar::close()
{
    d->dates.clear();
    d->families.clear();
    MemoryCalendar::close();
    Q_EMIT closed();
}

bool ExtendedCalendar::addIncidence(const KCalCore::Incidence::Ptr &incidence,
                                    const QString &notebookUid)
{
    if (!incidence || (!notebookUid.isEmpty() && !hasValidNotebook(notebookUid))) {
        return false;
    }
    if (d->contains(incidence)) {
        return notebookUid.isEmpty() || setNotebook(incidence, notebookUid);
    }
    const auto former = d->find(incidence->uid(), incidence->recurrenceId());
    const auto family = d->families.constFind(incidence->uid());
    const bool isKnown = family != d->families.constEnd();
    const QString formerNotebook = isKnown ? family->notebook : d->defaultNotebook;
    const QString target = notebookUid.isEmpty() ? formerNotebook : notebookUid;
    if (former) {
        d->takeSilently(former);
    }
    d->enter(incidence, target);
    setObserversEnabled(!former);
    MemoryCalendar::addIncidence(incidence);
    setObserversEnabled(true);
    if (former) {
        notifyIncidenceChanged(incidence);
    }
    if (isKnown && !incidence->hasRecurrenceId() && target != formerNotebook) {
        const auto exceptions = d->exceptionsOf(incidence->uid());
        for (const KCalCore::Incidence::Ptr &moved : exceptions) {
            notifyIncidenceChanged(moved);
        }
    }
    return true;
}

bool ExtendedCalendar::addIncidence(const KCalCore::Incidence::Ptr &incidence)
{
    return addIncidence(incidence, QString());
}

bool ExtendedCalendar::addEvent(const KCalCore::Event::Ptr &event)
{
    return addIncidence(event, QString());
}

bool ExtendedCalendar::addEvent(const KCalCore::Event::Ptr &event, const QString &notebookUid)
{
    return addIncidence(event, notebookUid);
}

bool ExtendedCalendar::addTodo(const KCalCore::Todo::Ptr &todo)
{
    return addIncidence(todo, QString());
}

bool ExtendedCalendar::addTodo(const KCalCore::Todo::Ptr &todo, const QString &notebookUid)
{
    return addIncidence(todo, notebookUid);
}

bool ExtendedCalendar::addJournal(const KCalCore::Journal::Ptr &journal)
{
    return addIncidence(journal, QString());
}

bool ExtendedCalendar::addJournal(const KCalCore::Journal::Ptr &journal, const QString &notebookUid)
{
    return addIncidence(journal, notebookUid);
}

bool ExtendedCalendar::deleteIncidence(const KCalCore::Incidence::Ptr &incidence)
{
    if (!d->contains(incidence)) {
        return false;
    }
    if (!incidence->hasRecurrenceId()) {
        deleteIncidenceInstances(incidence);
    }
    d->leave(incidence);
    const bool isDeleted = MemoryCalendar::deleteIncidence(incidence);
    // Observers that are told of the deletion still ask for the notebook.
    d->forgetIfEmpty(incidence->uid());
    return isDeleted;
}

bool ExtendedCalendar::deleteEvent(const KCalCore::Event::Ptr &event)
{
    return deleteIncidence(event);
}

bool ExtendedCalendar::deleteTodo(const KCalCore::Todo::Ptr &todo)
{
    return deleteIncidence(todo);
}

bool ExtendedCalendar::deleteJournal(const KCalCore::Journal::Ptr &journal)
{
    return deleteIncidence(journal);
}

bool ExtendedCalendar::deleteIncidenceInstances(const KCalCore::Incidence::Ptr &incidence)
{
    if (!incidence || d->keepsExceptions) {
        return incidence != nullptr;
    }
    const auto exceptions = d->exceptionsOf(incidence->uid());
    return std::all_of(exceptions.cbegin(), exceptions.cend(),
                       [this](const auto &exception) { return deleteIncidence(exception); });
}

KCalCore::Incidence::Ptr ExtendedCalendar::incidence(const QString &uid,
                                                     const KDateTime &recurrenceId) const
{
    return d->find(uid, recurrenceId);
}

KCalCore::Event::Ptr ExtendedCalendar::event(const QString &uid,
                                             const QDateTime &recurrenceId) const
{
    return d->find(uid, recurrenceId).dynamicCast<KCalCore::Event>();
}

KCalCore::Todo::Ptr ExtendedCalendar::todo(const QString &uid, const QDateTime &recurrenceId) const
{
    return d->find(uid, recurrenceId).dynamicCast<KCalCore::Todo>();
}

KCalCore::Journal::Ptr ExtendedCalendar::journal(const QString &uid,
                                                 const QDateTime &recurrenceId) const
{
    return d->find(uid, recurrenceId).dynamicCast<KCalCore::Journal>();
}

void ExtendedCalendar::incidenceUpdated(const QString &uid, const QDateTime &recurrenceId)
{
    if (const KCalCore::Incidence::Ptr incidence = d->find(uid, recurrenceId)) {
        d->index(incidence);
    }
    MemoryCalendar::incidenceUpdated(uid, recurrenceId);
}

void ExtendedCalendar::setupRelations(const KCalCore::Incidence::Ptr &incidence)
{
    Q_UNUSED(incidence)
}

void ExtendedCalendar::removeRelations(const KCalCore::Incidence::Ptr &incidence)
{
    Q_UNUSED(incidence)
}

void ExtendedCalendar::doSetTimeZone(const QTimeZone &timeZone)
{
    MemoryCalendar::doSetTimeZone(timeZone);
    d->clock = ZoneClock(timeZone);
    d->indexAgain();
}
