// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mslider.h>
#include <touchcore/mviewfactory.h>

#include <QPainter>

M_REGISTER_VIEW(MSliderView, MSlider)

MSliderView::MSliderView(MSlider *slider) : MWidgetView(slider) { }

QRectF MSliderView::track() const
{
    const QRectF room = contentsRect();
    const qreal inset = style()->thumbSize() / 2.0;
    const qreal height = style()->trackHeight();
    return {room.left() + inset, qRound(room.center().y() - height / 2) + 0.0,
            qMax(1.0, room.width() - 2 * inset), height};
}

qreal MSliderView::fractionAt(qreal x) const
{
    const QRectF line = track();
    const qreal fraction = qBound(0.0, (x - line.left()) / line.width(), 1.0);
    return controller()->layoutDirection() == Qt::LeftToRight ? fraction : 1 - fraction;
}

QPointF MSliderView::thumbPosition() const
{
    const auto *slider = static_cast<MSlider *>(controller());
    const double range = double(slider->maximum()) - slider->minimum();
    const double fraction = range > 0 ? (double(slider->value()) - slider->minimum()) / range : 0.0;
    const QRectF line = track();
    const bool isMirrored = slider->layoutDirection() == Qt::RightToLeft;
    return {line.left() + line.width() * (isMirrored ? 1 - fraction : fraction), line.center().y()};
}

void MSliderView::drawContents(QPainter *painter) const
{
    const QRectF line = track();
    const QPointF thumb = thumbPosition();
    QRectF filled = line;
    if (controller()->layoutDirection() == Qt::LeftToRight)
        filled.setRight(thumb.x());
    else
        filled.setLeft(thumb.x());
    const qreal radius = line.height() / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(style()->trackColor());
    painter->drawRoundedRect(line, radius, radius);
    painter->setBrush(style()->filledColor());
    painter->drawRoundedRect(filled, radius, radius);
    if (static_cast<MSlider *>(controller())->model()->down()) {
        painter->setBrush(style()->haloColor());
        painter->drawEllipse(thumb, style()->haloSize() / 2.0, style()->haloSize() / 2.0);
    }
    painter->setBrush(style()->thumbColor());
    painter->drawEllipse(thumb, style()->thumbSize() / 2.0, style()->thumbSize() / 2.0);
    painter->restore();
}

QSizeF MSliderView::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    const QSizeF styled = MWidgetView::sizeHint(which, constraint);
    if (which != Qt::MinimumSize && which != Qt::PreferredSize)
        return styled;
    const QMarginsF around = style()->margins() + style()->paddings();
    const qreal height = qMax(style()->minimumSize().height(),
                              style()->thumbSize() + around.top() + around.bottom());
    const qreal least =
        qMax(style()->minimumSize().width(), style()->thumbSize() + around.left() + around.right());
    return {qMax(styled.width(), least), height};
}
