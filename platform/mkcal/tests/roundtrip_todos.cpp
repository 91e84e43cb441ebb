// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"

#include <KCalendarCore/Recurrence>

using namespace KCalCore;

namespace
{
Features journals()
{
    return {
        feature<Journal>(
            "journal with a long text", plainJournal(),
            [](Journal &journal) {
                journal.setSummary(QStringLiteral("Title"), false);
                journal.setDescription(QStringLiteral("Dear diary"), false);
            },
            [](const Journal &journal) {
                return journal.description() == QLatin1String("Dear diary");
            }),
        feature<Journal>(
            "journal of a day", plainJournal(),
            [](Journal &journal) {
                journal.setDtStart(floating(2011, 5, 2));
                journal.setAllDay(true);
            },
            [](const Journal &journal) { return journal.allDay(); }),
        feature<Journal>(
            "journal without a date", plainJournal(),
            [](Journal &journal) { journal.setDtStart(QDateTime()); },
            [](const Journal &journal) { return !journal.dtStart().isValid(); }),
        feature<Journal>(
            "final journal", plainJournal(),
            [](Journal &journal) { journal.setStatus(Incidence::StatusFinal); },
            [](const Journal &journal) { return journal.status() == Incidence::StatusFinal; }),
        feature<Journal>(
            "recurring journal", plainJournal(),
            [](Journal &journal) { journal.recurrence()->setWeekly(2); },
            [](const Journal &journal) {
                return journal.recurs() && journal.recurrence()->frequency() == 2;
            }),
    };
}

Features completions()
{
    return {
        feature<Todo>(
            "half done", plainTodo(), [](Todo &todo) { todo.setPercentComplete(50); },
            [](const Todo &todo) { return todo.percentComplete() == 50 && !todo.isCompleted(); }),
        feature<Todo>(
            "completed at a moment", plainTodo(),
            [](Todo &todo) { todo.setCompleted(utc(2011, 5, 2, 9)); },
            [](const Todo &todo) {
                return todo.isCompleted() && todo.completed() == utc(2011, 5, 2, 9)
                    && todo.percentComplete() == 100;
            }),
        feature<Todo>(
            "completed, nobody knows when", plainTodo(),
            [](Todo &todo) { todo.setCompleted(true); },
            [](const Todo &todo) { return todo.isCompleted() && !todo.hasCompletedDate(); }),
        feature<Todo>(
            "completed by its status", plainTodo(),
            [](Todo &todo) { todo.setStatus(Incidence::StatusCompleted); },
            [](const Todo &todo) {
                return todo.status() == Incidence::StatusCompleted && todo.isCompleted();
            }),
        feature<Todo>(
            "in process", plainTodo(),
            [](Todo &todo) { todo.setStatus(Incidence::StatusInProcess); },
            [](const Todo &todo) { return todo.status() == Incidence::StatusInProcess; }),
        feature<Todo>(
            "needs action", plainTodo(),
            [](Todo &todo) { todo.setStatus(Incidence::StatusNeedsAction); },
            [](const Todo &todo) { return todo.status() == Incidence::StatusNeedsAction; }),
        feature<Todo>(
            "recurring to-do that was done once", plainTodo(),
            [](Todo &todo) {
                todo.recurrence()->setDaily(1);
                todo.setCompleted(utc(2011, 5, 3));
            },
            [](const Todo &todo) {
                return todo.recurs() && todo.dtRecurrence() > todo.dtDue(true)
                    && todo.dtStart(true) == helsinki(2011, 5, 2);
            }),
        feature<Todo>(
            "recurring to-do that is all done", plainTodo(),
            [](Todo &todo) {
                todo.setCompleted(utc(2011, 5, 3));
                todo.recurrence()->setDaily(1);
            },
            [](const Todo &todo) {
                return todo.recurs() && todo.isCompleted() && todo.completed() == utc(2011, 5, 3);
            }),
    };
}
} // namespace

Features todoAndJournalFeatures()
{
    return journals() + completions()
        + Features{
            feature<Todo>(
                "due without a start", plainTodo(),
                [](Todo &todo) { todo.setDtStart(QDateTime()); },
                [](const Todo &todo) { return !todo.hasStartDate() && todo.hasDueDate(); }),
            feature<Todo>(
                "start without due", plainTodo(),
                [](Todo &todo) { todo.setDtDue(QDateTime(), true); },
                [](const Todo &todo) { return todo.hasStartDate() && !todo.hasDueDate(); }),
            feature<Todo>(
                "no dates", plainTodo(),
                [](Todo &todo) {
                    todo.setDtStart(QDateTime());
                    todo.setDtDue(QDateTime(), true);
                },
                [](const Todo &todo) { return !todo.hasStartDate() && !todo.hasDueDate(); }),
            feature<Todo>(
                "due all day", plainTodo(),
                [](Todo &todo) {
                    todo.setDtStart(floating(2011, 5, 2));
                    todo.setDtDue(floating(2011, 5, 4), true);
                    todo.setAllDay(true);
                },
                [](const Todo &todo) {
                    return todo.allDay() && todo.dtDue(true) == floating(2011, 5, 4);
                }),
            feature<Todo>(
                "due before it starts", plainTodo(),
                [](Todo &todo) { todo.setDtDue(helsinki(2011, 5, 1), true); },
                [](const Todo &todo) { return todo.dtDue(true) == helsinki(2011, 5, 1); }),
            feature<Todo>(
                "recurring to-do without a start", plainTodo(),
                [](Todo &todo) {
                    todo.setDtStart(QDateTime());
                    todo.recurrence()->setWeekly(1);
                },
                [](const Todo &todo) { return todo.recurs() && !todo.hasStartDate(); }),
            feature<Todo>(
                "to-do with an alarm before it is due", plainTodo(),
                [](Todo &todo) { todo.newAlarm()->setEndOffset(Duration(-3600)); },
                [](const Todo &todo) {
                    return todo.alarms().size() == 1 && todo.alarms().first()->hasEndOffset();
                }),
            feature<Todo>(
                "to-do with a length", plainTodo(),
                [](Todo &todo) {
                    todo.setDtDue(QDateTime(), true);
                    todo.setDuration(Duration(7200));
                },
                [](const Todo &todo) { return todo.duration() == Duration(7200); }),
        };
}
