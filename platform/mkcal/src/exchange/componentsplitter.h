// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_COMPONENTSPLITTER_H
#define MKCAL_COMPONENTSPLITTER_H

#include "calendartext.h"

#include <QList>

namespace mKCal
{
/// The text of one component of an iCalendar file, and what identifies it.
struct CalendarComponent {
    enum Fault {
        NoFault,
        CutOff, ///< the file, its VCALENDAR or the next component came before its END
        TooLarge,
        TooDeep
    };

    QByteArray name; ///< in upper case: "VEVENT"
    QByteArray text; ///< from BEGIN to END, unfolded, lines ended by CRLF, UTF-8
    int line = 0; ///< where its BEGIN stands, from 1
    int calendar = 0; ///< the how-manieth VCALENDAR of the file holds it, from 1; 0: none does
    bool isVersion1 = false; ///< that VCALENDAR is of the older vCalendar 1.0
    bool wasLatin1 = false; ///< not valid UTF-8, and so taken for Latin-1
    Fault fault = NoFault;
    bool hasCarriedProperties = false; ///< some that TextCarrier has to look at

    // Values of its own properties (not its alarms'), as they stand in the text.
    QByteArray uid;
    QByteArray recurrenceId;
    QByteArray sequence;
    QByteArray stamp;
    QByteArray created;
    QByteArray lastModified;
    QByteArray timeZoneId;
    QByteArray rule; ///< the first one

    /// A VEVENT, VTODO or VJOURNAL.
    bool isIncidence() const;
    /// Its UID, or one made from its content, the same each time; times of writing and revision do
    /// not count as content.
    QByteArray stableUid() const;
};

/// Finds the components in iCalendar text by their BEGIN and END, so that a damaged one costs no
/// other: what stands outside a VCALENDAR, several VCALENDARs, missing and stray ENDs are all
/// taken.
class ComponentSplitter
{
public:
    static constexpr int maximumSize = 32 * 1024 * 1024;
    static constexpr int maximumDepth = 16;

    /// @param text outlives this.
    explicit ComponentSplitter(CalendarText *text);

    /// The next component below a VCALENDAR (or beside all of them), VTIMEZONE and unknown ones
    /// too. False at the end.
    bool next(CalendarComponent *component);
    /// Whether any BEGIN was met.
    bool foundAnything() const { return m_calendars > 0 || m_foundComponent; }

private:
    bool readContentLine();
    bool fetch();
    bool begin(const QByteArray &name);
    bool end(const QByteArray &name);
    void append(const QByteArray &line);
    void noteProperty();
    bool finish(CalendarComponent::Fault fault = CalendarComponent::NoFault);

    CalendarText *m_text;
    QByteArray m_line;
    int m_lineNumber = 0;
    bool m_lineIsHeld = false; ///< m_line is to be looked at once more
    QByteArray m_ahead;
    int m_aheadNumber = 0;
    bool m_hasAhead = false;

    int m_calendars = 0;
    int m_calendar = 0;
    bool m_isVersion1 = false;
    bool m_foundComponent = false;
    CalendarComponent *m_component = nullptr;
    QList<QByteArray> m_open; ///< names of m_component and of what is open in it
    int m_openTooDeep = 0;
};
} // namespace mKCal

#endif
