// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_REMINDERTABLE_H
#define MKCAL_REMINDERTABLE_H

#include <mkcal/reminder.h>

namespace mKCal
{
class Connection;

/// The planned reminders. One ringing is told by UID, recurrence identifier, alarm and time; it is
/// never planned twice, so what was shown stays shown. Every call answers false when the database
/// refused.
class ReminderTable
{
public:
    explicit ReminderTable(Connection &connection);

    /// Adds it unless it is already there; id, shown and dismissed are not looked at.
    bool add(const Reminder &reminder);
    /// Removes what was planned for @p uid and not shown yet.
    bool removePlanned(const QString &uid);
    /// The same for one exception alone (see recIdText()).
    bool removePlanned(const QString &uid, const QString &recId);
    /// Removes everything of @p uid, what was shown too.
    bool removeAll(const QString &uid);

    /// Those of [@p from, @p to), ordered by time, dismissed ones left out.
    bool read(const QDateTime &from, const QDateTime &to, ReminderList *reminders);
    bool setShown(qint64 id);
    bool setDismissed(qint64 id);
    /// Those that were shown for the incidence: for every occurrence when @p recId is empty.
    bool dismissShown(const QString &uid, const QString &recId);
    /// Removes those from before @p before that were shown or dismissed.
    bool purge(const QDateTime &before);

private:
    Connection &m_connection;
};
} // namespace mKCal

#endif
