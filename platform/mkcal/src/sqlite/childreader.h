// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_CHILDREADER_H
#define MKCAL_CHILDREADER_H

#include "sqlite/recurrencereader.h"

#include <kcalcompat/kcalcore.h>

namespace mKCal
{
/// Reads what an incidence has many of and puts it into the incidence.
class ChildReader
{
public:
    ChildReader(Connection &connection, DateTimeReader &dateTimes);

    /// @param flags which child tables hold rows of @p comp; the others are not asked.
    /// Whether the database answered.
    bool read(qint64 comp, int flags, KCalCore::Incidence *incidence);
    int faults() const { return m_faults + m_recurrence.faults(); }

private:
    struct Parts;

    bool readAlarms(qint64 comp, KCalCore::Incidence *incidence, Parts *parts);
    void readAlarmAction(KCalCore::Alarm *alarm);
    bool readAttendees(qint64 comp, Parts *parts);
    bool readAttachments(qint64 comp, KCalCore::Incidence *incidence);
    bool readConferences(qint64 comp, Parts *parts);
    bool readProps(qint64 comp, KCalCore::Incidence *incidence, Parts *parts);
    void readComponentProp(KCalCore::Incidence *incidence, Parts *parts);
    void readAlarmProp(Parts *parts);
    void readCustom(KCalCore::CustomProperties *properties);
    int enumeration(const Statement &statement, int column, int most);

    DateTimeReader &m_dateTimes;
    RecurrenceReader m_recurrence;
    Statement m_alarms;
    Statement m_attendees;
    Statement m_attachments;
    Statement m_conferences;
    Statement m_props;
    int m_faults = 0;
};
} // namespace mKCal

#endif
