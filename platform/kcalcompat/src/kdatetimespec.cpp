// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <kcalcompat/kdatetime.h>
#include <kcalcompat/ksystemtimezones.h>

namespace
{
constexpr int secondsPerDay = 24 * 60 * 60;
}

KDateTime::Spec::Spec(const QTimeZone &zone)
    : m_type(zone.isValid() ? KDateTime::TimeZone : KDateTime::Invalid), m_zone(zone)
{
}

KDateTime::Spec::Spec(SpecType type, int utcOffsetSeconds)
{
    if (type == KDateTime::TimeZone)
        return;
    if (type != KDateTime::OffsetFromUTC) {
        m_type = type;
    } else if (utcOffsetSeconds > -secondsPerDay && utcOffsetSeconds < secondsPerDay) {
        m_type = type;
        m_utcOffset = utcOffsetSeconds;
    }
}

KDateTime::Spec KDateTime::Spec::LocalZone()
{
    return Spec(KDateTime::LocalZone);
}

KDateTime::Spec KDateTime::Spec::UTC()
{
    return Spec(KDateTime::UTC);
}

KDateTime::Spec KDateTime::Spec::ClockTime()
{
    return Spec(KDateTime::ClockTime);
}

KDateTime::Spec KDateTime::Spec::OffsetFromUTC(int seconds)
{
    return Spec(KDateTime::OffsetFromUTC, seconds);
}

QTimeZone KDateTime::Spec::timeZone() const
{
    switch (m_type) {
    case KDateTime::Invalid:
        break;
    case KDateTime::UTC:
        return KSystemTimeZones::utc();
    case KDateTime::OffsetFromUTC:
        return QTimeZone(m_utcOffset);
    case KDateTime::TimeZone:
        return m_zone;
    case KDateTime::LocalZone:
    case KDateTime::ClockTime:
        return KSystemTimeZones::local();
    }
    return {};
}

bool KDateTime::Spec::operator==(const Spec &other) const
{
    return m_type == other.m_type && m_utcOffset == other.m_utcOffset && m_zone == other.m_zone;
}
