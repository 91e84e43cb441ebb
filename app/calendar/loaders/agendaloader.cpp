// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "agendaloader.h"

#include "dates.h"

#include <daskel/db_instance.h>

#include <algorithm>

namespace
{
/// How many days are looked through at once; more after each stretch that showed nothing.
constexpr int firstStretch = 14;
constexpr int longestStretch = 224;
/// What lies farther away is not looked for: notebooks that are not visible may go on for ever.
constexpr int mostEmptyDays = 3653;
/// How far the storage looks for the next day with something.
constexpr int horizonYears = 10;

// Today is never out of sight, however far away the list began.

QDate nextDate(QDate from)
{
    const auto storage = DbInstance::instance()->storage();
    QDate next = storage->nextDateWithIncidence(from);
    for (const QDate today = Dates::today(); !next.isValid() && from < today;) {
        from = std::min(from.addYears(horizonYears), today);
        next = storage->nextDateWithIncidence(from);
    }
    return next;
}

QDate previousDate(QDate from)
{
    const auto storage = DbInstance::instance()->storage();
    QDate previous = storage->previousDateWithIncidence(from);
    for (const QDate today = Dates::today(); !previous.isValid() && from > today;) {
        from = std::max(from.addYears(-horizonYears), today);
        previous = storage->previousDateWithIncidence(from);
    }
    return previous;
}
} // namespace

AgendaLoader::AgendaLoader() = default;

void AgendaLoader::setAnchor(const QDate &day)
{
    m_anchor = day;
}

QDate AgendaLoader::anchor() const
{
    return m_anchor.isValid() ? m_anchor : Dates::today();
}

void AgendaLoader::load()
{
    resetIncidenceCount();
    m_first = anchor();
    m_last = m_first.addDays(-1);
    m_isStartReached = false;
    m_isEndReached = false;
    loadLater();
}

void AgendaLoader::loadLater()
{
    if (!DbInstance::instance()->isEnabled() || m_isEndReached || !m_last.isValid())
        return;
    const int wanted = incidenceCount() + batchSize();
    int stretch = firstStretch;
    int emptyDays = 0;
    while (incidenceCount() < wanted) {
        const QDate first = m_last.addDays(1);
        const QDate last = first.addDays(stretch - 1);
        const std::vector<Day> days = shownDays(first, last);
        for (const Day &day : days) {
            handOver(day);
            m_last = day.date;
            if (incidenceCount() >= wanted)
                return;
        }
        m_last = last;
        if (!days.empty()) {
            stretch = firstStretch;
            emptyDays = 0;
            continue;
        }
        emptyDays += stretch;
        stretch = std::min(stretch * 2, longestStretch);
        const QDate next = nextDate(last.addDays(1));
        handOverToday(last.addDays(1), next.isValid() ? next.addDays(-1) : QDate());
        m_isEndReached = !next.isValid() || emptyDays > mostEmptyDays;
        if (m_isEndReached)
            return;
        m_last = next.addDays(-1);
    }
}

void AgendaLoader::loadEarlier()
{
    if (!DbInstance::instance()->isEnabled() || m_isStartReached || !m_first.isValid())
        return;
    const int wanted = incidenceCount() + batchSize();
    int stretch = firstStretch;
    int emptyDays = 0;
    while (incidenceCount() < wanted) {
        const QDate last = m_first.addDays(-1);
        const QDate first = last.addDays(1 - stretch);
        const std::vector<Day> days = shownDays(first, last);
        // The list puts each new group above the ones before.
        for (auto day = days.crbegin(); day != days.crend(); ++day) {
            handOver(*day);
            m_first = day->date;
            if (incidenceCount() >= wanted)
                return;
        }
        m_first = first;
        if (!days.empty()) {
            stretch = firstStretch;
            emptyDays = 0;
            continue;
        }
        emptyDays += stretch;
        stretch = std::min(stretch * 2, longestStretch);
        const QDate previous = previousDate(first.addDays(-1));
        handOverToday(previous.isValid() ? previous.addDays(1) : QDate(), first.addDays(-1));
        m_isStartReached = !previous.isValid() || emptyDays > mostEmptyDays;
        if (m_isStartReached)
            return;
        m_first = previous.addDays(1);
    }
}

std::vector<AgendaLoader::Day> AgendaLoader::shownDays(const QDate &first, const QDate &last)
{
    std::vector<Day> days;
    const OccurrenceWindow::Occurrences occurrences = m_window.occurrences(first, last);
    for (const auto &occurrence : occurrences) {
        const QDate date = occurrence.first.dtStart.date();
        if (days.empty() || days.back().date != date)
            days.push_back({date, {}});
        days.back().occurrences.append(occurrence);
    }
    const QDate today = Dates::today();
    const auto place =
        std::find_if(days.cbegin(), days.cend(), [&](const Day &day) { return day.date >= today; });
    const bool isMissing = place == days.cend() || place->date != today;
    if (today >= first && today <= last && isMissing)
        days.insert(place, Day{today, {}});
    return days;
}

void AgendaLoader::handOver(const Day &day)
{
    const QString label = Dates::dayLabel(day.date);
    backend()->addGroupHeader(label, 0, day.date.startOfDay());
    if (day.occurrences.isEmpty())
        addIncidence(label, nullptr, nullptr, {}, false);
    for (const auto &occurrence : day.occurrences) {
        QDateTime start = occurrence.first.dtStart;
        QDateTime end = occurrence.first.dtEnd;
        addIncidence(label, &start, &end, occurrence.second, false);
    }
}

void AgendaLoader::handOverToday(const QDate &first, const QDate &last)
{
    const QDate today = Dates::today();
    const bool isBetween =
        (!first.isValid() || today >= first) && (!last.isValid() || today <= last);
    if (isBetween)
        handOver({today, {}});
}
