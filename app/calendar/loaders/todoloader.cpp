// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "todoloader.h"

#include "dates.h"

#include <daskel/calendarconf.h>
#include <daskel/db_instance.h>
#include <kcalcompat/clock.h>

#include <algorithm>

using KCalCore::Todo;

namespace
{
/// Of the to-dos that are done, the last ones: older ones stand in the agenda on their days.
constexpr int mostDone = 100;

QDate lastDayOfWeek(const QDate &day)
{
    constexpr int daysOfWeek = 7;
    const int first = CalendarConf::instance()->firstDayOfWeek();
    const int sinceFirst = (day.dayOfWeek() - first + daysOfWeek) % daysOfWeek;
    return day.addDays(daysOfWeek - 1 - sinceFirst);
}

TodoLoader::Group groupOf(const Todo &todo, const QDateTime &due, const QDateTime &now)
{
    if (todo.isCompleted())
        return TodoLoader::Done;
    if (!due.isValid())
        return TodoLoader::WithoutDate;
    const bool isOverdue = todo.allDay() ? due.date() < now.date() : due < now;
    if (isOverdue)
        return TodoLoader::Overdue;
    if (due.date() == now.date())
        return TodoLoader::Today;
    return due.date() <= lastDayOfWeek(now.date()) ? TodoLoader::ThisWeek : TodoLoader::Later;
}

/// RFC 5545, 3.8.1.9: 1 is the highest and 0 is none.
int urgency(const Todo &todo)
{
    constexpr int none = 10;
    return todo.priority() > 0 ? todo.priority() : none;
}
} // namespace

TodoLoader::TodoLoader() = default;

void TodoLoader::load()
{
    resetIncidenceCount();
    sortIntoGroups();
    loadLater();
}

void TodoLoader::loadEarlier() { }

void TodoLoader::loadLater()
{
    const int wanted = incidenceCount() + batchSize();
    while (m_nextGroup <= Done && incidenceCount() < wanted)
        handOver(Group(m_nextGroup++));
}

QString TodoLoader::groupLabel(Group group)
{
    switch (group) {
    case Overdue:
        return qtTrId("qtn_dcal_overdue");
    case Today:
        return qtTrId("qtn_dcal_today");
    case ThisWeek:
        return qtTrId("qtn_dcal_this_week");
    case Later:
        return qtTrId("qtn_dcal_later");
    case WithoutDate:
        return qtTrId("qtn_dcal_without_date");
    case Done:
        break;
    }
    return qtTrId("qtn_dcal_done");
}

bool TodoLoader::isDueBefore(const Entry &a, const Entry &b)
{
    if (a.due != b.due)
        return a.due < b.due;
    const int urgencyOfA = urgency(*a.todo);
    const int urgencyOfB = urgency(*b.todo);
    if (urgencyOfA != urgencyOfB)
        return urgencyOfA < urgencyOfB;
    const int bySummary = a.todo->summary().localeAwareCompare(b.todo->summary());
    return bySummary != 0 ? bySummary < 0 : a.todo->uid() < b.todo->uid();
}

bool TodoLoader::isDoneAfter(const Entry &a, const Entry &b)
{
    const QDateTime doneA = a.todo->completed();
    const QDateTime doneB = b.todo->completed();
    return doneA != doneB ? doneA > doneB : a.todo->uid() < b.todo->uid();
}

void TodoLoader::sortIntoGroups()
{
    for (Entries &group : m_groups)
        group.clear();
    m_nextGroup = Overdue;
    DbInstance *const db = DbInstance::instance();
    if (!db->isEnabled())
        return;
    db->loadUncompletedTodos();
    const bool isDoneHidden = CalendarConf::instance()->hideCompletedTodos();
    if (!isDoneHidden) {
        KDateTime before;
        db->storage()->loadCompletedTodos(mostDone, &before);
    }
    const auto calendar = db->calendar();
    const QDateTime now = KCalCompat::Clock::now().toLocalTime();
    const Todo::List todos = calendar->rawTodos();
    for (const Todo::Ptr &todo : todos) {
        const QDateTime due = todo->hasDueDate() ? todo->dtDue().toLocalTime() : QDateTime();
        const Group group = groupOf(*todo, due, now);
        if (calendar->isVisible(todo) && !(group == Done && isDoneHidden))
            m_groups[group].push_back({due, todo});
    }
    for (Entries &group : m_groups)
        std::sort(group.begin(), group.end(), isDueBefore);
    Entries &done = m_groups[Done];
    std::sort(done.begin(), done.end(), isDoneAfter);
    if (done.size() > mostDone)
        done.resize(mostDone);
}

void TodoLoader::handOver(Group group)
{
    if (m_groups[group].empty())
        return;
    const QString label = groupLabel(group);
    // No date: the list marks a header as today's by it, and these are not days.
    backend()->addGroupHeader(label, group, QDateTime());
    for (Entry &entry : m_groups[group])
        addIncidence(label, &entry.due, &entry.due, entry.todo, false);
}
