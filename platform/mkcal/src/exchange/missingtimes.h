// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_MISSINGTIMES_H
#define MKCAL_MISSINGTIMES_H

#include "componentsplitter.h"

#include <kcalcompat/kcalcore.h>

namespace mKCal
{
/// Fills in the times that ICalFormat could not make: those in the hour that a clock change leaves
/// out, and dates whose midnight is in that hour (in Beirut, Cairo, Havana or Santiago, for one day
/// of each year). They are moved on by as much as the clocks are (RFC 5545 section 3.3.5).
/// @param component what @p incidence was read from.
void readMissingTimes(const CalendarComponent &component,
                      const KCalCore::Incidence::Ptr &incidence);

/// Which occurrence the component stands for, the same text for the same moment in another zone;
/// empty for a series.
QByteArray recurrenceIdentity(const CalendarComponent &component);
} // namespace mKCal

#endif
