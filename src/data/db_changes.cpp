// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "db_instance_p.h"

#include <daskel/expandedincidencescache.h>
#include <kcalcompat/ksystemtimezones.h>

void DbInstancePrivate::reloadForUser()
{
    switch (user) {
    case DbInstance::CalendarUser:
        preloadCalendar();
        return;
    case DbInstance::NotesUser:
        preloadJournals();
        return;
    case DbInstance::NoUser:
        qWarning("No loading of caches..");
        return;
    }
    qWarning("UserType in DbInstance not set. Unkown behavior on the caches");
}

void DbInstancePrivate::resetAllAlarms()
{
    KCalCore::Incidence::List incidences;
    storage->allIncidences(&incidences, QString());
    storage->resetAlarms(incidences);
}

void DbInstance::storageModified(mKCal::ExtendedStorage *storage, const QString &info)
{
    Q_UNUSED(storage)
    Q_UNUSED(info)
    if (!d)
        return;
    d->waitForPreload();
    if (!d->ownSavePending) {
        d->dropLoadRecord();
        ExpandedIncidencesCache::instance()->clearExpandedIncidences();
        d->reloadForUser();
    } else if (d->user == CalendarUser) {
        ExpandedIncidencesCache::instance()->reloadCache();
    }
    d->ownSavePending = false;
    Q_EMIT dataUpdated();
}

void DbInstance::storageProgress(mKCal::ExtendedStorage *storage, const QString &info)
{
    Q_UNUSED(storage)
    Q_UNUSED(info)
}

void DbInstance::storageFinished(mKCal::ExtendedStorage *storage, bool error, const QString &info)
{
    Q_UNUSED(storage)
    Q_UNUSED(error)
    Q_UNUSED(info)
}

void DbInstance::systemModified()
{
    if (!d)
        return;
    d->waitForPreload();
    KSystemTimeZones zones;
    zones.configChanged();
    const KDateTime now = KDateTime::currentLocalDateTime();
    d->calendar->setTimeZoneId(now.timeZone().id());
    if (d->user == CalendarUser)
        ExpandedIncidencesCache::instance()->reloadCache();
    Q_EMIT dataUpdated();
}

void DbInstance::timeSettingsChanged(const Ostra::Timed::WallClock::Info &info, bool time_changed)
{
    Q_UNUSED(time_changed)
    systemModified();
    if (d && d->user == CalendarUser && info.clockDiff() > 0)
        d->resetAllAlarms();
}

void DbInstance::recalculateAlarms()
{
    if (d)
        d->resetAllAlarms();
}
