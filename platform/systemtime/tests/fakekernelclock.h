// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef FAKEKERNELCLOCK_H
#define FAKEKERNELCLOCK_H

#include "kernelclock.h"

#include <QtGlobal>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

/// A clock that a test sets. Its descriptor wakes the event loop as the kernel's does.
class FakeKernelClock : public Ostra::Timed::KernelClock
{
public:
    using Nanoseconds = std::chrono::nanoseconds;

    int open() override
    {
        if (refusesToOpen) {
            errno = EMFILE;
            return -1;
        }
        descriptor = eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);
        return descriptor;
    }

    bool arm(int) override
    {
        ++timesArmed;
        ahead += std::exchange(jumpWhileArming, Nanoseconds(0));
        return true;
    }

    bool takeNotice(int from) override
    {
        std::uint64_t notices = 0;
        return ::read(from, &notices, sizeof notices) > 0 && !falseAlarm;
    }

    Nanoseconds aheadOfBoot() override { return ahead; }

    Nanoseconds slept() override { return asleep; }

    /// Lets the machine sleep, as the kernel tells it on waking.
    void sleepFor(Nanoseconds time)
    {
        asleep += time;
        setBy(Nanoseconds(0));
    }

    /// Sets the clock by @p jump, as the kernel tells it.
    void setBy(Nanoseconds jump)
    {
        ahead += jump;
        const std::uint64_t notice = 1;
        if (::write(descriptor, &notice, sizeof notice) != sizeof notice)
            qFatal("The notice cannot be written: %s", std::strerror(errno));
    }

    int descriptor = -1;
    int timesArmed = 0;
    bool refusesToOpen = false;
    bool falseAlarm = false;
    Nanoseconds ahead{std::chrono::hours(365 * 24 * 41)};
    Nanoseconds jumpWhileArming{0};
    Nanoseconds asleep{std::chrono::hours(7)};
};

#endif
