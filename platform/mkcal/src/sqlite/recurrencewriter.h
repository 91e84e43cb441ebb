// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_RECURRENCEWRITER_H
#define MKCAL_RECURRENCEWRITER_H

#include "sqlite/statement.h"

#include <KCalendarCore/Recurrence>

namespace mKCal
{
/// Writes the rules and the single dates of a recurrence.
class RecurrenceWriter
{
public:
    explicit RecurrenceWriter(Connection &connection);

    static bool hasRules(const KCalendarCore::Recurrence &recurrence);
    static bool hasDates(const KCalendarCore::Recurrence &recurrence);

    bool writeRules(qint64 comp, const KCalendarCore::Recurrence &recurrence);
    bool writeDates(qint64 comp, const KCalendarCore::Recurrence &recurrence);

private:
    bool writeRule(qint64 comp, int pos, bool exclude, const KCalendarCore::RecurrenceRule &rule,
                   const QDateTime &recurrenceStart);
    bool writeDate(qint64 comp, int kind, const QDate &date);
    bool writeDate(qint64 comp, int kind, const QDateTime &dateTime);
    bool writePeriod(qint64 comp, const KCalendarCore::Period &period);
    void bindDate(qint64 comp, int kind, const QDateTime &dateTime);

    Statement m_rule;
    Statement m_date;
    int m_datePos = 0; ///< of the recurrence that is being written
};
} // namespace mKCal

#endif
