// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef SYSTEMTIME_KERNELCLOCK_H
#define SYSTEMTIME_KERNELCLOCK_H

#include <chrono>

namespace Ostra
{
namespace Timed
{
/// The kernel calls behind ClockWatch, apart from it so that a test can answer them: no test may
/// set the clock of the machine it runs on.
class KernelClock
{
public:
    KernelClock() = default;
    virtual ~KernelClock();
    KernelClock(const KernelClock &) = delete;
    KernelClock &operator=(const KernelClock &) = delete;

    /// A descriptor that becomes readable when the clock is set; the caller closes it. -1 when the
    /// kernel refuses, with errno.
    virtual int open();
    /// Makes the descriptor tell of the next time the clock is set. False when the kernel refuses.
    virtual bool arm(int descriptor);
    /// Takes what made the descriptor readable. True when the clock was set, false when nothing
    /// was there.
    virtual bool takeNotice(int descriptor);
    /// How far the wall clock is ahead of the time since boot. Time since boot counts sleep and is
    /// slewed as the wall clock is, so that only setting the clock changes the difference.
    virtual std::chrono::nanoseconds aheadOfBoot();
    /// How long the machine has slept since boot.
    virtual std::chrono::nanoseconds slept();
};
} // namespace Timed
} // namespace Ostra

#endif
