// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_PRESS_H
#define TOUCHCORE_PRESS_H

class QGraphicsWidget;
class QKeyEvent;
class QPointF;

/// Whether a finger that was put down on the widget still means it: a finger is thick and rolls, so
/// a little outside counts.
bool isWithinReach(const QGraphicsWidget &widget, const QPointF &position);

/// Whether the key does what a tap does.
bool isTapKey(const QKeyEvent &event);

#endif
