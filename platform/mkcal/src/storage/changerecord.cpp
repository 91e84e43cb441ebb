// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/changerecord.h"

namespace mKCal
{
ChangeRecord::ChangeRecord(const ExtendedCalendar::Ptr &calendar) : m_calendar(calendar)
{
    m_calendar->registerObserver(this);
}

ChangeRecord::~ChangeRecord()
{
    m_calendar->unregisterObserver(this);
}

void ChangeRecord::forget(const IncidenceKey &key)
{
    m_written.remove(key);
    m_deleted.remove(key);
    m_unseen.remove(key);
}

void ChangeRecord::clear()
{
    m_written.clear();
    m_deleted.clear();
    m_unseen.clear();
}

void ChangeRecord::calendarIncidenceAdded(const KCalCore::Incidence::Ptr &incidence)
{
    if (m_pauses > 0)
        return;
    const IncidenceKey key = IncidenceKey::of(*incidence);
    // Deleted and added again, as a change of UID or recurrence identifier demands: a change.
    const bool wasStored = m_deleted.remove(key);
    const auto known = m_written.constFind(key);
    const bool isNew = known == m_written.constEnd() ? !wasStored : known->isNew;
    m_written.insert(key, {incidence, isNew});
}

void ChangeRecord::calendarIncidenceChanged(const KCalCore::Incidence::Ptr &incidence)
{
    if (m_pauses > 0)
        return;
    Written &written = m_written[IncidenceKey::of(*incidence)];
    written.incidence = incidence;
}

void ChangeRecord::calendarIncidenceAboutToBeDeleted(const KCalCore::Incidence::Ptr &incidence)
{
    if (m_pauses > 0)
        return;
    const IncidenceKey key = IncidenceKey::of(*incidence);
    // What was never stored needs no tombstone.
    if (!m_written.take(key).isNew)
        m_deleted.insert(key);
}

void ChangeRecord::calendarIncidenceAdditionCanceled(const KCalCore::Incidence::Ptr &incidence)
{
    if (m_pauses == 0)
        m_written.remove(IncidenceKey::of(*incidence));
}
} // namespace mKCal
