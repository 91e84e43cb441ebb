// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "agenda.h"

#include "database.h"

#include <daskel/db_instance.h>

#include <KCalendarCore/Todo>

using mKCal::ExtendedCalendar;

namespace
{
/// A limit far beyond what a person reads, so that what repeats hourly is listed hourly for more
/// than a year and what repeats every second still ends.
constexpr int MaxOccurrences = 10000;

bool isListed(const KCalCore::Incidence::Ptr &incidence)
{
    return incidence->type() == KCalCore::Incidence::TypeEvent
        || incidence->type() == KCalCore::Incidence::TypeTodo;
}

KDateTime recurrenceIdOf(const KCalCore::Incidence::Ptr &incidence, QDateTime occurrenceStart)
{
    if (incidence->hasRecurrenceId()) {
        return KDateTime(incidence->recurrenceId());
    }
    if (!incidence->recurs()) {
        return {};
    }
    // A to-do is listed when it is due, but its occurrence is named by when it starts.
    const auto todo = incidence.dynamicCast<KCalCore::Todo>();
    if (todo && todo->hasStartDate() && todo->hasDueDate()) {
        occurrenceStart = occurrenceStart.addSecs(todo->dtDue(true).secsTo(todo->dtStart(true)));
    }
    if (incidence->allDay()) {
        return KDateTime(occurrenceStart.date(), KDateTime::Spec::ClockTime());
    }
    return KDateTime(occurrenceStart).toTimeSpec(KDateTime(incidence->dtStart()).timeSpec());
}

/// The pieces of one occurrence, one for each day of the window.
void appendPieces(const ExtendedCalendar &calendar,
                  const ExtendedCalendar::ExpandedIncidence &occurrence, Agenda *agenda)
{
    const auto pieces = calendar.expandMultiDay({occurrence}, agenda->from, agenda->to.addDays(1),
                                                MaxOccurrences, true);
    const auto &incidence = occurrence.second;
    for (const auto &piece : pieces) {
        agenda->entries.append({incidence, calendar.notebook(incidence), piece.first.dtStart,
                                piece.first.dtEnd, occurrence.first.dtStart, occurrence.first.dtEnd,
                                recurrenceIdOf(incidence, occurrence.first.dtStart)});
    }
}

/// By day; within a day all-day ones first, then by time.
bool readsBefore(const AgendaEntry &a, const AgendaEntry &b)
{
    if (a.start.date() != b.start.date()) {
        return a.start.date() < b.start.date();
    }
    if (a.incidence->allDay() != b.incidence->allDay()) {
        return a.incidence->allDay();
    }
    return a.start < b.start;
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
        calendar.expandRecurrences(&incidences, start, end, MaxOccurrences, &limitHit);
    if (limitHit) {
        QHash<KCalCore::Incidence::Ptr, int> counts;
        for (const auto &occurrence : occurrences) {
            if (++counts[occurrence.second] == MaxOccurrences) {
                agenda->cutShort.append(occurrence.second->uid());
            }
        }
    }
    return occurrences;
}
} // namespace

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
    DbInstance::instance()->load(from, to);
    if (!database.storage()->loadRecurringIncidences(from, to)) {
        agenda.error = database.storage()->errorMessage();
        return agenda;
    }
    const auto calendar = database.calendar();
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
