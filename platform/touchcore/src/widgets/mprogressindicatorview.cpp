// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "placing.h"

#include <touchcore/mprogressindicator.h>
#include <touchcore/mtheme.h>
#include <touchcore/mviewfactory.h>

#include <QBasicTimer>
#include <QPainter>
#include <QTimerEvent>

#include <cmath>

M_REGISTER_VIEW(MProgressIndicatorView, MProgressIndicator)
M_REGISTER_VIEW(MProgressSpinnerView, MProgressIndicator)

namespace
{
/// Thirty frames in a second look smooth on something this small, and cost half of sixty.
const int frameTime = 33;
/// The part of the bar, or of the ring, that moves.
const qreal movingPart = 0.3;
/// The angles of QPainter.
const int wholeRound = 360 * 16;
const int top = 90 * 16;
} // namespace

class MProgressIndicatorViewPrivate
{
public:
    QBasicTimer timer;
    qreal phase = 0.3; ///< something is to be seen from the first frame on
};

MProgressIndicatorView::MProgressIndicatorView(MProgressIndicator *indicator)
    : MWidgetView(indicator), d(std::make_unique<MProgressIndicatorViewPrivate>())
{
    connect(indicator, &MWidget::displayEntered, this, [this] { startOrStop(); });
    connect(indicator, &MWidget::displayExited, this, [this] { startOrStop(); });
}

MProgressIndicatorView::~MProgressIndicatorView() = default;

MProgressIndicator *MProgressIndicatorView::indicator() const
{
    return static_cast<MProgressIndicator *>(controller());
}

bool MProgressIndicatorView::isMoving() const
{
    return d->timer.isActive();
}

qreal MProgressIndicatorView::phase() const
{
    return d->phase;
}

QColor MProgressIndicatorView::fadedColor() const
{
    QColor color = style()->color();
    color.setAlphaF(color.alphaF() * (0.6 + 0.4 * std::cos(2 * M_PI * d->phase)));
    return color;
}

void MProgressIndicatorView::startOrStop()
{
    if (!indicator()->isUnknownDuration() || !indicator()->isOnDisplay())
        d->timer.stop();
    else if (!d->timer.isActive())
        d->timer.start(frameTime, this);
}

void MProgressIndicatorView::updateData(const QList<const char *> &modifications)
{
    startOrStop();
    MWidgetView::updateData(modifications);
}

void MProgressIndicatorView::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != d->timer.timerId())
        return;
    d->phase = std::fmod(d->phase + qreal(frameTime) / qMax(1, style()->period()), 1.0);
    controller()->update();
}

void MProgressIndicatorView::drawContents(QPainter *painter) const
{
    QRectF track = contentsRect();
    const qreal thickness = style()->thickness();
    track.setTop(qRound(track.center().y() - thickness / 2));
    track.setHeight(thickness);
    QRectF done = track;
    QColor color = style()->color();
    const bool isUnknown = indicator()->isUnknownDuration();
    if (isUnknown && MTheme::instance()->isMotionReduced()) {
        color = fadedColor();
    } else if (isUnknown) {
        // It comes in at one end and leaves at the other.
        const qreal start = (1 + movingPart) * d->phase - movingPart;
        done.setLeft(track.left() + track.width() * qMax(0.0, start));
        done.setRight(track.left() + track.width() * qMin(1.0, start + movingPart));
    } else {
        done.setWidth(track.width() * indicator()->fraction());
    }
    if (controller()->layoutDirection() == Qt::RightToLeft)
        done.moveLeft(track.left() + track.right() - done.right());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(style()->trackColor());
    painter->drawRoundedRect(track, thickness / 2, thickness / 2);
    painter->setBrush(color);
    painter->drawRoundedRect(done, thickness / 2, thickness / 2);
    painter->restore();
}

QSizeF MProgressIndicatorView::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    const QSizeF styled = MWidgetView::sizeHint(which, constraint);
    if (which != Qt::MinimumSize && which != Qt::PreferredSize)
        return styled;
    const QMarginsF around = style()->margins() + style()->paddings();
    return {qMax(styled.width(), around.left() + around.right()),
            qMax(styled.height(), style()->thickness() + around.top() + around.bottom())};
}

MProgressSpinnerView::MProgressSpinnerView(MProgressIndicator *indicator)
    : MProgressIndicatorView(indicator)
{
}

void MProgressSpinnerView::drawContents(QPainter *painter) const
{
    const qreal thickness = style()->thickness();
    const qreal size = style()->spinnerSize() - thickness;
    const QRectF ring = centered({size, size}, contentsRect());
    const bool isUnknown = indicator()->isUnknownDuration();
    const bool isStill = isUnknown && MTheme::instance()->isMotionReduced();
    int start = top;
    int length = -qRound(wholeRound * indicator()->fraction());
    if (isStill) {
        length = -wholeRound;
    } else if (isUnknown) {
        start = top - qRound(wholeRound * phase());
        length = -qRound(wholeRound * movingPart);
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(style()->trackColor(), thickness));
    painter->drawEllipse(ring);
    painter->setPen(
        QPen(isStill ? fadedColor() : style()->color(), thickness, Qt::SolidLine, Qt::RoundCap));
    if (length != 0)
        painter->drawArc(ring, start, length);
    painter->restore();
}

QSizeF MProgressSpinnerView::sizeHint(Qt::SizeHint which, const QSizeF &) const
{
    const QMarginsF around = style()->margins() + style()->paddings();
    const qreal size = style()->spinnerSize();
    return which == Qt::MaximumSize
        ? style()->sizeHint(which)
        : QSizeF(size + around.left() + around.right(), size + around.top() + around.bottom());
}
