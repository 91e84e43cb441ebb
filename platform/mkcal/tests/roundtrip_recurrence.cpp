// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"

#include <KCalendarCore/Recurrence>

#include <QBitArray>

using namespace KCalCore;

namespace
{
using Rule = RecurrenceRule;

Feature recurring(const char *name, const std::function<void(Recurrence &)> &give)
{
    return event(name, [give](Event &event) { give(*event.recurrence()); });
}

Rule *newRule(const Recurrence &recurrence, Rule::PeriodType period, int frequency = 1)
{
    auto *rule = new Rule;
    rule->setRecurrenceType(period);
    rule->setFrequency(frequency);
    rule->setStartDt(recurrence.startDateTime());
    rule->setDuration(-1);
    return rule;
}

/// A rule that is made part by part, as a reader of iCalendar text does.
Feature rule(const char *name, Rule::PeriodType period, const std::function<void(Rule &)> &give)
{
    return recurring(name, [period, give](Recurrence &recurrence) {
        Rule *const rule = newRule(recurrence, period);
        give(*rule);
        recurrence.addRRule(rule);
    });
}

/// A rule with the list @p setter sets, such as BYHOUR.
Feature rule(const char *name, Rule::PeriodType period, void (Rule::*setter)(const QList<int> &),
             const QList<int> &list)
{
    return rule(name, period, [setter, list](Rule &rule) { (rule.*setter)(list); });
}

Features clockRules()
{
    return {
        rule("every 90 seconds", Rule::rSecondly, [](Rule &rule) { rule.setFrequency(90); }),
        rule("every minute at seconds", Rule::rMinutely, &Rule::setBySeconds, {0, 30, 59}),
        rule("every hour at minutes", Rule::rHourly, &Rule::setByMinutes, {0, 45}),
        rule("every day at hours", Rule::rDaily, &Rule::setByHours, {0, 23}),
        rule("every day until", Rule::rDaily,
             [](Rule &rule) { rule.setEndDt(helsinki(2012, 5, 2)); }),
        rule("ten times", Rule::rDaily, [](Rule &rule) { rule.setDuration(10); }),
    };
}

Features calendarRules()
{
    return {
        rule("weekly with a week that starts on Sunday", Rule::rWeekly,
             [](Rule &rule) {
                 rule.setWeekStart(7);
                 rule.setByDays({Rule::WDayPos(0, 1), Rule::WDayPos(0, 7)});
             }),
        rule("last Friday of the month", Rule::rMonthly,
             [](Rule &rule) { rule.setByDays({Rule::WDayPos(-1, 5)}); }),
        rule("last day of the month", Rule::rMonthly, &Rule::setByMonthDays, {-1, 15}),
        rule("last working day", Rule::rMonthly,
             [](Rule &rule) {
                 rule.setByDays({Rule::WDayPos(0, 1), Rule::WDayPos(0, 5)});
                 rule.setBySetPos({-1});
             }),
        rule("yearly in months", Rule::rYearly, &Rule::setByMonths, {1, 12}),
        rule("yearly on days of the year", Rule::rYearly, &Rule::setByYearDays, {100, -1}),
        rule("yearly in weeks", Rule::rYearly, &Rule::setByWeekNumbers, {20, -1}),
        rule("rule with its own text", Rule::rDaily,
             [](Rule &rule) { rule.setRRule("FREQ=DAILY"); }),
        rule("rule that starts elsewhere", Rule::rDaily,
             [](Rule &rule) { rule.setStartDt(helsinki(2011, 6, 1)); }),
    };
}

Features wholeSeries()
{
    return {
        recurring("two rules",
                  [](Recurrence &recurrence) {
                      recurrence.setDaily(2);
                      recurrence.addRRule(newRule(recurrence, Rule::rMonthly, 3));
                  }),
        recurring("exception rule",
                  [](Recurrence &recurrence) {
                      recurrence.setDaily(1);
                      recurrence.addExRule(newRule(recurrence, Rule::rWeekly, 2));
                  }),
        event("all-day series",
              [](Event &event) {
                  event.setDtStart(floating(2011, 5, 2));
                  event.setDtEnd(floating(2011, 5, 3));
                  event.setAllDay(true);
                  event.recurrence()->setWeekly(1, QBitArray(7, true));
                  event.recurrence()->setEndDate(QDate(2011, 12, 24));
              }),
    };
}

Features dates()
{
    const QList<QDateTime> moments{utc(2011, 5, 9), helsinki(2011, 6, 9)};
    const QDateTime july = helsinki(2011, 7, 1);
    return {
        recurring("excluded moments",
                  [moments](Recurrence &recurrence) {
                      recurrence.setDaily(1);
                      recurrence.setExDateTimes(moments);
                  }),
        recurring("excluded days",
                  [](Recurrence &recurrence) {
                      recurrence.setDaily(1);
                      recurrence.setExDates({QDate(2011, 5, 9), QDate(2011, 5, 10)});
                  }),
        recurring("excluded days without a rule",
                  [](Recurrence &recurrence) { recurrence.addExDate(QDate(2011, 5, 9)); }),
        recurring("added moments",
                  [moments](Recurrence &recurrence) { recurrence.setRDateTimes(moments); }),
        recurring("added days",
                  [](Recurrence &recurrence) { recurrence.setRDates({QDate(2011, 7, 1)}); }),
        recurring("added period with an end",
                  [july](Recurrence &recurrence) {
                      recurrence.addRDateTimePeriod(Period(july, helsinki(2011, 7, 2)));
                  }),
        recurring("added period with a length",
                  [july](Recurrence &recurrence) {
                      recurrence.addRDateTimePeriod(Period(july, Duration(2, Duration::Days)));
                  }),
    };
}
} // namespace

Features recurrenceFeatures()
{
    return clockRules() + calendarRules() + wholeSeries() + dates();
}
