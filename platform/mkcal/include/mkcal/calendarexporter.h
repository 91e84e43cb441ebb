// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_CALENDAREXPORTER_H
#define MKCAL_CALENDAREXPORTER_H

#include <kcalcompat/kcalcore.h>

#include <QIODevice>

#include <functional>

namespace mKCal
{
/// Writes incidences as one iCalendar file (RFC 5545) with the time zones that they use. The live
/// incidences are not touched: clones are written.
class CalendarExporter
{
public:
    /// @param done, total incidences.
    using Progress = std::function<void(qint64 done, qint64 total)>;
    void setProgress(const Progress &progress) { m_progress = progress; }

    /// False when the device refused, or when one of them has no form in iCalendar; nothing is
    /// written in the latter case. errorMessage() says why.
    bool write(const KCalCore::Incidence::List &incidences, QIODevice *device);
    QString errorMessage() const { return m_errorMessage; }

private:
    Progress m_progress;
    QString m_errorMessage;
};

// The one place where all-day ends change between our exclusive ones and the inclusive ones that
// the iCalendar reader and writer work with. RFC 5545 section 3.6.1: DTEND is exclusive.
/// A clone as the iCalendar writer wants it.
KCalCore::Incidence::Ptr toICalendarConvention(const KCalCore::Incidence::Ptr &incidence);
/// Changes @p incidence, just read from iCalendar, to our convention.
void fromICalendarConvention(const KCalCore::Incidence::Ptr &incidence);
} // namespace mKCal

#endif
