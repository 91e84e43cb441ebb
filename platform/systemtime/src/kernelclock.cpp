// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "kernelclock.h"

#include <cerrno>
#include <cstdint>
#include <ctime>
#include <limits>
#include <sys/timerfd.h>
#include <unistd.h>

namespace Ostra
{
namespace Timed
{
namespace
{
std::chrono::nanoseconds now(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}
} // namespace

KernelClock::~KernelClock() = default;

int KernelClock::open()
{
    return timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC);
}

bool KernelClock::arm(int descriptor)
{
    // A date that never comes: the timer exists only to be cancelled.
    itimerspec never{};
    never.it_value.tv_sec = std::numeric_limits<decltype(never.it_value.tv_sec)>::max();
    const int flags = TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET;
    // ECANCELED says that the clock was set just now; the timer is armed all the same.
    return timerfd_settime(descriptor, flags, &never, nullptr) == 0 || errno == ECANCELED;
}

bool KernelClock::takeNotice(int descriptor)
{
    std::uint64_t expirations = 0;
    const ssize_t got = read(descriptor, &expirations, sizeof expirations);
    return got > 0 || (got < 0 && errno == ECANCELED);
}

std::chrono::nanoseconds KernelClock::aheadOfBoot()
{
    return now(CLOCK_REALTIME) - now(CLOCK_BOOTTIME);
}

std::chrono::nanoseconds KernelClock::slept()
{
    return now(CLOCK_BOOTTIME) - now(CLOCK_MONOTONIC);
}
} // namespace Timed
} // namespace Ostra
