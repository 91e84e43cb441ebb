// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "iconpainter.h"

#include <QPainter>

QRectF centered(const QSizeF &size, const QRectF &room)
{
    const QPointF corner(room.x() + (room.width() - size.width()) / 2,
                         room.y() + (room.height() - size.height()) / 2);
    return {QPointF(qRound(corner.x()), qRound(corner.y())), size};
}

void drawIcon(QPainter *painter, const MScalableImage &image, const QRectF &rect,
              const QColor &tint, bool isMirrored)
{
    if (!isMirrored) {
        image.draw(rect, painter, tint);
        return;
    }
    const QTransform unmirrored = painter->transform();
    painter->translate(2 * rect.center().x(), 0);
    painter->scale(-1, 1);
    image.draw(rect, painter, tint);
    painter->setTransform(unmirrored);
}
