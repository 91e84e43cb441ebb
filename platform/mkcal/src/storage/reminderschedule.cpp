// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/reminderschedule.h"

#include "calendar/reminderplanner.h"
#include "sqlite/connection.h"
#include "storage/tables.h"

#include <kcalcompat/clock.h>

#include <algorithm>

namespace mKCal
{
namespace
{
bool hasAlarms(const KCalCore::Incidence::List &family)
{
    return std::any_of(family.begin(), family.end(), [](const KCalCore::Incidence::Ptr &member) {
        return member->hasEnabledAlarms();
    });
}

bool isSeries(const KCalCore::Incidence::List &family)
{
    return family.size() > 1 || (!family.isEmpty() && family.first()->recurs());
}
} // namespace

ReminderSchedule::ReminderSchedule(Connection &connection, Tables &tables, const QTimeZone &zone)
    : m_connection(connection), m_tables(tables), m_zone(zone), m_now(KCalCompat::Clock::now())
{
}

bool ReminderSchedule::plan(const QString &uid, const KCalCore::Incidence::List &family,
                            const QString &notebook)
{
    return m_tables.reminders.removePlanned(uid) && add(family, notebook);
}

bool ReminderSchedule::planStored(const QString &uid)
{
    KCalCore::Incidence::List family;
    QString notebook;
    return readFamily(uid, &family, &notebook) && plan(uid, family, notebook);
}

bool ReminderSchedule::planGiven(const QString &uid, const KCalCore::Incidence::List &incidences)
{
    const bool isSingle = incidences.size() == 1 && !incidences.first()->recurs()
        && !incidences.first()->hasRecurrenceId();
    if (!isSingle)
        return planStored(uid);
    if (!hasAlarms(incidences))
        return plan(uid, {}, QString());
    QString notebook;
    if (!m_tables.writer.notebookOf(uid, &notebook))
        return false;
    // Nothing rings for what is not stored, or no longer.
    return plan(uid, notebook.isEmpty() ? KCalCore::Incidence::List() : incidences, notebook);
}

bool ReminderSchedule::add(const KCalCore::Incidence::List &family, const QString &notebook)
{
    if (!hasAlarms(family))
        return true;
    const QDateTime end = isSeries(family) ? m_now.addDays(horizonDays) : m_now.addYears(100);
    ReminderList reminders = planReminders(family, m_zone, m_now, end);
    for (Reminder &reminder : reminders) {
        reminder.notebook = notebook;
        if (!m_tables.reminders.add(reminder))
            return false;
    }
    return true;
}

bool ReminderSchedule::readFamily(const QString &uid, KCalCore::Incidence::List *family,
                                  QString *notebook)
{
    return m_tables.reader.read("state = 0 AND uid = ? ORDER BY recId", {uid},
                                [&](const ComponentRow &row) {
                                    family->append(row.incidence);
                                    *notebook = row.notebook;
                                    return true;
                                });
}

bool ReminderSchedule::isHorizonNear()
{
    Statement &query =
        m_connection.statement("SELECT value FROM Meta WHERE key = 'remindersUntil'");
    const qint64 until = query.next() ? query.integer(0) : 0;
    query.reset();
    return until < m_now.addDays(horizonDays - 1).toSecsSinceEpoch();
}

bool ReminderSchedule::extendHorizon()
{
    QStringList uids;
    Statement query(m_connection,
                    "SELECT DISTINCT uid FROM Components AS c WHERE state = 0 AND span = 2"
                    " AND until > ?1 AND EXISTS (SELECT 1 FROM Alarm WHERE comp = c.id"
                    " AND enabled = 1)");
    query.bind(1, m_now.toSecsSinceEpoch() - 86400);
    while (query.next())
        uids.append(query.text(0));
    if (query.failed())
        return false;
    for (const QString &uid : qAsConst(uids)) {
        KCalCore::Incidence::List family;
        QString notebook;
        // What is planned already stays; the rest joins it.
        if (!readFamily(uid, &family, &notebook) || !add(family, notebook))
            return false;
    }
    Statement &note =
        m_connection.statement("INSERT INTO Meta(key, value) VALUES ('remindersUntil', ?1)"
                               " ON CONFLICT(key) DO UPDATE SET value = excluded.value");
    note.bind(1, m_now.addDays(horizonDays).toSecsSinceEpoch());
    // What rang more than a month ago is of no use to anybody.
    return note.run() && m_tables.reminders.purge(m_now.addDays(-30));
}
} // namespace mKCal
