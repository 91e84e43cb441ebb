// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_NINEPATCH_H
#define TOUCHCORE_NINEPATCH_H

#include <QMarginsF>

class QImage;
class QPainter;
class QRectF;

enum class NinePatchMiddle { Drawn, LeftOut };

/// Fills \a rect with \a image: its borders keep their size, the rest stretches. \a borders are in
/// logical pixels, of which the image has \a scale in one. Borders that do not fit shrink.
void drawNinePatch(QPainter *painter, const QRectF &rect, const QImage &image,
                   const QMarginsF &borders, qreal scale,
                   NinePatchMiddle middle = NinePatchMiddle::Drawn);

#endif
