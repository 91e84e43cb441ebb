// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef SYSTEMTIME_QMTIME_H
#define SYSTEMTIME_QMTIME_H

#include <QMetaType>
#include <QObject>

#include <memory>

namespace Ostra
{
namespace Timed
{
class TimeSource;
}
} // namespace Ostra

namespace Tarvo
{
/// What made QmTime speak. When several things changed at once, the clock counts first.
enum QmTimeWhatChanged {
    QmTimeTimeChanged = 0, ///< the clock was set, or the machine woke from sleep
    QmTimeOnlySettingsChanged = 1, ///< the zone or its rules
};

class QmTimePrivate;

/// Tells whoever aims timers at times of day that they have to aim again.
///
/// Lives on the thread that makes it, which needs an event loop; costs nothing while nothing
/// changes. What changes within one turn of the event loop is told once.
class QmTime : public QObject
{
    Q_OBJECT
public:
    /// Listens to a source made by Ostra::Timed::TimeSource::make(), normally the system.
    explicit QmTime(QObject *parent = nullptr);
    /// Listens to @p source, which is not null, and takes ownership of it.
    explicit QmTime(std::unique_ptr<Ostra::Timed::TimeSource> source, QObject *parent = nullptr);
    ~QmTime() override;

Q_SIGNALS:
    /// Comes from the event loop, after the change.
    void timeOrSettingsChanged(Tarvo::QmTimeWhatChanged what);

private:
    std::unique_ptr<QmTimePrivate> d;
};
} // namespace Tarvo

Q_DECLARE_METATYPE(Tarvo::QmTimeWhatChanged)

#endif
