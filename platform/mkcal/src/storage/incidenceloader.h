// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_INCIDENCELOADER_H
#define MKCAL_INCIDENCELOADER_H

#include "sqlite/componentreader.h"
#include "storage/changerecord.h"

#include <mkcal/extendedcalendar.h>

#include <functional>

namespace mKCal
{
/// The incidence of that key in @p calendar; null when it is not there.
KCalCore::Incidence::Ptr findInCalendar(const ExtendedCalendar &calendar, const IncidenceKey &key);
/// The one that stands for the same as @p incidence.
KCalCore::Incidence::Ptr findInCalendar(const ExtendedCalendar &calendar,
                                        const KCalCore::Incidence &incidence);

/// Brings rows into the calendar that are not there yet. What is there stays, and so does what was
/// deleted there without having been saved.
///
/// A series always comes with all its exceptions, and an exception never without its series: the
/// calendar would show the occurrence that the exception replaces.
class IncidenceLoader
{
public:
    /// @param learnNotebooks reads the notebooks anew, for a row in one that is not known yet.
    IncidenceLoader(const ExtendedCalendar::Ptr &calendar, ChangeRecord &changes,
                    std::function<void()> learnNotebooks);

    // Conditions are SQL on the columns of Components, without the `state`; false on a database
    // error. What was loaded is kept then.
    /// The non-recurring rows that @p condition holds for.
    bool loadSingle(ComponentReader &reader, const QByteArray &condition, const SqlValues &values);
    /// The families of the series and exceptions that @p condition holds for.
    bool loadFamilies(ComponentReader &reader, const QByteArray &condition,
                      const SqlValues &values);
    /// Both.
    bool loadMatching(ComponentReader &reader, const QByteArray &condition,
                      const SqlValues &values);
    /// Every series and exception.
    bool loadRecurring(ComponentReader &reader);
    /// All rows that @p condition holds for; the caller sees to it that families are whole.
    bool loadRows(ComponentReader &reader, const QByteArray &condition,
                  const SqlValues &values = {});

    void take(const ComponentRow &row);

    /// How often the database was asked, for tests.
    int reads() const { return m_reads; }
    void countRead() { ++m_reads; }

private:
    ExtendedCalendar::Ptr m_calendar;
    ChangeRecord &m_changes;
    std::function<void()> m_learnNotebooks;
    int m_reads = 0;
};
} // namespace mKCal

#endif
