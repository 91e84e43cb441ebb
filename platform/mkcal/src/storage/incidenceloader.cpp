// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/incidenceloader.h"

namespace mKCal
{
KCalCore::Incidence::Ptr findInCalendar(const ExtendedCalendar &calendar, const IncidenceKey &key)
{
    if (key.recId.isEmpty())
        return calendar.incidence(key.uid, KDateTime());
    return calendar.incidence(key.uid, KDateTime::fromString(key.recId));
}

KCalCore::Incidence::Ptr findInCalendar(const ExtendedCalendar &calendar,
                                        const KCalCore::Incidence &incidence)
{
    return calendar.incidence(incidence.uid(), KDateTime(incidence.recurrenceId()));
}

IncidenceLoader::IncidenceLoader(const ExtendedCalendar::Ptr &calendar, ChangeRecord &changes,
                                 std::function<void()> learnNotebooks)
    : m_calendar(calendar), m_changes(changes), m_learnNotebooks(std::move(learnNotebooks))
{
}

bool IncidenceLoader::loadSingle(ComponentReader &reader, const QByteArray &condition,
                                 const SqlValues &values)
{
    // The sign keeps SQLite from taking the index of spans, which tells little here.
    return loadRows(reader, "+span < 2 AND " + condition, values);
}

bool IncidenceLoader::loadFamilies(ComponentReader &reader, const QByteArray &condition,
                                   const SqlValues &values)
{
    return loadRows(reader,
                    "uid IN (SELECT uid FROM Components WHERE state = 0 AND span = 2 AND "
                        + condition + ')',
                    values);
}

bool IncidenceLoader::loadRecurring(ComponentReader &reader)
{
    countRead();
    const ChangeRecord::Pause pause(m_changes);
    QSet<QString> withExceptions;
    const auto sink = [this, &withExceptions](const ComponentRow &row) {
        if (row.incidence->hasRecurrenceId())
            withExceptions.insert(row.incidence->uid());
        take(row);
        return true;
    };
    if (!reader.read("state = 0 AND span = 2", {}, sink))
        return false;
    // The series of an exception may have ceased to recur.
    for (const QString &uid : qAsConst(withExceptions)) {
        if (!m_calendar->incidence(uid, KDateTime()) && !loadRows(reader, "uid = ?", {uid}))
            return false;
    }
    return true;
}

bool IncidenceLoader::loadMatching(ComponentReader &reader, const QByteArray &condition,
                                   const SqlValues &values)
{
    return loadSingle(reader, condition, values) && loadFamilies(reader, condition, values);
}

bool IncidenceLoader::loadRows(ComponentReader &reader, const QByteArray &condition,
                               const SqlValues &values)
{
    countRead();
    ChangeRecord::Pause pause(m_changes);
    return reader.read("state = 0 AND " + condition, values, [this](const ComponentRow &row) {
        take(row);
        return true;
    });
}

void IncidenceLoader::take(const ComponentRow &row)
{
    if (m_changes.isDeletedWithFamily(*row.incidence)
        || findInCalendar(*m_calendar, *row.incidence))
        return;
    if (!m_calendar->hasValidNotebook(row.notebook))
        m_learnNotebooks();
    m_calendar->addIncidence(row.incidence, row.notebook);
}
} // namespace mKCal
