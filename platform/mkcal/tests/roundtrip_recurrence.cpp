// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"

#include <KCalendarCore/Recurrence>

#include <QBitArray>

using namespace KCalCore;

namespace
{
Feature recurring(const char *name, const std::function<void(Recurrence &)> &give,
                  const std::function<bool(const Recurrence &)> &has)
{
    return feature<Event>(
        name, plainEvent(), [give](Event &event) { give(*event.recurrence()); },
        [has](const Event &event) { return has(*event.recurrence()); });
}

/// A rule that is made part by part, as a reader of iCalendar text does.
Feature rule(const char *name, RecurrenceRule::PeriodType period,
             const std::function<void(RecurrenceRule &)> &give,
             const std::function<bool(const RecurrenceRule &)> &has)
{
    return recurring(
        name,
        [period, give](Recurrence &recurrence) {
            auto *rule = new RecurrenceRule;
            rule->setRecurrenceType(period);
            rule->setFrequency(1);
            rule->setStartDt(recurrence.startDateTime());
            rule->setDuration(-1);
            give(*rule);
            recurrence.addRRule(rule);
        },
        [period, has](const Recurrence &recurrence) {
            const auto rules = recurrence.rRules();
            return rules.size() == 1 && rules.first()->recurrenceType() == period
                && has(*rules.first());
        });
}

Features clockRules()
{
    using Rule = RecurrenceRule;
    const QList<int> seconds{0, 30, 59};
    return {
        rule(
            "every 90 seconds", Rule::rSecondly, [](Rule &rule) { rule.setFrequency(90); },
            [](const Rule &rule) { return rule.frequency() == 90; }),
        rule(
            "every minute at seconds", Rule::rMinutely,
            [seconds](Rule &rule) { rule.setBySeconds(seconds); },
            [seconds](const Rule &rule) { return rule.bySeconds() == seconds; }),
        rule(
            "every hour at minutes", Rule::rHourly,
            [](Rule &rule) {
                rule.setByMinutes({0, 45});
            },
            [](const Rule &rule) {
                return rule.byMinutes() == QList<int>({0, 45});
            }),
        rule(
            "every day at hours", Rule::rDaily,
            [](Rule &rule) {
                rule.setByHours({0, 23});
            },
            [](const Rule &rule) {
                return rule.byHours() == QList<int>({0, 23});
            }),
        rule(
            "every day until", Rule::rDaily,
            [](Rule &rule) { rule.setEndDt(helsinki(2012, 5, 2)); },
            [](const Rule &rule) {
                return rule.duration() == 0 && rule.endDt() == helsinki(2012, 5, 2)
                    && rule.endDt().timeSpec() == Qt::TimeZone;
            }),
        rule(
            "ten times", Rule::rDaily, [](Rule &rule) { rule.setDuration(10); },
            [](const Rule &rule) { return rule.duration() == 10; }),
    };
}

Features calendarRules()
{
    using Rule = RecurrenceRule;
    return {
        rule(
            "weekly with a week that starts on Sunday", Rule::rWeekly,
            [](Rule &rule) {
                rule.setWeekStart(7);
                rule.setByDays({Rule::WDayPos(0, 1), Rule::WDayPos(0, 7)});
            },
            [](const Rule &rule) {
                return rule.weekStart() == 7 && rule.byDays().last() == Rule::WDayPos(0, 7);
            }),
        rule(
            "last Friday of the month", Rule::rMonthly,
            [](Rule &rule) { rule.setByDays({Rule::WDayPos(-1, 5)}); },
            [](const Rule &rule) { return rule.byDays().first() == Rule::WDayPos(-1, 5); }),
        rule(
            "last day of the month", Rule::rMonthly,
            [](Rule &rule) {
                rule.setByMonthDays({-1, 15});
            },
            [](const Rule &rule) {
                return rule.byMonthDays() == QList<int>({-1, 15});
            }),
        rule(
            "last working day", Rule::rMonthly,
            [](Rule &rule) {
                rule.setByDays({Rule::WDayPos(0, 1), Rule::WDayPos(0, 5)});
                rule.setBySetPos({-1});
            },
            [](const Rule &rule) { return rule.bySetPos() == QList<int>({-1}); }),
        rule(
            "yearly in months", Rule::rYearly,
            [](Rule &rule) {
                rule.setByMonths({1, 12});
            },
            [](const Rule &rule) {
                return rule.byMonths() == QList<int>({1, 12});
            }),
        rule(
            "yearly on days of the year", Rule::rYearly,
            [](Rule &rule) {
                rule.setByYearDays({100, -1});
            },
            [](const Rule &rule) {
                return rule.byYearDays() == QList<int>({100, -1});
            }),
        rule(
            "yearly in weeks", Rule::rYearly,
            [](Rule &rule) {
                rule.setByWeekNumbers({20, -1});
            },
            [](const Rule &rule) {
                return rule.byWeekNumbers() == QList<int>({20, -1});
            }),
        rule(
            "rule with its own text", Rule::rDaily,
            [](Rule &rule) { rule.setRRule(QStringLiteral("FREQ=DAILY")); },
            [](const Rule &rule) { return rule.rrule() == QLatin1String("FREQ=DAILY"); }),
        rule(
            "rule that starts elsewhere", Rule::rDaily,
            [](Rule &rule) { rule.setStartDt(helsinki(2011, 6, 1)); },
            [](const Rule &rule) { return rule.startDt() == helsinki(2011, 6, 1); }),
    };
}

Features wholeSeries()
{
    return {
        recurring(
            "two rules",
            [](Recurrence &recurrence) {
                recurrence.setDaily(2);
                auto *second = new RecurrenceRule;
                second->setRecurrenceType(RecurrenceRule::rMonthly);
                second->setFrequency(3);
                second->setStartDt(recurrence.startDateTime());
                recurrence.addRRule(second);
            },
            [](const Recurrence &recurrence) {
                return recurrence.rRules().size() == 2
                    && recurrence.rRules().last()->frequency() == 3;
            }),
        recurring(
            "exception rule",
            [](Recurrence &recurrence) {
                recurrence.setDaily(1);
                auto *exception = new RecurrenceRule;
                exception->setRecurrenceType(RecurrenceRule::rWeekly);
                exception->setFrequency(2);
                exception->setStartDt(recurrence.startDateTime());
                exception->setDuration(-1);
                recurrence.addExRule(exception);
            },
            [](const Recurrence &recurrence) {
                return recurrence.rRules().size() == 1 && recurrence.exRules().size() == 1
                    && recurrence.exRules().first()->frequency() == 2;
            }),
        feature<Event>(
            "all-day series", plainEvent(),
            [](Event &event) {
                event.setDtStart(floating(2011, 5, 2));
                event.setDtEnd(floating(2011, 5, 3));
                event.setAllDay(true);
                event.recurrence()->setWeekly(1, QBitArray(7, true));
                event.recurrence()->setEndDate(QDate(2011, 12, 24));
            },
            [](const Event &event) {
                return event.recurrence()->allDay()
                    && event.recurrence()->rRules().first()->allDay()
                    && event.recursOn(QDate(2011, 12, 24), QTimeZone("Europe/Helsinki"))
                    && !event.recursOn(QDate(2011, 12, 25), QTimeZone("Europe/Helsinki"));
            }),
    };
}

QList<QDateTime> moments()
{
    return {utc(2011, 5, 9), helsinki(2011, 6, 9)};
}

Features excludedDates()
{
    return {
        recurring(
            "excluded moments",
            [](Recurrence &recurrence) {
                recurrence.setDaily(1);
                recurrence.setExDateTimes(moments());
            },
            [](const Recurrence &recurrence) {
                const auto dates = recurrence.exDateTimes();
                return dates.size() == 2 && dates.first().timeSpec() == Qt::UTC
                    && dates.last().timeSpec() == Qt::TimeZone;
            }),
        recurring(
            "excluded days",
            [](Recurrence &recurrence) {
                recurrence.setDaily(1);
                recurrence.setExDates({QDate(2011, 5, 9), QDate(2011, 5, 10)});
            },
            [](const Recurrence &recurrence) {
                return recurrence.exDates() == DateList({QDate(2011, 5, 9), QDate(2011, 5, 10)});
            }),
        recurring(
            "excluded days without a rule",
            [](Recurrence &recurrence) { recurrence.addExDate(QDate(2011, 5, 9)); },
            [](const Recurrence &recurrence) { return recurrence.exDates().size() == 1; }),
    };
}

Features addedDates()
{
    return {
        recurring(
            "added moments", [](Recurrence &recurrence) { recurrence.setRDateTimes(moments()); },
            [](const Recurrence &recurrence) {
                return recurrence.rDateTimes() == moments()
                    && recurrence.rDateTimes().first().timeSpec() == Qt::UTC;
            }),
        recurring(
            "added days", [](Recurrence &recurrence) { recurrence.setRDates({QDate(2011, 7, 1)}); },
            [](const Recurrence &recurrence) {
                return recurrence.rDates() == DateList({QDate(2011, 7, 1)});
            }),
        recurring(
            "added period with an end",
            [](Recurrence &recurrence) {
                recurrence.addRDateTimePeriod(Period(helsinki(2011, 7, 1), helsinki(2011, 7, 2)));
            },
            [](const Recurrence &recurrence) {
                const Period period = recurrence.rDateTimePeriod(helsinki(2011, 7, 1));
                return period.end() == helsinki(2011, 7, 2) && !period.hasDuration();
            }),
        recurring(
            "added period with a length",
            [](Recurrence &recurrence) {
                recurrence.addRDateTimePeriod(
                    Period(helsinki(2011, 7, 1), Duration(2, Duration::Days)));
            },
            [](const Recurrence &recurrence) {
                const Period period = recurrence.rDateTimePeriod(helsinki(2011, 7, 1));
                return period.hasDuration() && period.duration() == Duration(2, Duration::Days);
            }),
    };
}
} // namespace

Features recurrenceFeatures()
{
    return clockRules() + calendarRules() + wholeSeries() + excludedDates() + addedDates();
}
