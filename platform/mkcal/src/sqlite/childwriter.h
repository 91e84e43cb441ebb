// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_CHILDWRITER_H
#define MKCAL_CHILDWRITER_H

#include "sqlite/recurrencewriter.h"
#include "sqlite/statement.h"

#include <kcalcompat/kcalcore.h>

#include <KCalendarCore/CustomProperties>

namespace mKCal
{
/// Writes what an incidence has many of: alarms, people, properties, attachments, conferences, and
/// its recurrence.
class ChildWriter
{
public:
    explicit ChildWriter(Connection &connection);

    /// Which child tables will hold rows of the incidence: ComponentFlag.
    static int flagsOf(const KCalCore::Incidence &incidence);

    bool write(qint64 comp, const KCalCore::Incidence &incidence, int flags);
    /// @param flags the tables that hold rows of it.
    bool remove(qint64 comp, int flags);

private:
    bool writeAlarms(qint64 comp, const KCalCore::Alarm::List &alarms);
    bool writeAttendees(qint64 comp, const KCalCore::Attendee::List &attendees);
    bool writeAttachments(qint64 comp, const KCalCore::Attachment::List &attachments);
    bool writeConferences(qint64 comp, const KCalCore::Conference::List &conferences);
    bool writeProps(qint64 comp, const KCalCore::Incidence &incidence);
    bool writeAlarmProps(qint64 comp, const KCalCore::Alarm &alarm, int ownerPos);
    bool writeCustom(qint64 comp, int owner, int ownerPos,
                     const KCalCore::CustomProperties &properties);
    bool writeList(qint64 comp, int kind, const QStringList &values);
    bool writeProp(qint64 comp, int owner, int ownerPos, int kind, const QString &name,
                   const QString &value, const QString &params = QString());

    Connection &m_connection;
    RecurrenceWriter m_recurrence;
    Statement m_alarm;
    Statement m_attendee;
    Statement m_attachment;
    Statement m_conference;
    Statement m_prop;
    int m_propPos = 0; ///< of the incidence that is being written
};
} // namespace mKCal

#endif
