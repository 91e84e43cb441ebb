// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_IMPORTSURVEY_H
#define MKCAL_IMPORTSURVEY_H

#include "componentsplitter.h"
#include "timezonetexts.h"

#include <QIODevice>
#include <QPair>
#include <QSet>

namespace mKCal
{
/// What must be known of all files before the first component can be read: the time zones, which
/// may be defined after they are used, and which of several components of one identity is taken.
class ImportSurvey
{
public:
    enum Standing {
        Taken,
        Repeated, ///< the same text stands elsewhere
        Outdone ///< another one is newer: higher SEQUENCE, later DTSTAMP, further on
    };

    /// Surveys the next file, the first being number 0.
    void addFile(QIODevice *device);

    /// @param calendar as in CalendarComponent.
    TimeZoneTexts &timeZones(int file, int calendar) { return m_timeZones[{file, calendar}]; }
    /// @param number of the component in its file, the first being 0.
    Standing standing(int file, int number) const
    {
        return m_standings.value({file, number}, Taken);
    }

private:
    struct Version {
        QPair<int, int> place; ///< file, number
        int sequence = 0;
        QByteArray stamp;
        uint textHash = 0;
    };

    void addIncidence(const CalendarComponent &component, QPair<int, int> place);

    int m_fileCount = 0;
    QHash<QPair<int, int>, TimeZoneTexts> m_timeZones;
    QSet<QByteArray> m_definitions; ///< each text once: many VCALENDARs bring the same
    QHash<QByteArray, Version> m_newest; ///< by UID and RECURRENCE-ID
    QHash<QPair<int, int>, Standing> m_standings;
};
} // namespace mKCal

#endif
