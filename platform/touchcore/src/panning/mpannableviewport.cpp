// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "focusfollower.h"
#include "panelayout.h"
#include "pangesture.h"
#include "panstep.h"
#include "wheelwatcher.h"

#include <touchcore/mpannableviewport.h>
#include <touchcore/mphysics2dpanning.h>
#include <touchcore/mpositionindicator.h>

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTimer>
#include <QWidget>

#include <algorithm>

namespace
{
bool hasTabStop(const QGraphicsWidget *widget)
{
    if ((widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled() && widget->isVisible())
        return true;
    const QList<QGraphicsItem *> children = widget->childItems();
    return std::any_of(children.begin(), children.end(), [](const QGraphicsItem *child) {
        return child->isWidget() && hasTabStop(static_cast<const QGraphicsWidget *>(child));
    });
}

/// The least way from \a position that brings the part [low, high] into a window of \a length.
qreal wayToShow(qreal position, qreal length, qreal low, qreal high)
{
    if (low < position || high - low > length)
        return low - position;
    return qMax(0.0, high - position - length);
}
} // namespace

class MPannableViewportPrivate
{
public:
    explicit MPannableViewportPrivate(MPannableViewport *owner)
        : q(owner), pane(new QGraphicsWidget(owner)),
          layout(new PaneLayout(pane, [owner] { owner->updateExtent(); })),
          indicator(new MPositionIndicator(owner)), gesture(owner), focusFollower(owner)
    {
        pane->setFlag(QGraphicsItem::ItemHasNoContents);
        grabCheck.setSingleShot(true);
        QObject::connect(&grabCheck, &QTimer::timeout, owner, [this] { abandonIfUngrabbed(); });
    }

    QSizeF widgetSize() const;
    void show(const QPointF &position);
    bool pan(const PanStep &step);
    void abandonIfUngrabbed();

