// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MPANNABLEVIEWPORT_H
#define TOUCHCORE_MPANNABLEVIEWPORT_H

#include <touchcore/mpannableviewportstyle.h>
#include <touchcore/mstylablewidget.h>

class MPannableViewportPrivate;
class MPhysics2DPanning;
class MPositionIndicator;

/// A window onto a widget that is larger than it: a finger, a wheel or the keyboard pans the
/// widget.
///
/// A touch belongs to the widget below it until it has moved 12 pixels in a direction that can be
/// panned; then the viewport takes it over and the widget gets an MCancelEvent. A touch on content
/// that moves only stops it. Keyboard focus that goes to something out of view brings it into view.
/// Takes the room it is given. UI thread only.
class MPannableViewport : public MStylableWidget
{
    Q_OBJECT
    M_STYLE(MPannableViewportStyle)

public:
    /// Whether the person can pan in a direction. The values are part of the interface.
    enum PanningPolicy {
        PanningAlwaysOn = 0, ///< also when all is in view: it gives way and comes back
        PanningAlwaysOff = 1,
        PanningAsNeeded = 2, ///< when not all is in view
    };
    Q_ENUM(PanningPolicy)

    explicit MPannableViewport(QGraphicsItem *parent = nullptr);
    ~MPannableViewport() override;

    /// Shows \a widget, which the viewport then owns, at the start of its content; one that was
    /// there is deleted. The widget gets its preferred size for the viewport's width, and at least
    /// the viewport's size as far as it may grow. It stays at the place (0, 0) of its parent, which
    /// moves. Null shows nothing.
    void setWidget(QGraphicsWidget *widget);
    QGraphicsWidget *widget() const;

    MPhysics2DPanning *physics() const;
    /// Replaces how the content moves, never null; owned. Range and position go over to it.
    void setPhysics(MPhysics2DPanning *physics);

    /// The place of the content that is seen at the viewport's top left corner.
    QPointF position() const;
    /// MPhysics2DPanning::setPosition().
    void setPosition(const QPointF &position);
    /// Pans as little as shows \a area (pixels of the widget), its start if it is too large.
    void ensureVisible(const QRectF &area);

    /// On by default.
    PanningPolicy verticalPanningPolicy() const;
    void setVerticalPanningPolicy(PanningPolicy policy);
    /// Off by default: the widget is then as wide as the viewport.
    PanningPolicy horizontalPanningPolicy() const;
    void setHorizontalPanningPolicy(PanningPolicy policy);
    /// The directions that can be panned now.
    Qt::Orientations pannableDirections() const;

    MPositionIndicator *positionIndicator() const;

    /// Takes over the widget's present size hints at once, not with the next turn of the event
    /// loop. The range of positions grows before the widget hears of its new geometry, so that it
    /// may move the viewport from its setGeometry(); it shrinks after that.
    void updateExtent();

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

Q_SIGNALS:
    /// The content has moved to \a position.
    void positionChanged(const QPointF &position);
    /// MPhysics2DPanning::panningStarted() and panningStopped().
    void panningStarted();
    void panningStopped();

protected:
    bool event(QEvent *event) override;
    bool sceneEventFilter(QGraphicsItem *watched, QEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void ungrabMouseEvent(QEvent *event) override;
    void wheelEvent(QGraphicsSceneWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QGraphicsSceneResizeEvent *event) override;
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;

private:
    std::unique_ptr<MPannableViewportPrivate> d;
};

#endif
