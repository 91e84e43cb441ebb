// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "timerservice_p.h"

#include <QMetaMethod>
#include <QPointer>
#include <QTimeZone>

#include <algorithm>
#include <utility>

namespace
{
constexpr qint64 minuteLength = 60000;
constexpr qint64 hourLength = 60 * minuteLength;
constexpr qint64 dayLength = 24 * hourLength;

TimerServicePrivate::Factory &factoryInForce()
{
    static TimerServicePrivate::Factory factory;
    return factory;
}

/// Where the wall clock leaps in the middle of a wait (summer time), hours and days are not of
/// their usual length: the wait ends there, and the next one is reckoned from the new time.
qint64 untilClockChange(const QDateTime &now, qint64 delay)
{
    const QTimeZone zone = QTimeZone::systemTimeZone();
    if (!zone.hasTransitions())
        return delay;
    const QTimeZone::OffsetData next = zone.nextTransition(now);
    return next.atUtc.isValid() ? std::min(delay, now.msecsTo(next.atUtc)) : delay;
}
} // namespace

TimerServicePrivate::TimerServicePrivate() = default;

TimerServicePrivate::~TimerServicePrivate()
{
    delete timer;
}

QDateTime TimerServicePrivate::currentDateTime() const
{
    return QDateTime::currentDateTime();
}

void TimerServicePrivate::setFactory(const Factory &factory)
{
    factoryInForce() = factory;
}

std::unique_ptr<TimerServicePrivate> TimerServicePrivate::make()
{
    return factoryInForce() ? factoryInForce()() : std::make_unique<TimerServicePrivate>();
}

void TimerServicePrivate::attach(TimerService *service)
{
    timer = new QTimer(service);
    lastSeen = currentDateTime();
    watcher = std::make_unique<Tarvo::QmTime>();
    q = service;
    timer->setSingleShot(true);
    // A coarse timer may be three seconds late for a minute.
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer, &QTimer::timeout, service, &TimerService::timerExpired);
    schedule();
    QObject::connect(watcher.get(), &Tarvo::QmTime::timeOrSettingsChanged, service,
                     &TimerService::qmTimeOrSettingsChanged);
}

void TimerServicePrivate::countListeners()
{
    listeners = {q->receivers(SIGNAL(minuteChanged())), q->receivers(SIGNAL(hourChanged())),
                 q->receivers(SIGNAL(dateChanged()))};
}

void TimerServicePrivate::queueCount()
{
    if (std::exchange(isCountQueued, true))
        return;
    QMetaObject::invokeMethod(
        q,
        [this] {
            isCountQueued = false;
            const auto before = listeners;
            countListeners();
            if (listeners != before)
                schedule();
        },
        Qt::QueuedConnection);
}

void TimerServicePrivate::schedule()
{
    const QDateTime now = currentDateTime();
    const qint64 sinceMidnight = now.time().msecsSinceStartOfDay();
    qint64 delay = 0;
    if (listeners[Minute] > 0)
        delay = minuteLength - sinceMidnight % minuteLength;
    else if (listeners[Hour] > 0)
        delay = untilClockChange(now, hourLength - sinceMidnight % hourLength);
    else if (listeners[Date] > 0)
        delay = untilClockChange(now, dayLength - sinceMidnight);
    // Without a guard a delay of 0 would keep the event loop busy for good.
    if (delay == 0)
        timer->stop();
    else
        timer->start(int(delay));
}

TimerService *TimerService::mSingleton = nullptr;

TimerService *TimerService::instance()
{
    if (!mSingleton)
        mSingleton = new TimerService(TimerServicePrivate::make());
    return mSingleton;
}

void TimerService::destroy()
{
    delete std::exchange(mSingleton, nullptr);
}

TimerService::TimerService(std::unique_ptr<TimerServicePrivate> privatePart)
    : d(std::move(privatePart))
{
    d->attach(this);
}

TimerService::~TimerService() = default;

void TimerService::enable()
{
    d->schedule();
}

void TimerService::disable()
{
    d->timer->stop();
}

void TimerService::timerExpired()
{
    d->schedule();
    const QDateTime now = d->currentDateTime();
    // Kept before anybody hears of it: who listens may ask the person, and while that waits for an
    // answer the next look must not find the same changes again.
    const QDateTime before = std::exchange(d->lastSeen, now);
    const std::pair<bool, void (TimerService::*)()> changes[] = {
        {now.time().minute() != before.time().minute(), &TimerService::minuteChanged},
        {now.time().hour() != before.time().hour(), &TimerService::hourChanged},
        {now.date() != before.date(), &TimerService::dateChanged},
    };
    const QPointer<TimerService> stillThere(this);
    for (const auto &[hasChanged, tell] : changes) {
        if (hasChanged && stillThere)
            Q_EMIT(this->*tell)();
    }
}

void TimerService::qmTimeOrSettingsChanged()
{
    timerExpired();
}

void TimerService::connectNotify(const QMetaMethod &)
{
    d->countListeners();
    d->schedule();
}

/// Qt holds a lock of this object while it tells of some disconnections (those by handle), and a
/// receiver that is being deleted still counts: asking for the receivers here would wait for ever
/// or give the old number. So the known number goes down by one and is counted anew from the event
/// loop.
void TimerService::disconnectNotify(const QMetaMethod &signal)
{
    const QMetaMethod signalOf[] = {QMetaMethod::fromSignal(&TimerService::minuteChanged),
                                    QMetaMethod::fromSignal(&TimerService::hourChanged),
                                    QMetaMethod::fromSignal(&TimerService::dateChanged)};
    if (!signal.isValid()) {
        d->countListeners();
    } else {
        for (std::size_t unit = 0; unit < d->listeners.size(); ++unit) {
            if (signal == signalOf[unit])
                d->listeners[unit] = std::max(0, d->listeners[unit] - 1);
        }
    }
    d->queueCount();
    d->schedule();
}
