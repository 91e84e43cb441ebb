// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef KCALCOMPAT_KSYSTEMTIMEZONES_H
#define KCALCOMPAT_KSYSTEMTIMEZONES_H

#include <QByteArray>
#include <QTimeZone>

/// The system's time zones: the one that the device is set to, and the named ones, each built
/// once and kept (building a zone costs a microsecond and more; a calendar asks thousands of
/// times). All calls are safe on any thread.
class KSystemTimeZones
{
public:
    /// The zone that the system is set to, as it was when first asked for or at the last
    /// configChanged(). When the system's setting names no zone that Qt can read (a POSIX rule
    /// such as "EET-2EEST"), the answer is still usable: a zone of today's fixed offset.
    static QTimeZone local();
    /// The zone of IANA name @p id, from a cache; an invalid zone when there is none.
    static QTimeZone zone(const QByteArray &id);
    static QTimeZone utc();

    /// Re-reads the system's zone: to be called when /etc/localtime or TZ changed.
    void configChanged();
    /// Forgets the kept zones; the next call reads them again.
    static void cleanup();
};

#endif
