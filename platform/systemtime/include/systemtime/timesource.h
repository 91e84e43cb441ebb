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
/// Where news of the clock and the zone come from. The system's sources are the default; a test
/// makes one of its own and emits the signals itself.
class TimeSource : public QObject
{
    Q_OBJECT
public:
    explicit TimeSource(QObject *parent = nullptr);
    ~TimeSource() override;

    using Factory = std::function<std::unique_ptr<TimeSource>()>;
    /// Makes the sources of every Interface built from now on; an empty function restores the
    /// system's. For tests of code that makes its own Interface; call it on the UI thread.
    static void setFactory(Factory factory);
    /// A source by the factory in force.
    static std::unique_ptr<TimeSource> make();

Q_SIGNALS:
    /// The clock was set: it now shows @p seconds more (or, negative, less) than it would have.
    void clockJumped(qint64 seconds);
    /// Another zone was chosen, or the system's zone file was replaced.
    void zoneChanged();
};
} // namespace Timed
} // namespace Ostra

#endif
