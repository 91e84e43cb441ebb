// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_REMINDER_H
#define MKCAL_REMINDER_H

#include <kcalcompat/kdatetime.h>

#include <QMetaType>
#include <QString>
#include <QVector>

namespace mKCal
{
/// One planned ringing of one alarm, for the process that shows reminders.
struct Reminder {
    qint64 id = 0; ///< the row, for marking it
    QString notebook;
    QString uid;
    KDateTime recurrenceId; ///< the occurrence that it rings for; null for one that does not recur
    int alarm = 0; ///< which of the incidence's alarms, from 0
    QDateTime time; ///< when to ring, UTC
    bool shown = false;
    bool dismissed = false;
};
using ReminderList = QVector<Reminder>;
} // namespace mKCal

Q_DECLARE_TYPEINFO(mKCal::Reminder, Q_MOVABLE_TYPE);

#endif
