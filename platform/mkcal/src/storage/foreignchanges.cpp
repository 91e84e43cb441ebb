// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/foreignchanges.h"

#include "sqlite/connection.h"
#include "storage/incidenceloader.h"

namespace mKCal
{
namespace
{
qint64 lastPurged(Connection &connection)
{
    Statement &query = connection.statement("SELECT value FROM Meta WHERE key = 'purged'");
    const qint64 change = query.next() ? query.integer(0) : 0;
    query.reset();
    return change;
}
} // namespace

bool notePurged(Connection &connection, qint64 upTo)
{
    Statement &write =
        connection.statement("INSERT INTO Meta(key, value) VALUES ('purged', ?1)"
                             " ON CONFLICT(key) DO UPDATE SET value = max(value, excluded.value)");
    write.bind(1, upTo);
    return write.run();
}

ForeignChanges::ForeignChanges(Connection &connection, const ExtendedCalendar::Ptr &calendar,
                               ChangeRecord &changes, const LoadRecord &loaded,
                               IncidenceLoader &loader)
    : m_connection(connection), m_calendar(calendar), m_changes(changes), m_loaded(loaded),
      m_loader(loader)
{
}

bool ForeignChanges::apply(Tables &tables, qint64 since)
{
    QVector<Changed> changed;
    if (!read(since, &changed))
        return false;
    ChangeRecord::Pause pause(m_changes);
    QVector<qint64> singles;
    QSet<QString> families;
    for (const Changed &one : qAsConst(changed)) {
        if (m_changes.contains(one.key)) {
            m_changes.addUnseen(one.key);
        } else if (one.deleted) {
            remove(one.key);
        } else if (concernsUs(one)) {
            if (one.keys.span == ComponentKeys::Recurring)
                families.insert(one.key.uid);
            else
                singles.append(one.id);
        }
    }
    const auto take = [&](const ComponentRow &row) { return takeRow(row, since); };
    for (qint64 id : qAsConst(singles)) {
        if (!tables.reader.read("state = 0 AND id = ?", {id}, take))
            return false;
    }
    for (const QString &uid : qAsConst(families)) {
        if (!tables.reader.read("state = 0 AND uid = ?", {uid}, take))
            return false;
    }
    return removePurged(tables, since);
}

bool ForeignChanges::read(qint64 since, QVector<Changed> *changed)
{
    // A tombstone beside a live row is of an earlier life of that incidence.
    Statement &query = m_connection.statement(
        "SELECT id, uid, recId, state, notebook, type, span, start, end, until, completed"
        " FROM Components AS c WHERE change > ?1 AND (state = 0 OR state = 1 AND NOT EXISTS"
        " (SELECT 1 FROM Components AS l WHERE l.state = 0 AND l.uid = c.uid"
        " AND l.recId = c.recId))");
    query.bind(1, since);
    while (query.next()) {
        Changed one;
        one.id = query.integer(0);
        one.key = {query.text(1), query.text(2)};
        one.deleted = query.integer(3) != int(ComponentState::Live);
        one.notebook = query.text(4);
        one.keys.type = query.smallInteger(5);
        one.keys.span = query.smallInteger(6);
        one.keys.hasStart = !query.isNull(7);
        one.keys.start = query.integer(7);
        one.keys.end = query.integer(8);
        one.keys.until = query.integer(9);
        one.keys.completed = query.integer(10);
        changed->append(one);
    }
    return !query.failed();
}

bool ForeignChanges::concernsUs(const Changed &changed) const
{
    if (m_loaded.covers(changed.keys, changed.notebook) || findInCalendar(*m_calendar, changed.key))
        return true;
    // An exception of a series that is here.
    return !changed.key.recId.isEmpty()
        && findInCalendar(*m_calendar, {changed.key.uid, QString()});
}

void ForeignChanges::remove(const IncidenceKey &key)
{
    const KCalCore::Incidence::Ptr incidence = findInCalendar(*m_calendar, key);
    if (!incidence)
        return;
    // With a series its exceptions go; those with unsaved changes stay.
    KCalCore::Incidence::List edited;
    const QString notebook = m_calendar->notebook(incidence);
    const KCalCore::Incidence::List exceptions = m_calendar->instances(incidence);
    for (const KCalCore::Incidence::Ptr &exception : exceptions) {
        if (m_changes.contains(IncidenceKey::of(*exception)))
            edited.append(exception);
    }
    m_calendar->deleteIncidence(incidence);
    for (const KCalCore::Incidence::Ptr &exception : qAsConst(edited))
        m_calendar->addIncidence(exception, notebook);
}

bool ForeignChanges::takeRow(const ComponentRow &row, qint64 since)
{
    const IncidenceKey key = IncidenceKey::of(*row.incidence);
    const KCalCore::Incidence::Ptr present = findInCalendar(*m_calendar, key);
    if (present && present->type() != row.incidence->type() && !m_changes.contains(key)) {
        m_calendar->deleteIncidence(present);
    } else if (present) {
        if (row.change <= since || m_changes.contains(key))
            return true;
        KCalCore::IncidenceBase &content = *present;
        content = *row.incidence;
        present->resetDirtyFields();
        if (m_calendar->notebook(present) != row.notebook)
            m_calendar->setNotebook(present, row.notebook);
        return true;
    }
    m_loader.take(row);
    return true;
}

bool ForeignChanges::removePurged(Tables &tables, qint64 since)
{
    if (lastPurged(m_connection) <= since)
        return true;
    // Somebody deleted and purged before this process looked: only what is still stored stays.
    const KCalCore::Incidence::List present = m_calendar->rawIncidences();
    for (const KCalCore::Incidence::Ptr &incidence : present) {
        const IncidenceKey key = IncidenceKey::of(*incidence);
        StoredComponent stored;
        if (!tables.writer.find(key.uid, key.recId, &stored))
            return false;
        if (stored.id == 0 && !m_changes.contains(key))
            remove(key);
    }
    return true;
}
} // namespace mKCal
