// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef SYSTEMTIME_TIMESOURCE_H
#define SYSTEMTIME_TIMESOURCE_H

#include <QObject>

#include <functional>
#include <memory>

namespace Ostra
{
namespace Timed
{
/// Where news of the clock and the zone come from.
///
/// The system's own source is the default. A test makes a plain TimeSource and emits the signals
/// itself. Each source has one owner, lives on the thread that makes it and needs its event loop.
class TimeSource : public QObject
{
    Q_OBJECT
public:
    explicit TimeSource(QObject *parent = nullptr);
    ~TimeSource() override;

    using Factory = std::function<std::unique_ptr<TimeSource>()>;
    /// From now on make() answers what @p factory makes; an empty function restores the system's
    /// source. For tests of code that makes its own Interface; not to be called while another
    /// thread calls make().
    static void setFactory(Factory factory);
    /// A new source: the system's unless setFactory() said otherwise. Never null as long as the
    /// factory answers none.
    static std::unique_ptr<TimeSource> make();

Q_SIGNALS:
    /// The clock was set: it now shows @p seconds more (or, negative, less) than it would have.
    /// In whole seconds, rounded, never 0: what rounds to 0 is kept and added to the next jump, so
    /// that the sum of all jumps told is right to half a second. Sleep of the machine and the slow
    /// corrections of a time server are no jumps.
    void clockJumped(qint64 seconds);
    /// Another zone was chosen, or the rules of the system's zone were replaced.
    void zoneChanged();
    /// The machine woke from sleep. The clock went on meanwhile, but timers of the event loop did
    /// not: what was aimed at a time of day comes late by the length of the sleep.
    void resumed();
};
} // namespace Timed
} // namespace Ostra

#endif
