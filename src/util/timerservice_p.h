// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_TIMERSERVICE_P_H
#define DASKEL_TIMERSERVICE_P_H

#include <daskel/timerservice.h>
#include <systemtime/qmtime.h>

#include <QDateTime>
#include <QTimer>

#include <array>
#include <functional>
#include <memory>

class TimerServicePrivate
{
public:
    TimerServicePrivate();
    virtual ~TimerServicePrivate();
    Q_DISABLE_COPY(TimerServicePrivate)

    /// All reading of the clock goes through here.
    virtual QDateTime currentDateTime() const;

    using Factory = std::function<std::unique_ptr<TimerServicePrivate>()>;
    /// From now on TimerService::instance() starts with what \a factory makes, such as one with
    /// another clock; an empty function restores the real one.
    static void setFactory(const Factory &factory);
    static std::unique_ptr<TimerServicePrivate> make();

    void attach(TimerService *service);
    void countListeners();
    /// Counts again when control is back in the event loop, where it is safe to ask Qt.
    void queueCount();
    /// Aims the timer at the next boundary of the finest unit listened to, or stops it.
    void schedule();

    QTimer *timer = nullptr;
    QDateTime lastSeen;
    std::unique_ptr<Tarvo::QmTime> watcher;
    TimerService *q = nullptr;

    enum Unit { Minute, Hour, Date };
    std::array<int, 3> listeners{};
    bool isCountQueued = false;
};

#endif
