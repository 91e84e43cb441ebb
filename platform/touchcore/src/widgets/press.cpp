// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "press.h"

#include <QGraphicsWidget>
#include <QKeyEvent>

namespace
{
const qreal reach = 30;
}

bool isWithinReach(const QGraphicsWidget &widget, const QPointF &position)
{
    return widget.rect().adjusted(-reach, -reach, reach, reach).contains(position);
}

bool isTapKey(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Select:
        return true;
    default:
        return false;
    }
}
