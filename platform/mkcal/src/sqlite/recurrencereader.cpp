// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/recurrencereader.h"

#include "sqlite/componentcolumns.h"

#include <algorithm>

using namespace KCalendarCore;

namespace mKCal
{
namespace
{
/// The columns of the query for rules.
enum RuleColumn {
    Exclude,
    Period_,
    Frequency,
    RuleCount,
    EndWall,
    EndTz,
    StartWall,
    StartTz,
    WeekStart,
    BySecond,
    ByMinute,
    ByHour,
    ByDay,
    ByMonthDay,
    ByYearDay,
    ByWeekNumber,
    ByMonth,
    BySetPos,
    Text,
};

/// More than RFC 5545 has different values for in any list.
constexpr int longestList = 1000;
} // namespace

struct RecurrenceReader::SingleDates {
    DateList rDates;
    DateList exDates;
    QList<QDateTime> rDateTimes;
    QList<QDateTime> exDateTimes;
    QList<Period> periods;
};

RecurrenceReader::RecurrenceReader(Connection &connection, DateTimeReader &dateTimes)
    : m_dateTimes(dateTimes),
      m_rules(connection,
              "SELECT exclude, period, frequency, count, endWall, endTz, startWall, startTz,"
              " weekStart, bySecond, byMinute, byHour, byDay, byMonthDay, byYearDay, byWeekNumber,"
              " byMonth, bySetPos, text FROM Rule WHERE comp = ? ORDER BY pos"),
      m_dates(connection,
              "SELECT kind, wall, tz, endWall, endTz, duration, durationDaily FROM Dates"
              " WHERE comp = ? ORDER BY pos")
{
}

bool RecurrenceReader::readRules(qint64 comp, Recurrence *recurrence)
{
    m_rules.bind(1, comp);
    while (m_rules.next()) {
        std::unique_ptr<RecurrenceRule> read = rule(*recurrence);
        if (!read)
            continue;
        // The recurrence takes the rule over.
        if (m_rules.integer(Exclude) != 0)
            recurrence->addExRule(read.release());
        else
            recurrence->addRRule(read.release());
    }
    return !m_rules.failed();
}

std::unique_ptr<RecurrenceRule> RecurrenceReader::rule(const Recurrence &recurrence)
{
    const int period = m_rules.smallInteger(Period_);
    const int frequency = m_rules.smallInteger(Frequency);
    if (period < RecurrenceRule::rSecondly || period > RecurrenceRule::rYearly || frequency < 1) {
        ++m_faults;
        return nullptr;
    }
    auto rule = std::make_unique<RecurrenceRule>();
    // Each setter makes the rule work out its parts anew, and while it has no start, in the zone of
    // the system, which takes long to ask for.
    rule->setStartDt(m_rules.isNull(StartWall) ? recurrence.startDateTime()
                                               : m_dateTimes.read(m_rules, StartWall));
    rule->setRecurrenceType(RecurrenceRule::PeriodType(period));
    rule->setFrequency(frequency);
    if (recurrence.allDay())
        rule->setAllDay(true);
    const int count = qMax(-1, m_rules.smallInteger(RuleCount));
    if (count == 0)
        rule->setEndDt(m_dateTimes.read(m_rules, EndWall));
    if (count != rule->duration())
        rule->setDuration(count);
    const int weekStart = qBound(1, m_rules.smallInteger(WeekStart), 7);
    if (weekStart != rule->weekStart())
        rule->setWeekStart(short(weekStart));
    readByParts(rule.get());
    const QString text = m_rules.text(Text);
    if (!text.isEmpty())
        rule->setRRule(text);
    return rule;
}

void RecurrenceReader::readByParts(RecurrenceRule *rule)
{
    struct Part {
        int column;
        int least;
        int most;
        bool zeroAllowed;
        void (RecurrenceRule::*set)(const QList<int> &);
    };
    // RFC 5545 section 3.3.10
    static constexpr Part parts[] = {
        {BySecond, 0, 60, true, &RecurrenceRule::setBySeconds},
        {ByMinute, 0, 59, true, &RecurrenceRule::setByMinutes},
        {ByHour, 0, 23, true, &RecurrenceRule::setByHours},
        {ByMonthDay, -31, 31, false, &RecurrenceRule::setByMonthDays},
        {ByYearDay, -366, 366, false, &RecurrenceRule::setByYearDays},
        {ByWeekNumber, -53, 53, false, &RecurrenceRule::setByWeekNumbers},
        {ByMonth, 1, 12, false, &RecurrenceRule::setByMonths},
        {BySetPos, -366, 366, false, &RecurrenceRule::setBySetPos},
    };
    for (const Part &part : parts) {
        if (!m_rules.isNull(part.column))
            (rule->*part.set)(numbers(part.column, part.least, part.most, part.zeroAllowed));
    }
    if (!m_rules.isNull(ByDay))
        rule->setByDays(weekDays(ByDay));
}

QList<int> RecurrenceReader::numbers(int column, int least, int most, bool zeroAllowed)
{
    QList<int> numbers;
    const QList<QByteArray> words = m_rules.bytes(column).split(',');
    for (const QByteArray &word : words) {
        bool understood = false;
        const int number = word.toInt(&understood);
        if (understood && number >= least && number <= most && (number != 0 || zeroAllowed)
            && numbers.size() < longestList)
            numbers.append(number);
        else
            ++m_faults;
    }
    return numbers;
}

QList<RecurrenceRule::WDayPos> RecurrenceReader::weekDays(int column)
{
    QList<RecurrenceRule::WDayPos> days;
    const QList<QByteArray> words = m_rules.bytes(column).split(',');
    for (const QByteArray &word : words) {
        const QByteArray name = word.right(2);
        const QByteArray position = word.chopped(name.size());
        const auto *const day =
            std::find(RuleText::weekDays.begin(), RuleText::weekDays.end(), name);
        bool understood = true;
        const int pos = position.isEmpty() ? 0 : position.toInt(&understood);
        if (day != RuleText::weekDays.end() && understood && qAbs(pos) <= 53
            && days.size() < longestList)
            days.append(RecurrenceRule::WDayPos(pos, short(day - RuleText::weekDays.begin() + 1)));
        else
            ++m_faults;
    }
    return days;
}

bool RecurrenceReader::readDates(qint64 comp, Recurrence *recurrence)
{
    SingleDates dates;
    m_dates.bind(1, comp);
    while (m_dates.next())
        readDate(&dates);
    if (!dates.rDates.isEmpty())
        recurrence->setRDates(dates.rDates);
    if (!dates.rDateTimes.isEmpty())
        recurrence->setRDateTimes(dates.rDateTimes);
    for (const Period &period : qAsConst(dates.periods))
        recurrence->addRDateTimePeriod(period);
    if (!dates.exDates.isEmpty())
        recurrence->setExDates(dates.exDates);
    if (!dates.exDateTimes.isEmpty())
        recurrence->setExDateTimes(dates.exDateTimes);
    return !m_dates.failed();
}

void RecurrenceReader::readDate(SingleDates *dates)
{
    const QDateTime dateTime = m_dateTimes.read(m_dates, 1);
    if (!dateTime.isValid()) {
        ++m_faults;
        return;
    }
    switch (m_dates.integer(0)) {
    case DateKind::RDate:
        dates->rDates.append(dateTime.date());
        break;
    case DateKind::RDateTime:
        dates->rDateTimes.append(dateTime);
        break;
    case DateKind::RPeriod:
        if (m_dates.isNull(3))
            dates->periods.append(
                Period(dateTime,
                       Duration(m_dates.smallInteger(5),
                                m_dates.integer(6) ? Duration::Days : Duration::Seconds)));
        else
            dates->periods.append(Period(dateTime, m_dateTimes.read(m_dates, 3)));
        break;
    case DateKind::ExDate:
        dates->exDates.append(dateTime.date());
        break;
    case DateKind::ExDateTime:
        dates->exDateTimes.append(dateTime);
        break;
    default:
        ++m_faults;
    }
}
} // namespace mKCal
