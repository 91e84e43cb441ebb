// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_REMINDERSCHEDULE_H
#define MKCAL_REMINDERSCHEDULE_H

#include <kcalcompat/kcalcore.h>

#include <QDateTime>
#include <QTimeZone>

namespace mKCal
{
class Connection;
struct Tables;

/// Keeps the planned reminders in step with the stored incidences, in the transaction that changes
/// them. Non-recurring incidences are planned once and for all, series as far as the horizon.
class ReminderSchedule
{
public:
    static constexpr int horizonDays = 60;

    /// @param zone where floating alarms ring.
    ReminderSchedule(Connection &connection, Tables &tables, const QTimeZone &zone);

    /// Plans anew all that one UID rings: @p family is the series with its exceptions, or the one
    /// incidence; empty when nothing is left of it.
    bool plan(const QString &uid, const KCalCore::Incidence::List &family, const QString &notebook);
    /// The same from what is stored.
    bool planStored(const QString &uid);
    /// The same for incidences that somebody has at hand: read are only the families that may have
    /// more members.
    bool planGiven(const QString &uid, const KCalCore::Incidence::List &incidences);
    /// Plans the stored series up to the horizon, unless that was done today.
    bool extendHorizon();
    /// Whether extendHorizon() has something to do.
    bool isHorizonNear();

private:
    bool add(const KCalCore::Incidence::List &family, const QString &notebook);
    bool readFamily(const QString &uid, KCalCore::Incidence::List *family, QString *notebook);

    Connection &m_connection;
    Tables &m_tables;
    QTimeZone m_zone;
    QDateTime m_now;
};
} // namespace mKCal

#endif
