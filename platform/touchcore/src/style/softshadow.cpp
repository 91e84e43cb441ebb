// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "softshadow.h"

#include "ninepatch.h"

#include <QCache>
#include <QImage>
#include <QPainter>
#include <QtMath>

#include <cmath>
#include <tuple>

namespace
{
const int keptShadows = 8;

/// A shadow falls down by a quarter of its width and is blurred over the rest.
qreal fallOf(int width)
{
    return width / 4.0;
}

struct ShadowKey {
    int radius;
    int width;
    QRgb color;
    qreal scale;

    bool operator==(const ShadowKey &other) const
    {
        return std::tie(radius, width, color, scale)
            == std::tie(other.radius, other.width, other.color, other.scale);
    }
};

uint qHash(const ShadowKey &key, uint seed)
{
    return ::qHash(key.radius, seed) ^ ::qHash(key.width * 31, seed) ^ ::qHash(key.color, seed)
        ^ ::qHash(key.scale, seed);
}

/// How far \a point lies outside the rounded square around 0, below 0 inside.
qreal distance(const QPointF &point, qreal halfSide, qreal radius)
{
    const qreal x = qAbs(point.x()) - halfSide + radius;
    const qreal y = qAbs(point.y()) - halfSide + radius;
    return std::hypot(qMax(x, 0.0), qMax(y, 0.0)) + qMin(qMax(x, y), 0.0) - radius;
}

/// From 1 to 0 between -reach and reach, without a kink at either end.
qreal fading(qreal distance, qreal reach)
{
    const qreal t = qBound(0.0, (distance + reach) / (2 * reach), 1.0);
    return 1 - t * t * (3 - 2 * t);
}

qreal cornerOf(const ShadowKey &key)
{
    return key.radius + 2 * key.width;
}

/// The shadow of the smallest frame that shows its corners whole.
QImage make(const ShadowKey &key)
{
    const qreal side = 2 * cornerOf(key) + 1;
    const int pixels = qCeil(side * key.scale);
    const qreal reach = key.width - fallOf(key.width);
    const QPointF middle(side / 2, side / 2 + fallOf(key.width));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < pixels; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < pixels; ++x) {
            const QPointF point = QPointF(x + 0.5, y + 0.5) / key.scale - middle;
            const qreal shade = fading(distance(point, side / 2 - key.width, key.radius), reach);
            line[x] = qPremultiply(qRgba(qRed(key.color), qGreen(key.color), qBlue(key.color),
                                         qRound(qAlpha(key.color) * shade)));
        }
    }
    return image;
}
} // namespace

void drawSoftShadow(QPainter *painter, const QRectF &frame, int radius, int width,
                    const QColor &color)
{
    static QCache<ShadowKey, QImage> kept(keptShadows);
    const ShadowKey key{radius, width, color.rgba(), painter->device()->devicePixelRatioF()};
    if (!kept.contains(key))
        kept.insert(key, new QImage(make(key)));
    const qreal corner = cornerOf(key);
    drawNinePatch(painter, frame.adjusted(-width, -width, width, width), *kept.object(key),
                  {corner, corner, corner, corner}, key.scale, NinePatchMiddle::LeftOut);
}