    MPannableViewport *q;
    /// Moves instead of the widget, which so keeps its geometry.
    QGraphicsWidget *pane;
    PaneLayout *layout;
    MPositionIndicator *indicator;
    QGraphicsWidget *widget() const { return layout->widget(); }
    MPhysics2DPanning *physics = nullptr;
    PanGesture gesture;
    /// A turn of the event loop later.
    QTimer grabCheck;
    MPannableViewport::PanningPolicy verticalPolicy = MPannableViewport::PanningAlwaysOn;
    MPannableViewport::PanningPolicy horizontalPolicy = MPannableViewport::PanningAlwaysOff;
    bool isUpdatingExtent = false;
    bool isExtentOutdated = false;
    FocusFollower focusFollower;
    QPointer<QWidget> watchedWidget;
};

QSizeF MPannableViewportPrivate::widgetSize() const
{
    const QSizeF room = q->size();
    qreal width = room.width();
    if (horizontalPolicy != MPannableViewport::PanningAlwaysOff)
        width = qMax(width, widget()->effectiveSizeHint(Qt::PreferredSize).width());
    const QSizeF wanted = widget()->effectiveSizeHint(Qt::PreferredSize, QSizeF(width, -1));
    const qreal highest = widget()->effectiveSizeHint(Qt::MaximumSize).height();
    return {width, qMin(qMax(wanted.height(), room.height()), qMax(wanted.height(), highest))};
}

void MPannableViewportPrivate::show(const QPointF &position)
{
    // Between pixels, every text would be drawn anew and blurred.
    pane->setPos(-QPointF(qRound(position.x()), qRound(position.y())));
    indicator->setExtent(physics->range(), position);
    Q_EMIT q->positionChanged(position);
}

/// Answers whether anything moved.
bool MPannableViewportPrivate::pan(const PanStep &step)
{
    if (step.way.isNull())
        return false;
    return step.isExact ? physics->moveBy(step.way) : physics->glideBy(step.way);
}

void MPannableViewportPrivate::abandonIfUngrabbed()
{
    const QGraphicsItem *grabber = q->scene() ? q->scene()->mouseGrabberItem() : nullptr;
    const bool isOurs = grabber && (grabber == q || q->isAncestorOf(grabber));
    if (gesture.isFollowing() && !isOurs)
        gesture.abandon();
}

MPannableViewport::MPannableViewport(QGraphicsItem *parent)
    : MStylableWidget(parent), d(std::make_unique<MPannableViewportPrivate>(this))
{
    setFlag(ItemClipsChildrenToShape);
    setFiltersChildEvents(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setPhysics(new MPhysics2DPanning(this));
}

MPannableViewport::~MPannableViewport()
{
    d->focusFollower.setScene(nullptr);
    // The pane's layout calls back into the private part.
    delete d->pane;
}

void MPannableViewport::setWidget(QGraphicsWidget *widget)
{
    if (widget == d->widget())
        return;
    delete d->widget();
    d->physics->stop();
    d->layout->setWidget(widget);
    if (widget)
        widget->setPos(0, 0);
    updateExtent();
    setPosition(d->physics->range().topLeft());
}

QGraphicsWidget *MPannableViewport::widget() const
{
    return d->widget();
}

MPhysics2DPanning *MPannableViewport::physics() const
{
    return d->physics;
}

void MPannableViewport::setPhysics(MPhysics2DPanning *physics)
{
    Q_ASSERT(physics);
    if (physics == d->physics)
        return;
    if (d->physics) {
        d->physics->stop();
        physics->setRange(d->physics->range());
        physics->setPosition(d->physics->position());
        delete d->physics;
    }
    d->physics = physics;
    physics->setParent(this);
    physics->setDirections(pannableDirections());
    connect(physics, &MPhysics2DPanning::positionChanged, this,
            [this](const QPointF &position) { d->show(position); });
    connect(physics, &MPhysics2DPanning::panningStarted, this, &MPannableViewport::panningStarted);
    connect(physics, &MPhysics2DPanning::panningStopped, this, &MPannableViewport::panningStopped);
}

QPointF MPannableViewport::position() const
{
    return d->physics->position();
}

void MPannableViewport::setPosition(const QPointF &position)
{
    d->physics->setPosition(position);
}

void MPannableViewport::ensureVisible(const QRectF &area)
{
    const QPointF from = position();
    const QPointF way(wayToShow(from.x(), size().width(), area.left(), area.right()),
                      wayToShow(from.y(), size().height(), area.top(), area.bottom()));
    if (way.isNull())
        return;
    d->physics->stop();
    setPosition(from + way);
}

MPannableViewport::PanningPolicy MPannableViewport::verticalPanningPolicy() const
{
    return d->verticalPolicy;
}

void MPannableViewport::setVerticalPanningPolicy(PanningPolicy policy)
{
    d->verticalPolicy = policy;
    updateExtent();
}

MPannableViewport::PanningPolicy MPannableViewport::horizontalPanningPolicy() const
{
    return d->horizontalPolicy;
}

void MPannableViewport::setHorizontalPanningPolicy(PanningPolicy policy)
{
    d->horizontalPolicy = policy;
    updateExtent();
}

Qt::Orientations MPannableViewport::pannableDirections() const
{
    const QRectF range = d->physics->range();
    const auto isPannable = [](PanningPolicy policy, qreal room) {
        return policy == PanningAlwaysOn || (policy == PanningAsNeeded && room > 0);
    };
    Qt::Orientations directions;
    directions.setFlag(Qt::Vertical, isPannable(d->verticalPolicy, range.height()));
    directions.setFlag(Qt::Horizontal, isPannable(d->horizontalPolicy, range.width()));
    return directions;
}

MPositionIndicator *MPannableViewport::positionIndicator() const
{
    return d->indicator;
}

void MPannableViewport::updateExtent()
{
    const QSizeF wanted = d->widget() ? d->widgetSize() : size();
    const QRectF range(QPointF(), (wanted - size()).expandedTo(QSizeF(0, 0)));
    d->physics->setRange(d->physics->range() | range);
    // Asked for by the widget, which is being told of its geometry: that has to come first.
    if (d->isUpdatingExtent) {
        d->isExtentOutdated = true;
        return;
    }
    const QScopedValueRollback<bool> guard(d->isUpdatingExtent, true);
    d->isExtentOutdated = false;
    if (d->widget())
        d->widget()->setGeometry(QRectF(QPointF(), wanted));
    if (d->isExtentOutdated)
        QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
    else
        d->physics->setRange(range);
    d->physics->setDirections(pannableDirections());
    d->indicator->setExtent(d->physics->range(), position());
    // Content without a place for the keyboard's focus is panned from the viewport itself.
    const bool isTabStop = d->widget() && !hasTabStop(d->widget()) && pannableDirections();
    setFocusPolicy(isTabStop ? Qt::TabFocus : Qt::NoFocus);
}

bool MPannableViewport::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        updateExtent();
    return MStylableWidget::event(event);
}

void MPannableViewport::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                              QWidget *widget)
{
    if (widget && widget != d->watchedWidget) {
        d->watchedWidget = widget;
        WheelWatcher::watch(widget);
    }
    MStylableWidget::paint(painter, option, widget);
}

