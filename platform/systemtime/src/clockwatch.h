// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef SYSTEMTIME_CLOCKWATCH_H
#define SYSTEMTIME_CLOCKWATCH_H

#include "kernelclock.h"

#include <QObject>
#include <QSocketNotifier>

#include <chrono>
#include <memory>

namespace Ostra
{
namespace Timed
{
/// Notices when the wall clock is set and by how much, and when the machine wakes from sleep (the
/// kernel cancels the timer then, too). Silent where the kernel has no such timer.
class ClockWatch : public QObject
{
    Q_OBJECT
public:
    explicit ClockWatch(std::unique_ptr<KernelClock> clock, QObject *parent = nullptr);
    ~ClockWatch() override;

Q_SIGNALS:
    /// As TimeSource::clockJumped().
    void jumped(qint64 seconds);
    /// As TimeSource::resumed().
    void resumed();

private:
    void onReadable();

    std::unique_ptr<KernelClock> m_clock;
    int m_descriptor = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    /// The part of the difference that is known to the listeners.
    std::chrono::nanoseconds m_told{0};
    std::chrono::nanoseconds m_slept{0};
};
} // namespace Timed
} // namespace Ostra

#endif
