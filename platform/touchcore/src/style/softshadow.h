// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_SOFTSHADOW_H
#define TOUCHCORE_SOFTSHADOW_H

class QColor;
class QPainter;
class QRectF;

/// Draws the shadow that \a frame, with corners of \a radius, casts: it ends \a width outside of
/// the frame, a little more of it below. What lies under the frame's middle is left out.
void drawSoftShadow(QPainter *painter, const QRectF &frame, int radius, int width,
                    const QColor &color);

#endif