bool MPannableViewport::sceneEventFilter(QGraphicsItem *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::GraphicsSceneMousePress:
    case QEvent::GraphicsSceneMouseDoubleClick:
    case QEvent::GraphicsSceneMouseMove:
    case QEvent::GraphicsSceneMouseRelease:
        return d->gesture.filter(static_cast<QGraphicsSceneMouseEvent *>(event));
    case QEvent::UngrabMouse:
        // Also between two items to which a press is offered: later it is known who has it.
        if (d->gesture.isFollowing())
            d->grabCheck.start();
        return false;
    case QEvent::KeyPress:
    case QEvent::InputMethod:
        d->focusFollower.expectCursor();
        return false;
    default:
        return false;
    }
}

void MPannableViewport::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    d->gesture.filter(event);
    event->setAccepted(event->button() == Qt::LeftButton && pannableDirections());
}

void MPannableViewport::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    d->gesture.filter(event);
}

void MPannableViewport::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    d->gesture.filter(event);
}

void MPannableViewport::ungrabMouseEvent(QEvent *event)
{
    if (d->gesture.isFollowing())
        d->gesture.abandon();
    MStylableWidget::ungrabMouseEvent(event);
}

void MPannableViewport::wheelEvent(QGraphicsSceneWheelEvent *event)
{
    const PanStep step = PanStep::ofWheel(*event, style()->panStep(), pannableDirections());
    event->setAccepted(d->pan(step));
}

void MPannableViewport::keyPressEvent(QKeyEvent *event)
{
    const PanStep step = PanStep::ofKey(*event, style()->panStep(), size());
    event->setAccepted(d->pan(step.within(pannableDirections())));
    if (!event->isAccepted())
        MStylableWidget::keyPressEvent(event);
}

void MPannableViewport::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    MStylableWidget::resizeEvent(event);
    d->indicator->setGeometry(rect());
    updateExtent();
    // What is being written in stays in view when an on-screen keyboard takes its room.
    d->focusFollower.follow();
}

QVariant MPannableViewport::itemChange(GraphicsItemChange change, const QVariant &value)
{
    if (change == ItemSceneHasChanged)
        d->focusFollower.setScene(scene());
    return MStylableWidget::itemChange(change, value);
}

QSizeF MPannableViewport::sizeHint(Qt::SizeHint which, const QSizeF &) const
{
    const QSizeF none =
        which == Qt::MaximumSize ? QSizeF(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : QSizeF(0, 0);
    const QSizeF styled = style()->sizeHint(which);
    return {styled.width() >= 0 ? styled.width() : none.width(),
            styled.height() >= 0 ? styled.height() : none.height()};
}
