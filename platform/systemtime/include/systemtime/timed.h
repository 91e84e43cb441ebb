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
    explicit Info(qint64 clockDiffSeconds) : m_clockDiff(clockDiffSeconds) { }
    /// By how many whole seconds the clock jumped, without sign; 0 when only the zone changed.
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
///
/// One change is told once, even when several sources report it: what arrives within one turn of
/// the event loop becomes one notice. Jumps within that turn are added up, and when the clock ends
/// where it would have been and the zone stayed, nothing is told.
class Interface : public QObject
{
    Q_OBJECT
public:
    /// Listens to a source made by TimeSource::make(), normally the system.
    explicit Interface(QObject *parent = nullptr);
    /// Listens to @p source, which is not null, and takes ownership of it.
    explicit Interface(std::unique_ptr<TimeSource> source, QObject *parent = nullptr);
    ~Interface() override;

    /// Connects @p receiver's @p slot, written with SLOT(), to settingsChanged(). The slot takes
    /// `(const Ostra::Timed::WallClock::Info &, bool)` or only the first of them, or nothing.
    /// False (and Qt's usual warning) when there is no such slot or its arguments do not fit.
    bool settings_changed_connect(QObject *receiver, const char *slot);

Q_SIGNALS:
    /// The clock was set, another zone was chosen, or the rules of the zone were replaced. Comes
    /// from the event loop, after the change. @p time_changed: the clock jumped by
    /// `info.clockDiff()` seconds, which is then at least 1.
    void settingsChanged(const Ostra::Timed::WallClock::Info &info, bool time_changed);

private:
    std::unique_ptr<InterfacePrivate> d;
};
} // namespace Timed
} // namespace Ostra

Q_DECLARE_METATYPE(Ostra::Timed::WallClock::Info)

#endif
