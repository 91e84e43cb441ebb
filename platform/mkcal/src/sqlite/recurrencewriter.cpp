// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/recurrencewriter.h"

#include "sqlite/componentcolumns.h"
#include "sqlite/datetimecolumns.h"

using namespace KCalendarCore;

namespace mKCal
{
namespace
{
QByteArray numbersText(const QList<int> &numbers)
{
    QByteArray text;
    for (const int number : numbers) {
        if (!text.isEmpty())
            text += ',';
        text += QByteArray::number(number);
    }
    return text;
}

/// As RFC 5545 section 3.3.10 writes them: "MO", "-1FR".
QByteArray weekDaysText(const QList<RecurrenceRule::WDayPos> &days)
{
    QByteArray text;
    for (const RecurrenceRule::WDayPos &day : days) {
        if (!text.isEmpty())
            text += ',';
        if (day.pos() != 0)
            text += QByteArray::number(day.pos());
        text += RuleText::weekDays[std::size_t(qBound(1, int(day.day()), 7) - 1)];
    }
    return text;
}
} // namespace

RecurrenceWriter::RecurrenceWriter(Connection &connection)
    : m_rule(connection,
             "INSERT INTO Rule(comp, pos, exclude, period, frequency, count, endWall, endTz,"
             " startWall, startTz, weekStart, bySecond, byMinute, byHour, byDay, byMonthDay,"
             " byYearDay, byWeekNumber, byMonth, bySetPos, text)"
             " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      m_date(connection,
             "INSERT INTO Dates(comp, pos, kind, wall, tz, endWall, endTz, duration, durationDaily)"
             " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)")
{
}

bool RecurrenceWriter::hasRules(const Recurrence &recurrence)
{
    return !recurrence.rRules().isEmpty() || !recurrence.exRules().isEmpty();
}

bool RecurrenceWriter::hasDates(const Recurrence &recurrence)
{
    return !recurrence.rDateTimes().isEmpty() || !recurrence.rDates().isEmpty()
        || !recurrence.exDateTimes().isEmpty() || !recurrence.exDates().isEmpty();
}

bool RecurrenceWriter::writeRules(qint64 comp, const Recurrence &recurrence)
{
    const QDateTime start = recurrence.startDateTime();
    int pos = 0;
    const auto rules = recurrence.rRules();
    for (const RecurrenceRule *rule : rules) {
        if (!writeRule(comp, pos++, false, *rule, start))
            return false;
    }
    const auto exceptions = recurrence.exRules();
    for (const RecurrenceRule *rule : exceptions) {
        if (!writeRule(comp, pos++, true, *rule, start))
            return false;
    }
    return true;
}

bool RecurrenceWriter::writeRule(qint64 comp, int pos, bool exclude, const RecurrenceRule &rule,
                                 const QDateTime &recurrenceStart)
{
    const bool ownStart = !DateTimeColumns::identical(rule.startDt(), recurrenceStart);
    int parameter = 1;
    m_rule.bind(parameter++, comp);
    m_rule.bind(parameter++, pos);
    m_rule.bind(parameter++, exclude);
    m_rule.bind(parameter++, int(rule.recurrenceType()));
    m_rule.bind(parameter++, qint64(rule.frequency()));
    m_rule.bind(parameter++, rule.duration());
    // The end of a counted rule would be computed, at a price.
    DateTimeColumns::bind(m_rule, parameter, rule.duration() == 0 ? rule.endDt() : QDateTime());
    parameter += 2;
    DateTimeColumns::bind(m_rule, parameter, ownStart ? rule.startDt() : QDateTime());
    parameter += 2;
    m_rule.bind(parameter++, int(rule.weekStart()));
    for (const QByteArray &text :
         {numbersText(rule.bySeconds()), numbersText(rule.byMinutes()), numbersText(rule.byHours()),
          weekDaysText(rule.byDays()), numbersText(rule.byMonthDays()),
          numbersText(rule.byYearDays()), numbersText(rule.byWeekNumbers()),
          numbersText(rule.byMonths()), numbersText(rule.bySetPos())})
        m_rule.bindAscii(parameter++, text);
    m_rule.bind(parameter++, rule.rrule());
    return m_rule.run();
}

bool RecurrenceWriter::writeDates(qint64 comp, const Recurrence &recurrence)
{
    m_datePos = 0;
    bool written = true;
    const auto rDates = recurrence.rDates();
    for (const QDate &date : rDates)
        written = written && writeDate(comp, DateKind::RDate, date);
    const auto rDateTimes = recurrence.rDateTimes();
    for (const QDateTime &dateTime : rDateTimes) {
        const Period period = recurrence.rDateTimePeriod(dateTime);
        written = written
            && (period.isValid() ? writePeriod(comp, period)
                                 : writeDate(comp, DateKind::RDateTime, dateTime));
    }
    const auto exDates = recurrence.exDates();
    for (const QDate &date : exDates)
        written = written && writeDate(comp, DateKind::ExDate, date);
    const auto exDateTimes = recurrence.exDateTimes();
    for (const QDateTime &dateTime : exDateTimes)
        written = written && writeDate(comp, DateKind::ExDateTime, dateTime);
    return written;
}

void RecurrenceWriter::bindDate(qint64 comp, int kind, const QDateTime &dateTime)
{
    m_date.bind(1, comp);
    m_date.bind(2, m_datePos++);
    m_date.bind(3, kind);
    DateTimeColumns::bind(m_date, 4, dateTime);
    for (int parameter = 6; parameter <= 8; ++parameter)
        m_date.bindNull(parameter);
    m_date.bind(9, false);
}

bool RecurrenceWriter::writeDate(qint64 comp, int kind, const QDate &date)
{
    return writeDate(comp, kind, QDateTime(date, QTime(0, 0), Qt::LocalTime));
}

bool RecurrenceWriter::writeDate(qint64 comp, int kind, const QDateTime &dateTime)
{
    bindDate(comp, kind, dateTime);
    return m_date.run();
}

bool RecurrenceWriter::writePeriod(qint64 comp, const Period &period)
{
    bindDate(comp, DateKind::RPeriod, period.start());
    if (period.hasDuration()) {
        m_date.bind(8, period.duration().value());
        m_date.bind(9, period.duration().isDaily());
    } else {
        DateTimeColumns::bind(m_date, 6, period.end());
    }
    return m_date.run();
}
} // namespace mKCal
