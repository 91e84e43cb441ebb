// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/loadrecord.h"

namespace mKCal
{
void LoadRecord::clear()
{
    *this = LoadRecord();
}

QVector<DateRange> LoadRecord::missingDays(const DateRange &range) const
{
    return m_everything ? QVector<DateRange>() : m_days.missing(range);
}

QVector<DateRange> LoadRecord::missingRecurringDays(const DateRange &range) const
{
    return hasAllRecurring() ? QVector<DateRange>() : m_recurringDays.missing(range);
}

bool LoadRecord::covers(const ComponentKeys &keys, const QString &notebook) const
{
    if (hasNotebook(notebook))
        return true;
    if (keys.type == KCalCore::IncidenceBase::TypeJournal && m_journals)
        return true;
    if (keys.type == KCalCore::IncidenceBase::TypeTodo && keys.completed == 0 && m_uncompletedTodos)
        return true;
    if (keys.span == ComponentKeys::Recurring)
        return m_allRecurring || m_recurringDays.overlaps(keys.start, keys.until);
    return keys.hasStart && m_days.overlaps(keys.start, keys.end);
}
} // namespace mKCal
