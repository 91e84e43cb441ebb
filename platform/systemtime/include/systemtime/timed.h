// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef SYSTEMTIME_TIMED_H
#define SYSTEMTIME_TIMED_H

#include <QMetaType>
#include <QObject>

#include <memory>

namespace Ostra
{
namespace Timed
{
namespace WallClock
{
/// What is known of one change of the time settings.
class Info
{
public:
    Info() = default;
    explicit Info(qint64 clockDiffSeconds)
        : m_clockDiff(clockDiffSeconds)
    {
    }
    /// By how many seconds the clock jumped, without sign; 0 when only the settings changed.
    qint64 clockDiff() const { return m_clockDiff; }

private:
    qint64 m_clockDiff = 0;
};
} // namespace WallClock

class InterfacePrivate;
class TimeSource;

/// Tells when somebody set the clock or chose another time zone.
///
/// Watches the kernel's clock (a timer that is cancelled when the clock is set), the system's zone
/// file and, where it runs, the time service on the system's message bus. Lives on the thread that
/// makes it, which needs an event loop; costs nothing while nothing changes.
class Interface : public QObject
{
    Q_OBJECT
public:
    explicit Interface(QObject *parent = nullptr);
    /// Listens to @p source instead of the system; takes ownership. For tests.
    explicit Interface(std::unique_ptr<TimeSource> source, QObject *parent = nullptr);
    ~Interface() override;

    /// Connects @p receiver's @p slot, whose signature is
    /// `(const Ostra::Timed::WallClock::Info &info, bool time_changed)`: time_changed is true when
    /// the clock jumped. False when the slot does not exist or does not fit.
    bool settings_changed_connect(QObject *receiver, const char *slot);

Q_SIGNALS:
    void settingsChanged(const Ostra::Timed::WallClock::Info &info, bool time_changed);

private:
    std::unique_ptr<InterfacePrivate> d;
};
} // namespace Timed
} // namespace Ostra

Q_DECLARE_METATYPE(Ostra::Timed::WallClock::Info)

#endif
