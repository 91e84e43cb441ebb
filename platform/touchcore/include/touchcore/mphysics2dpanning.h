// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MPHYSICS2DPANNING_H
#define TOUCHCORE_MPHYSICS2DPANNING_H

#include <QObject>
#include <QPointF>
#include <QRectF>

#include <memory>

class MPhysics2DPanningPrivate;

/// How content moves under a finger and by itself: it follows the finger, runs on after a flick,
/// slows down and comes back from beyond its edges.
///
/// Owned by its viewport (MPannableViewport::setPhysics()), UI thread only. Positions are pixels of
/// the content at the viewport's top left corner. A timer runs only while something moves.
class MPhysics2DPanning : public QObject
{
    Q_OBJECT

public:
    explicit MPhysics2DPanning(QObject *parent = nullptr);
    ~MPhysics2DPanning() override;

    /// The positions at which the content may rest. Empty in a direction that has nothing to pan.
    QRectF range() const;
    /// Content at rest is brought into \a range at once; what moves finds its way by itself.
    void setRange(const QRectF &range);

    /// The directions that a finger moves; both by default.
    Qt::Orientations directions() const;
    void setDirections(Qt::Orientations directions);

    QPointF position() const;
    /// Goes to \a position (bounded by the range where the content rests) without a pan. A running
    /// movement goes on from there, and a finger keeps its hold: this is how content that grew
    /// above stays where it is seen. Emits positionChanged().
    void setPosition(const QPointF &position);

    /// Pixels per second.
    QPointF velocity() const;
    /// Between panningStarted() and panningStopped().
    bool isMoving() const;

    /// Pans at once, as an exact wheel or a key does, not beyond the range. The pan ends when no
    /// further one follows within 0.15 s. Answers whether anything moved: at an edge nothing does,
    /// but the pan is announced. Refused while a finger holds the content.
    bool moveBy(const QPointF &distance);
    /// Like moveBy(), gliding there; distances that come while it glides add up.
    bool glideBy(const QPointF &distance);
    /// Ends a movement where it is, within the range. A finger keeps its hold.
    void stop();

    /// Moves time on by hand: from the first call the clock is no longer asked, so that a test is
    /// exact.
    void advance(qreal seconds);

public Q_SLOTS:
    /// A finger touches the content, which stops. \a pointer: pixels in the viewport.
    virtual void pointerPress(const QPointF &pointer);
    /// The finger moves the content; ignored without a press.
    virtual void pointerMove(const QPointF &pointer);
    /// The finger leaves the content, which goes on with the speed of the last 0.1 s.
    virtual void pointerRelease();

Q_SIGNALS:
    void positionChanged(const QPointF &position);
    /// The person begins to pan.
    void panningStarted();
    /// The content came to rest, without a finger on it.
    void panningStopped();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    std::unique_ptr<MPhysics2DPanningPrivate> d;
};

#endif
