// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <QPainter>
#include <QPainterPath>

#include <touchcore/mwidgetstyle.h>

namespace
{
QMarginsF mirrored(const QMarginsF &margins, Qt::LayoutDirection direction)
{
    return direction == Qt::LeftToRight
        ? margins
        : QMarginsF(margins.right(), margins.top(), margins.left(), margins.bottom());
}

/// A few translucent outlines that fade with the distance: soft, and without a blurred bitmap.
void drawShadow(QPainter *painter, const QRectF &frame, qreal radius, int width)
{
    const QColor shade(0, 0, 0, qMax(1, 60 / width));
    painter->setBrush(shade);
    for (int distance = width; distance > 0; --distance) {
        const QRectF ring = frame.adjusted(-distance, -distance, distance, distance);
        painter->drawRoundedRect(ring.translated(0, distance / 4.0), radius + distance,
                                 radius + distance);
    }
}
} // namespace

QMarginsF MWidgetStyle::margins(Qt::LayoutDirection direction) const
{
    return mirrored(QMarginsF(marginLeft(), marginTop(), marginRight(), marginBottom()), direction);
}

QMarginsF MWidgetStyle::paddings(Qt::LayoutDirection direction) const
{
    return mirrored(QMarginsF(paddingLeft(), paddingTop(), paddingRight(), paddingBottom()),
                    direction);
}

void MWidgetStyle::drawBackground(QPainter *painter, const QRectF &rect,
                                  Qt::LayoutDirection direction) const
{
    const QRectF frame = rect.marginsRemoved(margins(direction));
    const bool hasBorder = borderWidth() > 0 && borderColor().isValid();
    if (cornerRadius() == 0 && shadow() == 0 && !hasBorder) {
        if (backgroundColor().isValid())
            painter->fillRect(frame, backgroundColor());
        backgroundImage().draw(frame, painter);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    if (shadow() > 0)
        drawShadow(painter, frame, cornerRadius(), shadow());
    const qreal inset = hasBorder ? borderWidth() / 2.0 : 0;
    painter->setPen(hasBorder ? QPen(borderColor(), borderWidth()) : QPen(Qt::NoPen));
    painter->setBrush(backgroundColor().isValid() ? QBrush(backgroundColor()) : QBrush());
    painter->drawRoundedRect(frame.adjusted(inset, inset, -inset, -inset), cornerRadius(),
                             cornerRadius());
    if (!backgroundImage().isNull()) {
        QPainterPath outline;
        outline.addRoundedRect(frame, cornerRadius(), cornerRadius());
        painter->setClipPath(outline, Qt::IntersectClip);
        backgroundImage().draw(frame, painter);
    }
    painter->restore();
}

QSizeF MWidgetStyle::sizeHint(Qt::SizeHint which) const
{
    switch (which) {
    case Qt::MinimumSize:
        return minimumSize();
    case Qt::PreferredSize:
        return preferredSize();
    case Qt::MaximumSize:
        return maximumSize();
    default:
        return {-1, -1};
    }
}
