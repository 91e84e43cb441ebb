// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_ICONPAINTER_H
#define TOUCHCORE_ICONPAINTER_H

#include <touchcore/mscalableimage.h>

#include <QColor>
#include <QRectF>

class QPainter;

/// The rectangle of \a size in the middle of \a room, on whole pixels.
QRectF centered(const QSizeF &size, const QRectF &room);

/// Draws a picture, turned round when \a isMirrored.
void drawIcon(QPainter *painter, const MScalableImage &image, const QRectF &rect,
              const QColor &tint, bool isMirrored);

#endif
