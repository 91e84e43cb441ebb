// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "extendedcalendar_p.h"
#include "occurrences.h"

#include <algorithm>

using namespace mKCal;

namespace
{
// Beyond every date, and still far enough from the ends of the number to add to.
constexpr Msecs always = std::numeric_limits<Msecs>::max() / 4;

template <typename Type> using ListOf = QVector<QSharedPointer<Type>>;

constexpr auto typeOf(const KCalCore::Event *)
{
    return KCalCore::IncidenceBase::TypeEvent;
}

constexpr auto typeOf(const KCalCore::Todo *)
{
    return KCalCore::IncidenceBase::TypeTodo;
}

constexpr auto typeOf(const KCalCore::Journal *)
{
    return KCalCore::IncidenceBase::TypeJournal;
}

bool acceptAll(const DateIndex::Entry &)
{
    return true;
}

/// A visitor that keeps what is of one type and accepted.
template <typename Type, typename Accept>
DateIndex::Visitor collectInto(ListOf<Type> *list, const Accept &accept)
{
    return [list, accept](const DateIndex::Entry &entry) {
        if (entry.type == typeOf(static_cast<Type *>(nullptr)) && accept(entry)) {
            list->append(entry.incidence.staticCast<Type>());
        }
    };
}

template <typename Type> ListOf<Type> everything(const DateIndex &dates)
{
    ListOf<Type> list;
    dates.visitAll(collectInto<Type>(&list, acceptAll));
    return list;
}

template <typename Type, typename Accept>
ListOf<Type> inRange(const DateIndex &dates, const DateIndex::Range &range, const Accept &accept)
{
    ListOf<Type> list;
    dates.visit(range, collectInto<Type>(&list, accept));
    return list;
}

/// Both directions of a list that the index has put in order of start.
template <typename List> List inDirection(List list, KCalCore::SortDirection direction)
{
    if (direction == KCalCore::SortDirectionDescending) {
        std::reverse(list.begin(), list.end());
    }
    return list;
}

KCalCore::Event::List sorted(KCalCore::Event::List events, KCalCore::EventSortField field,
                             KCalCore::SortDirection direction)
{
    if (field == KCalCore::EventSortUnsorted) {
        return events;
    }
    return field == KCalCore::EventSortStartDate
        ? inDirection(std::move(events), direction)
        : KCalCore::Calendar::sortEvents(std::move(events), field, direction);
}

TimeSpan daysOf(const QDate &start, const QDate &end, const ZoneClock &clock)
{
    return {start.isValid() ? clock.dayStart(start) : -always,
            end.isValid() ? clock.dayStart(end.addDays(1)) : always};
}

/// Accepts what does not reach beyond the range when @p inclusive.
auto acceptWithin(const DateIndex::Range &range, bool inclusive)
{
    return [range, inclusive](const DateIndex::Entry &entry) {
        const TimeSpan &days = entry.isWallBound ? range.wall : range.moments;
        return !inclusive || (entry.first.start >= days.start && entry.until <= days.end);
    };
}
} // namespace

DateIndex::Range ExtendedCalendarPrivate::range(const QDate &start, const QDate &end,
                                                const QTimeZone &zone) const
{
    const TimeSpan wall = daysOf(start, end, clock);
    const bool isOwnZone = !zone.isValid() || zone == q->timeZone();
    return {isOwnZone ? wall : daysOf(start, end, ZoneClock(zone)), wall};
}

bool ExtendedCalendarPrivate::occursIn(const DateIndex::Entry &entry,
                                       const DateIndex::Range &range) const
{
    if (!entry.recurs) {
        return true;
    }
    const TimeSpan &days = entry.isWallBound ? range.wall : range.moments;
    bool occurs = false;
    SeriesOccurrences(entry.incidence, exceptionsOf(entry.uid), clock)
        .visit(days.start, days.end, [&occurs](const Occurrence &, const SeriesWalk &) {
            occurs = true;
            return SeriesOccurrences::Stop;
        });
    return occurs;
}

KCalCore::Incidence::List ExtendedCalendar::incidences(const QDate &start, const QDate &end) const
{
    KCalCore::Incidence::List list;
    d->dates.visit(d->range(start, end, {}),
                   [&list](const DateIndex::Entry &entry) { list.append(entry.incidence); });
    return list;
}

KCalCore::Event::List ExtendedCalendar::rawEvents(KCalCore::EventSortField sortField,
                                                  KCalCore::SortDirection sortDirection) const
{
    return sorted(everything<KCalCore::Event>(d->dates), sortField, sortDirection);
}

KCalCore::Event::List ExtendedCalendar::rawEvents(const QDate &start, const QDate &end,
                                                  const QTimeZone &timeZone, bool inclusive) const
{
    const DateIndex::Range range = d->range(start, end, timeZone);
    return inRange<KCalCore::Event>(d->dates, range, acceptWithin(range, inclusive));
}

KCalCore::Event::List
ExtendedCalendar::rawEventsForDate(const QDate &date, const QTimeZone &timeZone,
                                   KCalCore::EventSortField sortField,
                                   KCalCore::SortDirection sortDirection) const
{
    const DateIndex::Range day = d->range(date, date, timeZone);
    const auto occurs = [&](const DateIndex::Entry &entry) { return d->occursIn(entry, day); };
    return sorted(inRange<KCalCore::Event>(d->dates, day, occurs), sortField, sortDirection);
}

KCalCore::Todo::List ExtendedCalendar::rawTodos(KCalCore::TodoSortField sortField,
                                                KCalCore::SortDirection sortDirection) const
{
    KCalCore::Todo::List todos = everything<KCalCore::Todo>(d->dates);
    return sortField == KCalCore::TodoSortUnsorted
        ? todos
        : sortTodos(std::move(todos), sortField, sortDirection);
}

KCalCore::Todo::List ExtendedCalendar::rawTodos(const QDate &start, const QDate &end,
                                                const QTimeZone &timeZone, bool inclusive) const
{
    const DateIndex::Range range = d->range(start, end, timeZone);
    return inRange<KCalCore::Todo>(d->dates, range, acceptWithin(range, inclusive));
}

KCalCore::Todo::List ExtendedCalendar::rawTodosForDate(const QDate &date) const
{
    const DateIndex::Range day = d->range(date, date, {});
    const auto occurs = [&](const DateIndex::Entry &entry) { return d->occursIn(entry, day); };
    return inRange<KCalCore::Todo>(d->dates, day, occurs);
}

KCalCore::Journal::List ExtendedCalendar::rawJournals(KCalCore::JournalSortField sortField,
                                                      KCalCore::SortDirection sortDirection) const
{
    KCalCore::Journal::List journals = everything<KCalCore::Journal>(d->dates);
    if (sortField == KCalCore::JournalSortSummary) {
        return sortJournals(std::move(journals), sortField, sortDirection);
    }
    return sortField == KCalCore::JournalSortDate ? inDirection(std::move(journals), sortDirection)
                                                  : journals;
}

KCalCore::Journal::List ExtendedCalendar::rawJournalsForDate(const QDate &date) const
{
    const DateIndex::Range day = d->range(date, date, {});
    const auto occurs = [&](const DateIndex::Entry &entry) { return d->occursIn(entry, day); };
    return inRange<KCalCore::Journal>(d->dates, day, occurs);
}

KCalCore::Journal::List ExtendedCalendar::journals(const QDate &start, const QDate &end) const
{
    return inRange<KCalCore::Journal>(d->dates, d->range(start, end, {}), acceptAll);
}
