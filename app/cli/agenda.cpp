// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "agenda.h"

#include "console.h"
#include "database.h"
#include "incidencejson.h"

#include <KCalendarCore/Todo>

using mKCal::ExtendedCalendar;

namespace
{
/// A limit far beyond what a person reads, so that what repeats hourly is listed hourly for more
/// than a year and what repeats every second still ends.
constexpr int maxOccurrences = 10000;

bool isListed(const KCalCore::Incidence::Ptr &incidence)
{
    return incidence->type() == KCalCore::Incidence::TypeEvent
        || incidence->type() == KCalCore::Incidence::TypeTodo;
}

/// The date-time that an occurrence is listed by: a to-do's is when it is due.
QDateTime listedTime(const KCalCore::Incidence::Ptr &incidence)
{
    const auto todo = incidence.dynamicCast<KCalCore::Todo>();
    if (!todo) {
        return incidence->dtStart();
    }
    return todo->hasDueDate() ? todo->dtDue(true) : todo->dtStart(true);
}

/// The start that the rules give the occurrence that is listed by listedTime().
QDateTime ruledTime(const KCalCore::Incidence::Ptr &incidence)
{
    if (incidence->hasRecurrenceId()) {
        return incidence->recurrenceId();
    }
    const auto todo = incidence.dynamicCast<KCalCore::Todo>();
    return todo && todo->hasStartDate() ? todo->dtStart(true) : listedTime(incidence);
}

QDateTime inZoneOf(const QDateTime &moment, const QDateTime &other)
{
    // Clock time is that of whoever reads the agenda.
    return other.timeSpec() == Qt::LocalTime
        ? moment
        : KDateTime(moment).toTimeSpec(KDateTime(other).timeSpec()).dateTime();
}

/// The pieces of one occurrence, one for each day of the window.
void appendPieces(const ExtendedCalendar &calendar,
                  const ExtendedCalendar::ExpandedIncidence &occurrence, Agenda *agenda)
{
    const auto pieces = calendar.expandMultiDay({occurrence}, agenda->from, agenda->to.addDays(1),
                                                maxOccurrences, true);
    const auto &incidence = occurrence.second;
    for (const auto &piece : pieces) {
        agenda->entries.append({incidence, calendar.notebook(incidence), piece.first.dtStart,
                                piece.first.dtEnd, occurrence.first.dtStart,
                                occurrence.first.dtEnd});
    }
}

/// By day; within a day what fills it, then what is due on it, then by time.
bool readsBefore(const AgendaEntry &a, const AgendaEntry &b)
{
    const auto rank = [](const AgendaEntry &entry) {
        if (!entry.incidence->allDay()) {
            return 2;
        }
        return entry.incidence->type() == KCalCore::Incidence::TypeTodo ? 1 : 0;
    };
    if (a.start.date() != b.start.date()) {
        return a.start.date() < b.start.date();
    }
    return rank(a) != rank(b) ? rank(a) < rank(b) : a.start < b.start;
}

/// What repeats so often that the limit cut it is named, so that nobody takes the list for whole.
ExtendedCalendar::ExpandedIncidenceList expand(const ExtendedCalendar &calendar,
                                               KCalCore::Incidence::List incidences, Agenda *agenda)
{
    const KDateTime::Spec zone(calendar.timeZone());
    const KDateTime start(agenda->from, QTime(0, 0), zone);
    const KDateTime end(agenda->to.addDays(1), QTime(0, 0), zone);
    bool limitHit = false;
    const auto occurrences =
        calendar.expandRecurrences(&incidences, start, end, maxOccurrences, &limitHit);
    if (limitHit) {
        QHash<KCalCore::Incidence::Ptr, int> counts;
        for (const auto &occurrence : occurrences) {
            if (++counts[occurrence.second] == maxOccurrences) {
                agenda->cutShort.append(titleText(occurrence.second->summary()));
            }
        }
    }
    return occurrences;
}
} // namespace

KDateTime occurrenceIdentifier(const ExtendedCalendar &calendar, const AgendaEntry &entry)
{
    const auto &incidence = entry.incidence;
    const bool goesOn =
        incidence->recurs() || (incidence->hasRecurrenceId() && incidence->thisAndFuture());
    if (!goesOn) {
        return recurrenceIdentifier(calendar, incidence);
    }
    // To-dos are listed when they are due and named by when they start, exceptions for this and
    // the future may have moved: by so much of the wall clock.
    const QDateTime listed = listedTime(incidence);
    const QDateTime ruled = ruledTime(incidence);
    const auto onWall = [](const QDateTime &time) {
        return QDateTime(time.date(), time.time(), Qt::UTC);
    };
    const qint64 shift = onWall(listed).secsTo(onWall(ruled));
    QDateTime identifier =
        incidence->allDay() ? entry.occurrenceStart : inZoneOf(entry.occurrenceStart, listed);
    if (shift != 0) {
        const QDateTime wall = onWall(identifier).addSecs(shift);
        const KDateTime::Spec zone(ruled.timeSpec() == Qt::LocalTime ? identifier.timeZone()
                                                                     : ruled.timeZone());
        identifier = KDateTime(wall.date(), wall.time(), zone).dateTime();
    }
    return incidence->allDay() ? KDateTime(identifier.date(), KDateTime::Spec::ClockTime())
                               : KDateTime(identifier);
}

int AgendaEntry::dayNumber() const
{
    return static_cast<int>(occurrenceStart.date().daysTo(start.date())) + 1;
}

int AgendaEntry::dayCount() const
{
    // The end is exclusive: what ends at midnight does not reach into that day.
    const QDateTime lastMoment =
        occurrenceEnd > occurrenceStart ? occurrenceEnd.addMSecs(-1) : occurrenceEnd;
    return static_cast<int>(occurrenceStart.date().daysTo(lastMoment.date())) + 1;
}

Agenda readAgenda(const Database &database, const NotebookFilter &filter, const QDate &from,
                  const QDate &to)
{
    Agenda agenda{from, to, {}, {}, {}};
    const auto calendar = database.calendar();
    const auto storage = database.storage();
    if (!storage->load(from, to) || !storage->loadRecurringIncidences(from, to)) {
        agenda.error = storage->errorMessage();
        return agenda;
    }
    KCalCore::Incidence::List listed;
    const auto incidences = calendar->incidences(from, to);
    for (const auto &incidence : incidences) {
        if (isListed(incidence) && filter.shows(incidence)) {
            listed.append(incidence);
        }
    }
    const auto occurrences = expand(*calendar, listed, &agenda);
    for (const auto &occurrence : occurrences) {
        appendPieces(*calendar, occurrence, &agenda);
    }
    std::stable_sort(agenda.entries.begin(), agenda.entries.end(), readsBefore);
    return agenda;
}
