// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef SYSTEMZONE_H
#define SYSTEMZONE_H

#include <kcalcompat/ksystemtimezones.h>

/// Sets the system's zone for a test through TZ, and sets it back at the end.
class SystemZone
{
public:
    explicit SystemZone(const QByteArray &tz) : m_before(qgetenv("TZ")) { set(tz); }
    ~SystemZone() { set(m_before); }
    Q_DISABLE_COPY(SystemZone)

private:
    static void set(const QByteArray &tz)
    {
        if (tz.isNull())
            qunsetenv("TZ");
        else
            qputenv("TZ", tz);
        KSystemTimeZones().configChanged();
    }

    const QByteArray m_before;
};

#endif
