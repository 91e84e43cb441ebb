// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"

#include <KCalendarCore/Recurrence>

using namespace KCalCore;

namespace
{
Feature journal(const char *name, const std::function<void(Journal &)> &give)
{
    return feature(name, plainJournal(), give);
}

Feature todo(const char *name, const std::function<void(Todo &)> &give)
{
    return feature(name, plainTodo(), give);
}

Features journals()
{
    return {
        journal("journal with a long text",
                [](Journal &journal) {
                    journal.setSummary("Title", false);
                    journal.setDescription("Dear diary", false);
                }),
        journal("journal of a day",
                [](Journal &journal) {
                    journal.setDtStart(floating(2011, 5, 2));
                    journal.setAllDay(true);
                }),
        journal("journal without a date",
                [](Journal &journal) { journal.setDtStart(QDateTime()); }),
        journal("final journal",
                [](Journal &journal) { journal.setStatus(Incidence::StatusFinal); }),
        journal("recurring journal", [](Journal &journal) { journal.recurrence()->setWeekly(2); }),
    };
}

Features completions()
{
    return {
        todo("half done", [](Todo &todo) { todo.setPercentComplete(50); }),
        todo("completed at a moment", [](Todo &todo) { todo.setCompleted(utc(2011, 5, 2, 9)); }),
        todo("completed, nobody knows when", [](Todo &todo) { todo.setCompleted(true); }),
        todo("completed by its status",
             [](Todo &todo) { todo.setStatus(Incidence::StatusCompleted); }),
        todo("in process", [](Todo &todo) { todo.setStatus(Incidence::StatusInProcess); }),
        todo("needs action", [](Todo &todo) { todo.setStatus(Incidence::StatusNeedsAction); }),
        todo("recurring to-do that was done once",
             [](Todo &todo) {
                 todo.recurrence()->setDaily(1);
                 todo.setCompleted(utc(2011, 5, 3));
             }),
        todo("recurring to-do that is all done",
             [](Todo &todo) {
                 todo.setCompleted(utc(2011, 5, 3));
                 todo.recurrence()->setDaily(1);
             }),
    };
}

Features dates()
{
    return {
        todo("due without a start", [](Todo &todo) { todo.setDtStart(QDateTime()); }),
        todo("start without due", [](Todo &todo) { todo.setDtDue(QDateTime(), true); }),
        todo("no dates",
             [](Todo &todo) {
                 todo.setDtStart(QDateTime());
                 todo.setDtDue(QDateTime(), true);
             }),
        todo("due all day",
             [](Todo &todo) {
                 todo.setDtStart(floating(2011, 5, 2));
                 todo.setDtDue(floating(2011, 5, 4), true);
                 todo.setAllDay(true);
             }),
        todo("due before it starts", [](Todo &todo) { todo.setDtDue(helsinki(2011, 5, 1), true); }),
        todo("recurring to-do without a start",
             [](Todo &todo) {
                 todo.setDtStart(QDateTime());
                 todo.recurrence()->setWeekly(1);
             }),
        todo("to-do with an alarm before it is due",
             [](Todo &todo) { todo.newAlarm()->setEndOffset(Duration(-3600)); }),
        todo("to-do with a length",
             [](Todo &todo) {
                 todo.setDtDue(QDateTime(), true);
                 todo.setDuration(Duration(7200));
             }),
    };
}
} // namespace

Features todoAndJournalFeatures()
{
    return journals() + completions() + dates();
}
