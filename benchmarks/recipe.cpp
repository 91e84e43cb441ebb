// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "recipe.h"

#include <KCalendarCore/Event>
#include <KCalendarCore/Journal>
#include <KCalendarCore/Recurrence>
#include <KCalendarCore/Todo>

using namespace KCalCore;

namespace
{
const QByteArray customApp = QByteArrayLiteral("SAMPLE");
const QByteArray customKey = QByteArrayLiteral("SOURCE");

Recipe::RuleValues valuesOf(const RecurrenceRule &rule)
{
    Recipe::RuleValues values;
    values.type = rule.recurrenceType();
    values.frequency = rule.frequency();
    values.duration = rule.duration();
    values.end = WallClock::of(rule.duration() == 0 ? rule.endDt() : QDateTime());
    values.byDays = rule.byDays();
    values.byMonthDays = rule.byMonthDays();
    values.byMonths = rule.byMonths();
    return values;
}

void readRecurrence(const Recurrence &recurrence, Recipe *recipe)
{
    const auto rules = recurrence.rRules();
    for (const RecurrenceRule *rule : rules) {
        recipe->rules.append(valuesOf(*rule));
    }
    const auto excluded = recurrence.exDateTimes();
    for (const QDateTime &dateTime : excluded) {
        recipe->excluded.append(WallClock::of(dateTime));
    }
}

void readTodo(const Todo &todo, Recipe *recipe)
{
    recipe->end = WallClock::of(todo.dtDue(true));
    recipe->completed = WallClock::of(todo.completed());
}

void addRecurrence(const Recipe &recipe, Recurrence *recurrence)
{
    for (const auto &values : recipe.rules) {
        auto *rule = new RecurrenceRule;
        rule->setStartDt(recurrence->startDateTime());
        rule->setRecurrenceType(values.type);
        rule->setFrequency(int(values.frequency));
        if (values.duration == 0) {
            rule->setEndDt(values.end.dateTime());
        }
        if (values.duration >= 0) {
            rule->setDuration(values.duration);
        }
        if (!values.byDays.isEmpty()) {
            rule->setByDays(values.byDays);
        }
        if (!values.byMonthDays.isEmpty()) {
            rule->setByMonthDays(values.byMonthDays);
        }
        if (!values.byMonths.isEmpty()) {
            rule->setByMonths(values.byMonths);
        }
        recurrence->addRRule(rule);
    }
    for (const auto &dateTime : recipe.excluded) {
        recurrence->addExDateTime(dateTime.dateTime());
    }
}

Incidence::Ptr makeWithTimes(const Recipe &recipe)
{
    if (recipe.type == Incidence::TypeTodo) {
        const Todo::Ptr todo(new Todo);
        todo->setDtStart(recipe.start.dateTime());
        todo->setDtDue(recipe.end.dateTime());
        if (recipe.completed.date.isValid()) {
            todo->setCompleted(recipe.completed.dateTime());
        }
        return todo;
    }
    if (recipe.type == Incidence::TypeJournal) {
        const Journal::Ptr journal(new Journal);
        journal->setDtStart(recipe.start.dateTime());
        return journal;
    }
    const Event::Ptr event(new Event);
    event->setAllDay(recipe.allDay);
    event->setDtStart(recipe.start.dateTime());
    event->setDtEnd(recipe.end.dateTime());
    return event;
}

void addPeople(const Recipe &recipe, Incidence *incidence)
{
    for (const auto &values : recipe.alarms) {
        const auto alarm = incidence->newAlarm();
        alarm->setDisplayAlarm(values.text);
        alarm->setStartOffset(Duration(values.startOffset));
        alarm->setEnabled(true);
    }
    if (!recipe.organizerEmail.isEmpty()) {
        incidence->setOrganizer(Person(recipe.organizerName, recipe.organizerEmail));
    }
    for (const auto &values : recipe.attendees) {
        incidence->addAttendee(
            Attendee(values.name, values.email, true, values.status, Attendee::ReqParticipant));
    }
}
} // namespace

WallClock WallClock::of(const QDateTime &dateTime)
{
    return {dateTime.date(), dateTime.time(), dateTime.timeSpec(), dateTime.timeZone()};
}

QDateTime WallClock::dateTime() const
{
    if (!date.isValid()) {
        return {};
    }
    return spec == Qt::TimeZone ? QDateTime(date, time, zone) : QDateTime(date, time, spec);
}

Recipe Recipe::of(const Incidence &incidence)
{
    Recipe recipe;
    recipe.type = incidence.type();
    recipe.uid = incidence.uid();
    recipe.summary = incidence.summary();
    recipe.location = incidence.location();
    recipe.description = incidence.description();
    recipe.customValue = incidence.customProperty(customApp, customKey);
    recipe.organizerName = incidence.organizer().name();
    recipe.organizerEmail = incidence.organizer().email();
    recipe.categories = incidence.categories();
    const auto alarms = incidence.alarms();
    for (const auto &alarm : alarms) {
        recipe.alarms.append({alarm->text(), alarm->startOffset().asSeconds()});
    }
    const auto attendees = incidence.attendees();
    for (const auto &attendee : attendees) {
        recipe.attendees.append({attendee.name(), attendee.email(), attendee.status()});
    }
    if (incidence.recurs()) {
        readRecurrence(*incidence.recurrence(), &recipe);
    }
    recipe.created = WallClock::of(incidence.created());
    recipe.lastModified = WallClock::of(incidence.lastModified());
    recipe.start = WallClock::of(incidence.dtStart());
    recipe.recurrenceId = WallClock::of(incidence.recurrenceId());
    recipe.priority = incidence.priority();
    recipe.allDay = incidence.allDay();
    if (recipe.type == Incidence::TypeEvent) {
        recipe.end = WallClock::of(static_cast<const Event &>(incidence).dtEnd());
    } else if (recipe.type == Incidence::TypeTodo) {
        readTodo(static_cast<const Todo &>(incidence), &recipe);
    }
    return recipe;
}

Incidence::Ptr Recipe::build() const
{
    const Incidence::Ptr incidence = makeWithTimes(*this);
    incidence->setUid(uid);
    incidence->setCreated(created.dateTime());
    incidence->setSummary(summary, false);
    incidence->setLocation(location, false);
    incidence->setDescription(description, false);
    incidence->setPriority(priority);
    if (!categories.isEmpty()) {
        incidence->setCategories(categories);
    }
    if (!customValue.isEmpty()) {
        incidence->setCustomProperty(customApp, customKey, customValue);
    }
    addPeople(*this, incidence.data());
    if (recurrenceId.date.isValid()) {
        incidence->setRecurrenceId(recurrenceId.dateTime());
    }
    if (!rules.isEmpty()) {
        addRecurrence(*this, incidence->recurrence());
    }
    incidence->setLastModified(lastModified.dateTime());
    incidence->resetDirtyFields();
    return incidence;
}
