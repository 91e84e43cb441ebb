// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "panaxis.h"

#include <touchcore/mphysics2dpanning.h>

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QTimerEvent>

#include <vector>

namespace
{
const int frameInterval = 16;
/// After a hitch the content goes on from where it was seen, without a leap.
const qreal longestFrame = 0.05;
/// Seconds of a finger's way from which the speed of a flick is taken.
const qreal flickTime = 0.1;
const qreal fastestFlick = 8000;
/// Seconds without a further push after which a pan by wheel or key has ended.
const qreal pushTime = 0.15;
} // namespace

class MPhysics2DPanningPrivate
{
public:
    enum State {
        Resting,
        Held, ///< a finger is on it
        Coasting, ///< moves by itself
        Gliding, ///< on its way to the target of a wheel or key
    };

    struct Sample {
        qreal time;
        QPointF pointer;
    };

    explicit MPhysics2DPanningPrivate(MPhysics2DPanning *owner) : q(owner) { clock.start(); }

    QPointF position() const { return {x.position, y.position}; }
    QPointF bounded(const QPointF &place) const
    {
        return {x.bounded(place.x()), y.bounded(place.y())};
    }
    qreal now() const { return isTimeGiven ? givenTime : qreal(clock.elapsed()) / 1000; }

    void moveTo(const QPointF &place);
    void enter(State next);
    void beginPan();
    void endPan();
    void track(const QPointF &pointer);
    QPointF flickVelocity() const;
    bool push(const QPointF &distance, bool isGlide);
    void step(qreal seconds);
    bool hasArrived() const;

    MPhysics2DPanning *q;
    PanAxis x;
    PanAxis y;
    Qt::Orientations directions = Qt::Horizontal | Qt::Vertical;
    State state = Resting;
    bool isPanning = false;
    std::vector<Sample> samples;
    QPointF target;
    qreal lastPush = 0;
    qreal lastStep = 0;
    QBasicTimer timer;
    QElapsedTimer clock;
    bool isTimeGiven = false;
    qreal givenTime = 0;
};

void MPhysics2DPanningPrivate::moveTo(const QPointF &place)
{
    if (place == position())
        return;
    x.position = place.x();
    y.position = place.y();
    Q_EMIT q->positionChanged(place);
}

void MPhysics2DPanningPrivate::enter(State next)
{
    state = next;
    const bool movesByItself = state == Coasting || state == Gliding;
    if (!movesByItself || isTimeGiven) {
        timer.stop();
    } else if (!timer.isActive()) {
        lastStep = now();
        timer.start(frameInterval, Qt::PreciseTimer, q);
    }
}

void MPhysics2DPanningPrivate::beginPan()
{
    if (isPanning)
        return;
    isPanning = true;
    Q_EMIT q->panningStarted();
}

void MPhysics2DPanningPrivate::endPan()
{
    enter(Resting);
    if (!isPanning)
        return;
    isPanning = false;
    Q_EMIT q->panningStopped();
}

void MPhysics2DPanningPrivate::track(const QPointF &pointer)
{
    const qreal time = now();
    samples.push_back({time, pointer});
    while (samples.size() > 2 && time - samples.front().time > flickTime)
        samples.erase(samples.begin());
}

QPointF MPhysics2DPanningPrivate::flickVelocity() const
{
    const qreal duration = samples.back().time - samples.front().time;
    const bool isHeldStill = now() - samples.back().time > flickTime;
    if (!isPanning || isHeldStill || duration <= 0)
        return {};
    const QPointF velocity = (samples.front().pointer - samples.back().pointer) / duration;
    return {qBound(-fastestFlick, velocity.x(), fastestFlick),
            qBound(-fastestFlick, velocity.y(), fastestFlick)};
}

bool MPhysics2DPanningPrivate::push(const QPointF &distance, bool isGlide)
{
    if (state == Held)
        return false;
    const QPointF from = isGlide && state == Gliding ? target : position();
    target = bounded(from + distance);
    if (state == Coasting)
        x.velocity = y.velocity = 0;
    lastPush = now();
    enter(Gliding);
    beginPan();
    const bool hasMoved = target != from;
    if (!isGlide) {
        x.velocity = y.velocity = 0;
        moveTo(target);
    }
    return hasMoved;
}

