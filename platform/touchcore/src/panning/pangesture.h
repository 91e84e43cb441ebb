// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_PANGESTURE_H
#define TOUCHCORE_PANGESTURE_H

#include <QPointF>

class MPannableViewport;
class QGraphicsItem;
class QGraphicsSceneMouseEvent;

/// Tells a pan from a tap, for one viewport: watches the touches of all that lies in it, and takes
/// a touch over once it is a pan.
class PanGesture
{
public:
    explicit PanGesture(MPannableViewport *viewport) : m_viewport(viewport) { }

    /// Looks at a mouse event before the item below it does. True: it is the viewport's alone.
    bool filter(QGraphicsSceneMouseEvent *event);
    /// Whether a touch is followed that may still become a pan, or is one.
    bool isFollowing() const { return m_phase != Idle; }
    /// The touch went elsewhere: its release will not come.
    void abandon();

private:
    enum Phase {
        Idle,
        Undecided, ///< the touch is still that of the item below it
        Panning,
    };

    bool press(QGraphicsSceneMouseEvent *event, const QPointF &pointer);
    bool move(const QPointF &pointer);
    bool release();
    bool isPan(const QPointF &way) const;
    void takeOver();

    MPannableViewport *m_viewport;
    Phase m_phase = Idle;
    QPointF m_start;
    /// The way that made it a pan: left out, so that the content starts without a leap.
    QPointF m_threshold;
    bool m_isTakingOver = false;
};

#endif
