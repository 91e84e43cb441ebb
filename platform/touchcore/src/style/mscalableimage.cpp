// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "ninepatch.h"
#include "picture.h"

#include <touchcore/mscalableimage.h>
#include <touchcore/mtheme.h>

#include <QPainter>
#include <QtMath>

namespace
{
/// The place on the device's grid of pixels that is nearest: a picture between two pixels blurs.
QPointF onPixels(const QPointF &point, const QPainter &painter)
{
    const QTransform &toDevice = painter.deviceTransform();
    if (toDevice.type() > QTransform::TxScale || !toDevice.isInvertible())
        return point;
    const QPointF device = toDevice.map(point);
    return toDevice.inverted().map(QPointF(qRound(device.x()), qRound(device.y())));
}
} // namespace

MScalableImage::MScalableImage(const QString &id, const QMargins &borders)
    : m_id(id), m_borders(borders)
{
}

QSizeF MScalableImage::naturalSize() const
{
    return m_id.isEmpty() ? QSizeF() : naturalPictureSize(m_id);
}

void MScalableImage::draw(const QRectF &rect, QPainter *painter, const QColor &tint,
                          Qt::LayoutDirection direction) const
{
    if (m_id.isEmpty() || rect.isEmpty())
        return;
    const qreal scale = painter->device()->devicePixelRatioF();
    const bool isStretched = !m_borders.isNull();
    const QSizeF size = isStretched ? naturalSize() : rect.size();
    PictureKey key{m_id, QSize(qCeil(size.width() * scale), qCeil(size.height() * scale))};
    key.tint = tint.isValid() ? tint.rgba() : 0;
    key.isMirrored = direction == Qt::RightToLeft && MTheme::instance()->isMirrored(m_id);
    const QImage image = picture(key);
    if (image.isNull())
        return;
    if (isStretched) {
        QMarginsF borders = m_borders;
        if (key.isMirrored)
            borders = QMarginsF(borders.right(), borders.top(), borders.left(), borders.bottom());
        drawNinePatch(painter, rect, image, borders, image.width() / size.width());
    } else if (image.size() == key.size) {
        painter->drawImage(QRectF(onPixels(rect.topLeft(), *painter), QSizeF(image.size()) / scale),
                           image);
    } else {
        painter->drawImage(rect, image);
    }
}
