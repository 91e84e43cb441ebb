// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "ninepatch.h"

#include <QImage>
#include <QPainter>

namespace
{
/// The four lines that cut a side: its ends and its borders.
struct Cuts {
    Cuts(qreal start, qreal length, qreal before, qreal after)
        : at{start, start + before, start + length - after, start + length}
    {
    }
    qreal at[4];
};

Cuts fitted(qreal start, qreal length, qreal before, qreal after)
{
    const qreal both = before + after;
    const qreal shrink = both > length ? length / both : 1;
    return {start, length, before * shrink, after * shrink};
}

QRectF cell(const Cuts &x, const Cuts &y, int column, int row)
{
    return {QPointF(x.at[column], y.at[row]), QPointF(x.at[column + 1], y.at[row + 1])};
}
} // namespace

void drawNinePatch(QPainter *painter, const QRectF &rect, const QImage &image,
                   const QMarginsF &borders, qreal scale, NinePatchMiddle middle)
{
    const Cuts toX = fitted(rect.x(), rect.width(), borders.left(), borders.right());
    const Cuts toY = fitted(rect.y(), rect.height(), borders.top(), borders.bottom());
    const QMarginsF cut = borders * scale;
    const Cuts fromX(0, image.width(), cut.left(), cut.right());
    const Cuts fromY(0, image.height(), cut.top(), cut.bottom());
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            if (row == 1 && column == 1 && middle == NinePatchMiddle::LeftOut)
                continue;
            const QRectF to = cell(toX, toY, column, row);
            const QRectF from = cell(fromX, fromY, column, row);
            if (!to.isEmpty() && !from.isEmpty())
                painter->drawImage(to, image, from);
        }
    }
}
