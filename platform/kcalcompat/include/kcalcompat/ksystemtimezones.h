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
    /// configChanged(). When the system's setting names no zone that Qt can read, and
    /// configChanged() was never called, the answer is still usable: a zone of today's fixed
    /// offset.
    static QTimeZone local();
    /// The zone of IANA name @p id, from a cache; an invalid zone when there is none.
    static QTimeZone zone(const QByteArray &id);
    static QTimeZone utc();

    /// Re-reads the system's zone: to be called when a program starts, and when /etc/localtime or
    /// TZ changed. On the UI thread.
    ///
    /// The C library and Qt do not read every setting alike: "UTC-5" lies east of Greenwich for the
    /// one and west for the other, and the rule "EET-2EEST" is nothing to Qt. All-day series would
    /// be lost between the two. So such a process is moved, by TZ, into the named zone whose clock
    /// comes nearest to the one that the C library, and with it every other program, shows.
    void configChanged();
    /// Forgets the kept zones; the next call reads them again.
    static void cleanup();
};

#endif
