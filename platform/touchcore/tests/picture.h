// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_TESTS_PICTURE_H
#define TOUCHCORE_TESTS_PICTURE_H

#include <QGraphicsScene>
#include <QGraphicsWidget>
#include <QImage>
#include <QPainter>

/// What a widget of a scene looks like on white, at a scale factor.
inline QImage pictureOf(const QGraphicsWidget *widget, qreal scale = 1)
{
    const QRectF area = widget->mapRectToScene(widget->rect());
    QImage image((area.size() * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    widget->scene()->render(&painter, QRectF(QPointF(), area.size()), area);
    return image;
}

/// The pixels that are not white.
inline QRect inkOf(const QImage &image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != QColor(Qt::white).rgb())
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

/// How many pixels have exactly this colour.
inline int pixelsOf(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == color.rgb();
    }
    return count;
}

#endif
