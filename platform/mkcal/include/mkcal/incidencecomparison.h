// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_INCIDENCECOMPARISON_H
#define MKCAL_INCIDENCECOMPARISON_H

#include <kcalcompat/kcalcore.h>

#include <QStringList>

namespace mKCal
{
/// The names of everything in which the two differ, getter by getter: recurrence, alarms with their
/// custom properties, attendees, zones of every date-time. Empty when equal. `operator==` of the
/// incidence types overlooks some of these and compares addresses of attendees.
/// Not compared: lastModified, created, and custom properties that are volatile.
QStringList differences(const KCalCore::Incidence &a, const KCalCore::Incidence &b);
/// Whether differences() would be empty; stops at the first one.
bool sameContent(const KCalCore::Incidence &a, const KCalCore::Incidence &b);
} // namespace mKCal

#endif
