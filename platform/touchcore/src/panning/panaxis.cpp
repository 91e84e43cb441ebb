// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "panaxis.h"

#include <cmath>

namespace
{
/// Seconds in which a free movement falls to 1/e of its speed.
const qreal decayTime = 0.325;
/// Stiffness of the pull of an edge, per second; with critical damping.
const qreal pullRate = 14;
const qreal elasticity = 1 / 3.0;

/// Slower than this (pixels per second) nothing seems to move.
const qreal slowestCoast = 8;
const qreal slowestPull = 20;
const qreal nearest = 0.5;
} // namespace

void PanAxis::drag(qreal distance)
{
    const qreal edge = bounded(position);
    const qreal wanted = edge + (position - edge) / elasticity + distance;
    const qreal inside = bounded(wanted);
    position = inside + (wanted - inside) * elasticity;
}

void PanAxis::flick(qreal speed)
{
    velocity = isOutside() ? speed * elasticity : speed;
}

void PanAxis::coast(qreal seconds)
{
    while (seconds > 0 && !isAtRest())
        seconds -= isPulledBack() ? returnToEdge(seconds) : slowDown(seconds);
}

void PanAxis::pull(qreal target, qreal seconds)
{
    const qreal away = position - target;
    const qreal slope = velocity + pullRate * away;
    const qreal remains = std::exp(-pullRate * seconds);
    position = target + (away + slope * seconds) * remains;
    velocity = (velocity - pullRate * slope * seconds) * remains;
    if (qAbs(position - target) < nearest && qAbs(velocity) < slowestPull) {
        position = target;
        velocity = 0;
    }
}

bool PanAxis::isPulledBack() const
{
    return isOutside() || (velocity < 0 && position <= low) || (velocity > 0 && position >= high);
}

/// Answers the time used: less than \a seconds when an edge was reached.
qreal PanAxis::slowDown(qreal seconds)
{
    const qreal edge = velocity < 0 ? low : high;
    const qreal wayToRest = velocity * decayTime;
    const qreal wayToEdge = edge - position;
    qreal used = seconds;
    bool meetsEdge = false;
    if (qAbs(wayToRest) > qAbs(wayToEdge)) {
        const qreal timeToEdge = -decayTime * std::log(1 - wayToEdge / wayToRest);
        meetsEdge = timeToEdge <= seconds;
        used = qMin(seconds, timeToEdge);
    }
    const qreal remains = std::exp(-used / decayTime);
    position = meetsEdge ? edge : position + wayToRest * (1 - remains);
    velocity *= remains;
    if (qAbs(velocity) < slowestCoast)
        velocity = 0;
    return used;
}

/// Answers the time used: less than \a seconds when it came back fast enough to go on inside.
qreal PanAxis::returnToEdge(qreal seconds)
{
    const qreal edge = bounded(position);
    const qreal away = position - edge;
    const qreal slope = velocity + pullRate * away;
    const qreal crossing = away * slope < 0 ? -away / slope : seconds;
    const qreal used = qMin(seconds, crossing);
    pull(edge, used);
    if (crossing < seconds)
        position = edge;
    return used;
}
