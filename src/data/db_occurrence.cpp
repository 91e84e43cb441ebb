// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/db_instance.h>

namespace
{
/// All-day dates are the same everywhere, so they are not converted.
QDateTime toLocal(const KCalCore::Incidence &incidence, const QDateTime &time)
{
    if (!time.isValid())
        return {};
    return incidence.allDay() ? time.date().startOfDay() : time.toLocalTime();
}

qint64 durationSeconds(const KCalCore::Incidence &incidence)
{
    const QDateTime end = incidence.dateTime(KCalCore::IncidenceBase::RoleEnd);
    const QDateTime start = incidence.dtStart();
    if (!start.isValid() || !end.isValid())
        return 0;
    return end.toSecsSinceEpoch() - start.toSecsSinceEpoch();
}
} // namespace

QDateTime DbInstance::incidenceRecurrenceStart(QSharedPointer<KCalCore::Incidence> &incidence,
                                               const QDateTime &time)
{
    if (!incidence)
        return {};
    return toLocal(*incidence,
                   incidence->recurs() ? mKCal::previousOccurrence(incidence, time)
                                       : incidence->dtStart());
}

QDateTime DbInstance::incidenceEndTime(QSharedPointer<KCalCore::Incidence> &incidence,
                                       const QDateTime &time, bool endOfDay)
{
    const QDateTime start = incidenceRecurrenceStart(incidence, time);
    if (!start.isValid())
        return {};
    const QDateTime local = time.toLocalTime();
    QDateTime end = local.addSecs(durationSeconds(*incidence) - start.secsTo(local));
    if (end.date() == local.date())
        return end;
    const QDateTime midnight = end.date().startOfDay();
    return endOfDay ? midnight.addDays(1).addSecs(-1) : midnight;
}
