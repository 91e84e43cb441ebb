// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mpositionindicator.h>

#include <QPainter>
#include <QPropertyAnimation>
#include <QTimer>

class MPositionIndicatorPrivate
{
public:
    explicit MPositionIndicatorPrivate(MPositionIndicator *owner) : fade(owner, "opacity")
    {
        fade.setEndValue(0.0);
        hideTimer.setSingleShot(true);
        QObject::connect(&hideTimer, &QTimer::timeout, owner, [this, owner] {
            fade.setDuration(owner->style()->fadeDuration());
            fade.start();
        });
        QObject::connect(&fade, &QPropertyAnimation::finished, owner, [owner] { owner->hide(); });
    }

    QRectF range;
    QPointF position;
    QTimer hideTimer;
    QPropertyAnimation fade;
};

namespace
{
struct Span {
    qreal start;
    qreal length;
};

/// The part of \a track that stands for what is seen through a window of \a length. Beyond an edge
/// the bar is pressed together against it.
Span barSpan(Span track, qreal length, qreal low, qreal high, qreal position, qreal shortest)
{
    const qreal room = high - low;
    const qreal full = qMax(shortest, track.length * length / (length + room));
    const qreal beyond = qMax(low - position, position - high);
    const qreal bar = qMax(shortest / 2, full - qMax(0.0, beyond));
    const qreal way = (qBound(low, position, high) - low) / room;
    return {track.start + (track.length - bar) * way, bar};
}
} // namespace

MPositionIndicator::MPositionIndicator(QGraphicsItem *parent)
    : MStylableWidget(parent), d(std::make_unique<MPositionIndicatorPrivate>(this))
{
    setAcceptedMouseButtons(Qt::NoButton);
    setZValue(1);
    hide();
}

MPositionIndicator::~MPositionIndicator() = default;

void MPositionIndicator::setExtent(const QRectF &range, const QPointF &position)
{
    const bool hasMoved = position != d->position;
    d->range = range;
    d->position = position;
    update();
    if (!hasMoved)
        return;
    d->fade.stop();
    setOpacity(1);
    show();
    d->hideTimer.start(style()->hideDelay());
}

QRectF MPositionIndicator::barRect(Qt::Orientation orientation) const
{
    const qreal gap = style()->edgeGap();
    const qreal thickness = style()->thickness();
    const QRectF area = rect().adjusted(gap, gap, -gap, -gap);
    const QRectF &range = d->range;
    const qreal shortest = style()->minimumLength();
    if (orientation == Qt::Vertical) {
        if (range.height() <= 0)
            return {};
        const Span bar = barSpan({area.top(), area.height()}, rect().height(), range.top(),
                                 range.bottom(), d->position.y(), shortest);
        const bool isMirrored = layoutDirection() == Qt::RightToLeft;
        const qreal left = isMirrored ? area.left() : area.right() - thickness;
        return {left, bar.start, thickness, bar.length};
    }
    if (range.width() <= 0)
        return {};
    const Span bar = barSpan({area.left(), area.width()}, rect().width(), range.left(),
                             range.right(), d->position.x(), shortest);
    return {bar.start, area.bottom() - thickness, bar.length, thickness};
}

void MPositionIndicator::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(style()->color());
    const qreal radius = style()->thickness() / 2.0;
    painter->drawRoundedRect(barRect(Qt::Vertical), radius, radius);
    painter->drawRoundedRect(barRect(Qt::Horizontal), radius, radius);
}
