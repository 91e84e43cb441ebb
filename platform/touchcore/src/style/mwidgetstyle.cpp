// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "softshadow.h"

#include <touchcore/mwidgetstyle.h>

#include <QPainter>
#include <QPainterPath>

namespace
{
QMarginsF mirrored(const QMarginsF &margins, Qt::LayoutDirection direction)
{
    return direction == Qt::LeftToRight
        ? margins
        : QMarginsF(margins.right(), margins.top(), margins.left(), margins.bottom());
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
        backgroundImage().draw(frame, painter, QColor(), direction);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    if (shadow() > 0)
        drawSoftShadow(painter, frame, cornerRadius(), shadow(), shadowColor());
    const qreal inset = hasBorder ? borderWidth() / 2.0 : 0;
    painter->setPen(hasBorder ? QPen(borderColor(), borderWidth()) : QPen(Qt::NoPen));
    painter->setBrush(backgroundColor().isValid() ? QBrush(backgroundColor()) : QBrush());
    painter->drawRoundedRect(frame.adjusted(inset, inset, -inset, -inset), cornerRadius(),
                             cornerRadius());
    if (!backgroundImage().isNull()) {
        QPainterPath outline;
        outline.addRoundedRect(frame, cornerRadius(), cornerRadius());
        painter->setClipPath(outline, Qt::IntersectClip);
        backgroundImage().draw(frame, painter, QColor(), direction);
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
