// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_RECURRENCEREADER_H
#define MKCAL_RECURRENCEREADER_H

#include "sqlite/datetimecolumns.h"
#include "sqlite/statement.h"

#include <KCalendarCore/Recurrence>

#include <memory>

namespace mKCal
{
/// Reads the rules and the single dates of a recurrence.
class RecurrenceReader
{
public:
    RecurrenceReader(Connection &connection, DateTimeReader &dateTimes);

    /// Whether the database answered.
    bool readRules(qint64 comp, KCalendarCore::Recurrence *recurrence);
    bool readDates(qint64 comp, KCalendarCore::Recurrence *recurrence);
    /// Rules and parts of rules that were left out because they cannot be.
    int faults() const { return m_faults; }

private:
    struct SingleDates;

    std::unique_ptr<KCalendarCore::RecurrenceRule>
    rule(const KCalendarCore::Recurrence &recurrence);
    QList<int> numbers(int column, int least, int most, bool zeroAllowed);
    QList<KCalendarCore::RecurrenceRule::WDayPos> weekDays(int column);
    void readByParts(KCalendarCore::RecurrenceRule *rule);
    void readDate(SingleDates *dates);

    DateTimeReader &m_dateTimes;
    Statement m_rules;
    Statement m_dates;
    int m_faults = 0;
};
} // namespace mKCal

#endif
