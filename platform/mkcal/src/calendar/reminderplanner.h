// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_REMINDERPLANNER_H
#define MKCAL_REMINDERPLANNER_H

#include <kcalcompat/kcalcore.h>
#include <mkcal/reminder.h>

namespace mKCal
{
/// When the enabled alarms of an incidence ring: for each alarm and occurrence whose time lies in
/// [@p from, @p to), ordered by time. Only uid, recurrenceId, alarm and time are filled in.
///
/// Offsets count from the start or the end of each occurrence (RFC 5545, 3.8.6.3); those of a to-do
/// from its start and due date, from the one that it has when it has but one. An alarm with a time
/// of its own rings once, whatever recurs. What is completed or cancelled never rings, nor do the
/// occurrences of a to-do that are already done. Planned is the first ringing alone: to repeat and
/// to snooze is for the process that shows reminders.
///
/// At most 2000 for each incidence: a rule that recurs every second would fill the device.
/// @param family the series and its exceptions, or the one incidence; all of one UID.
/// @param zone where all-day and floating incidences take place.
ReminderList planReminders(const KCalCore::Incidence::List &family, const QTimeZone &zone,
                           const QDateTime &from, const QDateTime &to);
} // namespace mKCal

#endif
