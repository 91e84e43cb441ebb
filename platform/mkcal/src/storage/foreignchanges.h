// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_FOREIGNCHANGES_H
#define MKCAL_FOREIGNCHANGES_H

#include "storage/changerecord.h"
#include "storage/loadrecord.h"
#include "storage/tables.h"

#include <mkcal/extendedcalendar.h>

#include <QSet>
#include <QVector>

namespace mKCal
{
class Connection;
class IncidenceLoader;

/// Brings what somebody else wrote into the calendar, in place: an incidence that is there keeps
/// its object and takes on the new content, so that whoever holds it goes on with the right one.
///
/// Only what is in the calendar, or would be had the same loads run later, is read. An incidence
/// with unsaved changes stays as it is and is marked, so that the save keeps the version that it
/// overwrites.
class ForeignChanges
{
public:
    ForeignChanges(Connection &connection, const ExtendedCalendar::Ptr &calendar,
                   ChangeRecord &changes, const LoadRecord &loaded, IncidenceLoader &loader);

    /// Takes in all rows and tombstones written after the change @p since. False on a database
    /// error; to be repeated with the same @p since then.
    bool apply(Tables &tables, qint64 since);

private:
    struct Changed {
        qint64 id = 0;
        IncidenceKey key;
        bool deleted = false;
        QString notebook;
        ComponentKeys keys;
    };
    bool read(qint64 since, QVector<Changed> *changed);
    bool concernsUs(const Changed &changed) const;
    void remove(const IncidenceKey &key);
    bool takeRow(const ComponentRow &row, qint64 since);
    bool removePurged(Tables &tables, qint64 since);

    Connection &m_connection;
    ExtendedCalendar::Ptr m_calendar;
    ChangeRecord &m_changes;
    const LoadRecord &m_loaded;
    IncidenceLoader &m_loader;
};

/// Remembers in the database that tombstones up to the change @p upTo are gone, for processes that
/// have not seen them.
bool notePurged(Connection &connection, qint64 upTo);
} // namespace mKCal

#endif
