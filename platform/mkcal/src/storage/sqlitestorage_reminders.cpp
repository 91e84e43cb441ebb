// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/reminderschedule.h"
#include "storage/sqlitestorage_p.h"

#include <QMap>
#include <QSet>

namespace mKCal
{
bool SqliteStoragePrivate::planChanged()
{
    QSet<QString> uids;
    for (auto it = changes.written().begin(); it != changes.written().end(); ++it)
        uids.insert(it.key().uid);
    for (const IncidenceKey &key : changes.deleted())
        uids.insert(key.uid);
    ReminderSchedule schedule(connection, *tables, calendar->timeZone());
    for (const QString &uid : qAsConst(uids)) {
        // A series is in the calendar with all its exceptions, or not at all.
        const KCalCore::Incidence::Ptr series = findInCalendar(*calendar, {uid, QString()});
        KCalCore::Incidence::List family;
        if (series)
            family = calendar->instances(series);
        if (series)
            family.prepend(series);
        const bool planned =
            series ? schedule.plan(uid, family, calendar->notebook(uid)) : schedule.planStored(uid);
        if (!planned)
            return false;
    }
    return true;
}

void SqliteStoragePrivate::extendHorizon()
{
    ReminderSchedule schedule(connection, *tables, calendar->timeZone());
    // Who opens the calendar to read does not wait for another's writing: the next save makes up
    // for it, or the next look at what the other wrote.
    horizonDue = false;
    horizonDue = schedule.isHorizonNear()
        && !write(
                     Counter::Stays, [&schedule](qint64) { return schedule.extendHorizon(); },
                     Connection::Lock::Tried);
}

bool SqliteStorage::resetAlarms(const KCalCore::Incidence::List &incidences)
{
    StorageCall call(*d);
    QMap<QString, KCalCore::Incidence::List> families;
    for (const KCalCore::Incidence::Ptr &incidence : incidences) {
        if (incidence)
            families[incidence->uid()].append(incidence);
    }
    return call.ended(d->write(SqliteStoragePrivate::Counter::Stays, [&](qint64) {
        ReminderSchedule schedule(d->connection, *d->tables, d->calendar->timeZone());
        for (auto family = families.cbegin(); family != families.cend(); ++family) {
            if (!schedule.planGiven(family.key(), family.value()))
                return false;
        }
        return true;
    }));
}

ReminderList SqliteStorage::reminders(const QDateTime &from, const QDateTime &to)
{
    StorageCall call(*d);
    ReminderList reminders;
    if (!call.ended(d->isOpen() && d->tables->reminders.read(from, to, &reminders)))
        return {};
    return reminders;
}

bool SqliteStorage::setReminderShown(qint64 id)
{
    StorageCall call(*d);
    return call.ended(d->write(SqliteStoragePrivate::Counter::Stays,
                               [&](qint64) { return d->tables->reminders.setShown(id); }));
}

bool SqliteStorage::setReminderDismissed(qint64 id)
{
    StorageCall call(*d);
    return call.ended(d->write(SqliteStoragePrivate::Counter::Stays,
                               [&](qint64) { return d->tables->reminders.setDismissed(id); }));
}

bool SqliteStorage::notifyOpened(const KCalCore::Incidence::Ptr &incidence)
{
    StorageCall call(*d);
    if (!incidence)
        return false;
    return call.ended(d->write(SqliteStoragePrivate::Counter::Stays, [&](qint64) {
        return d->tables->reminders.dismissShown(incidence->uid(), recIdText(*incidence));
    }));
}
} // namespace mKCal
