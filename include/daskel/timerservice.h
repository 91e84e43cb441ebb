// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_TIMERSERVICE_H
#define DASKEL_TIMERSERVICE_H

#include <QObject>

#include <memory>

class TimerServicePrivate;

/// Tells views when the minute, the hour or the date on the wall changes.
///
/// One per process, for its UI thread. It keeps one timer, aimed at the next boundary of the finest
/// unit that somebody listens to, and none while nobody listens. A clock that is set, another zone
/// and waking from sleep are noticed at once.
class TimerService : public QObject
{
    Q_OBJECT

public:
    /// The one service, made on first use.
    static TimerService *instance();
    /// Deletes it; a later instance() makes another one.
    static void destroy();
    ~TimerService() override;

Q_SIGNALS:
    /// These three are emitted in this order when their field of the wall clock differs from what
    /// it was at the last look. After a jump of exactly one hour only hourChanged() comes, after
    /// one of exactly one day only dateChanged().
    void minuteChanged();
    void hourChanged();
    void dateChanged();

public Q_SLOTS:
    /// Aims the timer again, after disable().
    void enable();
    /// Stops the timer until enable(), until somebody connects or disconnects, or until the clock
    /// or the zone is changed.
    void disable();
    /// Looks at the clock: emits what changed and aims the timer again.
    void timerExpired();
    void qmTimeOrSettingsChanged();

protected:
    void connectNotify(const QMetaMethod &signal) override;
    void disconnectNotify(const QMetaMethod &signal) override;

private:
    friend class TimerServicePrivate;
    explicit TimerService(std::unique_ptr<TimerServicePrivate> privatePart);

    static TimerService *mSingleton;
    std::unique_ptr<TimerServicePrivate> d;
};

#endif
