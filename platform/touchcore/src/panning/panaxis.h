// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_PANAXIS_H
#define TOUCHCORE_PANAXIS_H

#include <QtGlobal>

/// One direction of a pan: where it is, how fast it moves and between which edges it may rest.
///
/// Its movements are solutions of their equations, not sums of small steps: the way is the same
/// whatever the rate of the frames.
class PanAxis
{
public:
    qreal position = 0;
    /// Pixels per second.
    qreal velocity = 0;
    qreal low = 0;
    qreal high = 0;

    /// The place between the edges that is nearest to \a place.
    qreal bounded(qreal place) const { return qBound(low, place, high); }
    bool isOutside() const { return position < low || position > high; }
    bool isAtRest() const { return velocity == 0 && !isOutside(); }

    /// Follows a finger; beyond an edge by a third of its way only.
    void drag(qreal distance);
    /// The finger leaves it with this speed.
    void flick(qreal speed);
    /// Moves on by itself: slows down between the edges, and is pulled back beyond them.
    void coast(qreal seconds);
    /// Is pulled to \a target, without swinging.
    void pull(qreal target, qreal seconds);

private:
    bool isPulledBack() const;
    qreal slowDown(qreal seconds);
    qreal returnToEdge(qreal seconds);
};

#endif
