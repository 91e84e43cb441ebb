// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/remindertable.h"

#include "sqlite/componentkeys.h"
#include "sqlite/connection.h"
#include "sqlite/datetimecolumns.h"
#include "sqlite/statement.h"

namespace mKCal
{
namespace
{
QString textOrEmpty(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

KDateTime recurrenceId(const QDateTime &dateTime, bool dateOnly)
{
    if (!dateTime.isValid())
        return {};
    KDateTime result(dateTime);
    result.setDateOnly(dateOnly);
    return result;
}
} // namespace

ReminderTable::ReminderTable(Connection &connection) : m_connection(connection) { }

bool ReminderTable::add(const Reminder &reminder)
{
    Statement &statement = m_connection.statement(
        QByteArrayLiteral("INSERT INTO Reminders(notebook, uid, recId, recIdWall, recIdTz,"
                          " recIdDateOnly, alarm, time) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"
                          " ON CONFLICT (uid, recId, alarm, time)"
                          " DO UPDATE SET notebook = excluded.notebook"));
    statement.bind(1, textOrEmpty(reminder.notebook));
    statement.bind(2, reminder.uid);
    statement.bind(3, recIdText(reminder.recurrenceId));
    DateTimeColumns::bind(statement, 4, reminder.recurrenceId.dateTime());
    statement.bind(6, reminder.recurrenceId.isDateOnly());
    statement.bind(7, reminder.alarm);
    statement.bind(8, reminder.time.toSecsSinceEpoch());
    return statement.run();
}

bool ReminderTable::removePlanned(const QString &uid)
{
    Statement &statement = m_connection.statement(
        QByteArrayLiteral("DELETE FROM Reminders WHERE uid = ? AND shown = 0 AND dismissed = 0"));
    statement.bind(1, uid);
    return statement.run();
}

bool ReminderTable::removePlanned(const QString &uid, const QString &recId)
{
    Statement &statement = m_connection.statement(
        QByteArrayLiteral("DELETE FROM Reminders"
                          " WHERE uid = ? AND recId = ? AND shown = 0 AND dismissed = 0"));
    statement.bind(1, uid);
    statement.bind(2, textOrEmpty(recId));
    return statement.run();
}

bool ReminderTable::removeAll(const QString &uid)
{
    Statement &statement =
        m_connection.statement(QByteArrayLiteral("DELETE FROM Reminders WHERE uid = ?"));
    statement.bind(1, uid);
    return statement.run();
}

bool ReminderTable::read(const QDateTime &from, const QDateTime &to, ReminderList *reminders)
{
    reminders->clear();
    Statement &rows = m_connection.statement(
        QByteArrayLiteral("SELECT id, notebook, uid, recIdWall, recIdTz, recIdDateOnly, alarm,"
                          " time, shown FROM Reminders"
                          " WHERE time >= ? AND time < ? AND dismissed = 0 ORDER BY time, id"));
    rows.bind(1, from.toSecsSinceEpoch());
    rows.bind(2, to.toSecsSinceEpoch());
    DateTimeReader dateTimes;
    while (rows.next()) {
        Reminder reminder;
        reminder.id = rows.integer(0);
        reminder.notebook = rows.text(1);
        reminder.uid = rows.text(2);
        reminder.recurrenceId = recurrenceId(dateTimes.read(rows, 3), rows.integer(5) != 0);
        reminder.alarm = rows.smallInteger(6);
        reminder.time = QDateTime::fromSecsSinceEpoch(rows.integer(7), Qt::UTC);
        reminder.shown = rows.integer(8) != 0;
        reminders->append(reminder);
    }
    return !rows.failed();
}

bool ReminderTable::setShown(qint64 id)
{
    Statement &statement =
        m_connection.statement(QByteArrayLiteral("UPDATE Reminders SET shown = 1 WHERE id = ?"));
    statement.bind(1, id);
    return statement.run();
}

bool ReminderTable::setDismissed(qint64 id)
{
    Statement &statement = m_connection.statement(
        QByteArrayLiteral("UPDATE Reminders SET dismissed = 1 WHERE id = ?"));
    statement.bind(1, id);
    return statement.run();
}

bool ReminderTable::dismissShown(const QString &uid, const QString &recId)
{
    Statement &statement = m_connection.statement(
        QByteArrayLiteral("UPDATE Reminders SET dismissed = 1"
                          " WHERE uid = ?1 AND (?2 = '' OR recId = ?2) AND shown = 1"));
    statement.bind(1, uid);
    statement.bind(2, textOrEmpty(recId));
    return statement.run();
}

bool ReminderTable::purge(const QDateTime &before)
{
    Statement &statement = m_connection.statement(
        QByteArrayLiteral("DELETE FROM Reminders"
                          " WHERE time < ? AND (shown = 1 OR dismissed = 1)"));
    statement.bind(1, before.toSecsSinceEpoch());
    return statement.run();
}
} // namespace mKCal
