// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_CHANGERECORD_H
#define MKCAL_CHANGERECORD_H

#include "storage/incidencekey.h"

#include <mkcal/extendedcalendar.h>

#include <QHash>
#include <QSet>

namespace mKCal
{
/// Keeps what was added, changed and deleted in the calendar since the last save. Watches the
/// calendar by itself; what a load or another process brings in is kept out by a Pause.
class ChangeRecord : public KCalCore::Calendar::CalendarObserver
{
public:
    /// While one lives, changes of the calendar are not recorded.
    class Pause
    {
    public:
        explicit Pause(ChangeRecord &record) : m_record(record) { ++m_record.m_pauses; }
        ~Pause() { --m_record.m_pauses; }
        Pause(const Pause &) = delete;
        Pause &operator=(const Pause &) = delete;

    private:
        ChangeRecord &m_record;
    };

    explicit ChangeRecord(const ExtendedCalendar::Ptr &calendar);
    ~ChangeRecord() override;

    bool isEmpty() const { return m_written.isEmpty() && m_deleted.isEmpty(); }
    bool contains(const IncidenceKey &key) const
    {
        return m_written.contains(key) || m_deleted.contains(key);
    }
    /// Whether it, or the series that it is an exception of, is to be deleted.
    bool isDeletedWithFamily(const KCalCore::Incidence &incidence) const
    {
        return !m_deleted.isEmpty()
            && (m_deleted.contains(IncidenceKey::of(incidence))
                || m_deleted.contains({incidence.uid(), QString()}));
    }

    struct Written {
        KCalCore::Incidence::Ptr incidence;
        bool isNew = false; ///< added, not changed
    };
    /// To be written: added or changed.
    const QHash<IncidenceKey, Written> &written() const { return m_written; }
    /// To be deleted from the database.
    const QSet<IncidenceKey> &deleted() const { return m_deleted; }

    /// Another process wrote a version of @p key that the calendar did not take in, because of an
    /// unsaved change here.
    void addUnseen(const IncidenceKey &key) { m_unseen.insert(key); }
    bool isUnseen(const IncidenceKey &key) const { return m_unseen.contains(key); }

    /// Forgets the changes of one incidence, for example because its notebook is gone.
    void forget(const IncidenceKey &key);
    void clear();

    void calendarIncidenceAdded(const KCalCore::Incidence::Ptr &incidence) override;
    void calendarIncidenceChanged(const KCalCore::Incidence::Ptr &incidence) override;
    void calendarIncidenceAboutToBeDeleted(const KCalCore::Incidence::Ptr &incidence) override;
    void calendarIncidenceAdditionCanceled(const KCalCore::Incidence::Ptr &incidence) override;

private:
    ExtendedCalendar::Ptr m_calendar;
    QHash<IncidenceKey, Written> m_written;
    QSet<IncidenceKey> m_deleted;
    QSet<IncidenceKey> m_unseen;
    int m_pauses = 0;
};
} // namespace mKCal

#endif
