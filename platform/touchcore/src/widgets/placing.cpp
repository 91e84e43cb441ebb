// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "placing.h"

#include <QtMath>

QRectF centered(const QSizeF &size, const QRectF &room)
{
    const QPointF corner(room.x() + (room.width() - size.width()) / 2,
                         room.y() + (room.height() - size.height()) / 2);
    return {QPointF(qRound(corner.x()), qRound(corner.y())), size};
}
