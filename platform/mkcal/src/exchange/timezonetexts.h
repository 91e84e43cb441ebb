// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_TIMEZONETEXTS_H
#define MKCAL_TIMEZONETEXTS_H

#include <QByteArray>
#include <QHash>
#include <QMap>

namespace mKCal
{
/// The VTIMEZONEs of one VCALENDAR, and what the zone names in it mean.
///
/// A name of the system's zone database means that zone, whatever rules come with it. Names of
/// Windows, names with the maker's path before them (`/maker/1/Europe/Helsinki`) and those whose
/// definition names the zone (X-LIC-LOCATION) are translated, then those whose rules are those of a
/// system's zone. The others are left to ICalFormat, which takes most of them as floating.
class TimeZoneTexts
{
public:
    /// @param text the whole VTIMEZONE.
    void insert(const QByteArray &timeZoneId, const QByteArray &text);

    /// Puts names that the system knows into the TZID parameters of @p component (unfolded text).
    /// Returns the definitions that are still needed to read it, by their names.
    QMap<QByteArray, QByteArray> translate(QByteArray *component);

private:
    QByteArray systemName(const QByteArray &timeZoneId, int year);
    QByteArray findSystemName(const QByteArray &timeZoneId, int year) const;

    QHash<QByteArray, QByteArray> m_texts;
    QHash<QByteArray, QByteArray> m_systemNames; ///< looked up before; empty: there is none
};
} // namespace mKCal

#endif
