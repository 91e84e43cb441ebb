// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "clockwatch.h"

#include "logging.h"

#include <cerrno>
#include <cstring>
#include <unistd.h>
#include <utility>

namespace Ostra
{
namespace Timed
{
namespace
{
/// The two clocks are read one after the other: what differs by less is no sleep.
constexpr std::chrono::milliseconds shortestSleep(100);
} // namespace

ClockWatch::ClockWatch(std::unique_ptr<KernelClock> clock, QObject *parent)
    : QObject(parent), m_clock(std::move(clock)), m_descriptor(m_clock->open())
{
    if (m_descriptor < 0 || !m_clock->arm(m_descriptor)) {
        const int error = errno;
        qCWarning(lcSystemTime, "The clock cannot be watched: %s", std::strerror(error));
        return;
    }
    m_told = m_clock->aheadOfBoot();
    m_slept = m_clock->slept();
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &ClockWatch::onReadable);
}

ClockWatch::~ClockWatch()
{
    m_notifier.reset();
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

void ClockWatch::onReadable()
{
    if (!m_clock->takeNotice(m_descriptor))
        return;
    // Armed before the clocks are read: a jump in between is seen now or told by the timer later.
    if (!m_clock->arm(m_descriptor)) {
        const int error = errno;
        qCWarning(lcSystemTime, "The clock is no longer watched: %s", std::strerror(error));
        m_notifier->setEnabled(false);
    }
    const auto untold = m_clock->aheadOfBoot() - m_told;
    const auto seconds = std::chrono::round<std::chrono::seconds>(untold);
    m_told += seconds;
    const auto slept = m_clock->slept();
    const auto asleep = slept - std::exchange(m_slept, slept);
    if (seconds.count() != 0)
        Q_EMIT jumped(seconds.count());
    if (asleep >= shortestSleep)
        Q_EMIT resumed();
}
} // namespace Timed
} // namespace Ostra
