// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_LOADRECORD_H
#define MKCAL_LOADRECORD_H

#include "sqlite/componentkeys.h"
#include "storage/dateranges.h"

#include <QSet>
#include <QString>

namespace mKCal
{
/// Remembers which kinds and ranges were read into the calendar: a load asks it for what is
/// missing, and a change by another process for whether it concerns the calendar.
class LoadRecord
{
public:
    void clear();

    bool hasEverything() const { return m_everything; }
    void addEverything() { m_everything = true; }
    bool hasUncompletedTodos() const { return m_everything || m_uncompletedTodos; }
    void addUncompletedTodos() { m_uncompletedTodos = true; }
    bool hasJournals() const { return m_everything || m_journals; }
    void addJournals() { m_journals = true; }
    bool hasAllRecurring() const { return m_everything || m_allRecurring; }
    void addAllRecurring() { m_allRecurring = true; }
    bool hasNotebook(const QString &uid) const { return m_everything || m_notebooks.contains(uid); }
    void addNotebook(const QString &uid) { m_notebooks.insert(uid); }

    /// The days of @p range whose non-recurring incidences were not read yet.
    QVector<DateRange> missingDays(const DateRange &range) const;
    void addDays(const DateRange &range) { m_days.add(range); }
    /// The days of @p range whose living series were not read yet.
    QVector<DateRange> missingRecurringDays(const DateRange &range) const;
    void addRecurringDays(const DateRange &range) { m_recurringDays.add(range); }

    /// Whether one of the loads so far would have read a row with these keys.
    bool covers(const ComponentKeys &keys, const QString &notebook) const;

private:
    bool m_everything = false;
    bool m_uncompletedTodos = false;
    bool m_journals = false;
    bool m_allRecurring = false;
    QSet<QString> m_notebooks;
    DateRanges m_days;
    DateRanges m_recurringDays;
};
} // namespace mKCal

#endif
