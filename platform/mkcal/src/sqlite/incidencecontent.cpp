// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/incidencecontent.h"

namespace mKCal
{
QString attendeeUid(const KCalendarCore::Attendee &attendee)
{
    constexpr int shortestAddress = 11; // digits; below that no program maps memory
    const QString uid = attendee.uid();
    bool number = false;
    uid.toULongLong(&number);
    return number && uid.size() >= shortestAddress ? QString() : uid;
}
} // namespace mKCal
