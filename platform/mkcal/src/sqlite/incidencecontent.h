// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_INCIDENCECONTENT_H
#define MKCAL_INCIDENCECONTENT_H

#include <KCalendarCore/Attendee>

namespace mKCal
{
/// An attendee without a UID of its own answers with its address in memory as a number, which
/// means nothing elsewhere: null then.
QString attendeeUid(const KCalendarCore::Attendee &attendee);

/// What KCalendarCore keeps in memory only.
inline bool isVolatileProperty(const QByteArray &name)
{
    return name.startsWith("X-KDE-VOLATILE");
}
} // namespace mKCal

#endif