void MPhysics2DPanningPrivate::step(qreal seconds)
{
    const QPointF from = position();
    if (state == Coasting) {
        x.coast(seconds);
        y.coast(seconds);
    } else if (state == Gliding) {
        x.pull(target.x(), seconds);
        y.pull(target.y(), seconds);
    }
    if (position() != from)
        Q_EMIT q->positionChanged(position());
    if (hasArrived())
        endPan();
}

bool MPhysics2DPanningPrivate::hasArrived() const
{
    if (state == Coasting)
        return x.isAtRest() && y.isAtRest();
    return state == Gliding && position() == target && now() - lastPush >= pushTime;
}

MPhysics2DPanning::MPhysics2DPanning(QObject *parent)
    : QObject(parent), d(std::make_unique<MPhysics2DPanningPrivate>(this))
{
}

MPhysics2DPanning::~MPhysics2DPanning() = default;

QRectF MPhysics2DPanning::range() const
{
    return {QPointF(d->x.low, d->y.low), QPointF(d->x.high, d->y.high)};
}

void MPhysics2DPanning::setRange(const QRectF &range)
{
    d->x.low = range.left();
    d->x.high = qMax(range.left(), range.right());
    d->y.low = range.top();
    d->y.high = qMax(range.top(), range.bottom());
    d->target = d->bounded(d->target);
    if (d->state == MPhysics2DPanningPrivate::Resting)
        d->moveTo(d->bounded(d->position()));
}

Qt::Orientations MPhysics2DPanning::directions() const
{
    return d->directions;
}

void MPhysics2DPanning::setDirections(Qt::Orientations directions)
{
    d->directions = directions;
}

QPointF MPhysics2DPanning::position() const
{
    return d->position();
}

void MPhysics2DPanning::setPosition(const QPointF &position)
{
    const QPointF wanted = isMoving() ? position : d->bounded(position);
    d->target = d->bounded(d->target + wanted - d->position());
    d->moveTo(wanted);
}

QPointF MPhysics2DPanning::velocity() const
{
    return {d->x.velocity, d->y.velocity};
}

bool MPhysics2DPanning::isMoving() const
{
    return d->isPanning;
}

bool MPhysics2DPanning::moveBy(const QPointF &distance)
{
    return d->push(distance, false);
}

bool MPhysics2DPanning::glideBy(const QPointF &distance)
{
    return d->push(distance, true);
}

void MPhysics2DPanning::stop()
{
    d->x.velocity = d->y.velocity = 0;
    if (d->state == MPhysics2DPanningPrivate::Held)
        return;
    d->enter(MPhysics2DPanningPrivate::Resting);
    d->moveTo(d->bounded(d->position()));
    d->endPan();
}

void MPhysics2DPanning::advance(qreal seconds)
{
    d->isTimeGiven = true;
    d->timer.stop();
    d->givenTime += seconds;
    d->step(seconds);
}

void MPhysics2DPanning::pointerPress(const QPointF &pointer)
{
    d->x.velocity = d->y.velocity = 0;
    d->samples.clear();
    d->track(pointer);
    d->enter(MPhysics2DPanningPrivate::Held);
}

void MPhysics2DPanning::pointerMove(const QPointF &pointer)
{
    if (d->state != MPhysics2DPanningPrivate::Held)
        return;
    const QPointF way = d->samples.back().pointer - pointer;
    d->track(pointer);
    d->beginPan();
    const QPointF from = d->position();
    if (d->directions & Qt::Horizontal)
        d->x.drag(way.x());
    if (d->directions & Qt::Vertical)
        d->y.drag(way.y());
    if (d->position() != from)
        Q_EMIT positionChanged(d->position());
}

void MPhysics2DPanning::pointerRelease()
{
    if (d->state != MPhysics2DPanningPrivate::Held)
        return;
    const QPointF velocity = d->flickVelocity();
    if (d->directions & Qt::Horizontal)
        d->x.flick(velocity.x());
    if (d->directions & Qt::Vertical)
        d->y.flick(velocity.y());
    d->enter(MPhysics2DPanningPrivate::Coasting);
    if (d->x.isAtRest() && d->y.isAtRest())
        d->endPan();
}

void MPhysics2DPanning::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != d->timer.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    const qreal seconds = d->now() - d->lastStep;
    d->lastStep = d->now();
    d->step(qMin(seconds, longestFrame));
}
