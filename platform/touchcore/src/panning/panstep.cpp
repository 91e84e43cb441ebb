// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "panstep.h"

#include "wheelwatcher.h"

#include <QGraphicsSceneWheelEvent>
#include <QKeyEvent>
#include <QWidget>

namespace
{
const qreal degreesPerNotch = 15;
const qreal unitsPerDegree = 8;
/// Further than any content, which ends before.
const qreal allTheWay = QWIDGETSIZE_MAX;
} // namespace

PanStep PanStep::ofKey(const QKeyEvent &event, qreal step, const QSizeF &view)
{
    const qreal page = qMax(step, view.height() - step);
    switch (event.key()) {
    case Qt::Key_Up:
        return {QPointF(0, -step)};
    case Qt::Key_Down:
        return {QPointF(0, step)};
    case Qt::Key_Left:
        return {QPointF(-step, 0)};
    case Qt::Key_Right:
        return {QPointF(step, 0)};
    case Qt::Key_PageUp:
        return {QPointF(0, -page)};
    case Qt::Key_PageDown:
        return {QPointF(0, page)};
    case Qt::Key_Home:
        return {QPointF(0, -allTheWay)};
    case Qt::Key_End:
        return {QPointF(0, allTheWay)};
    default:
        return {};
    }
}

PanStep PanStep::ofWheel(const QGraphicsSceneWheelEvent &event, qreal step,
                         Qt::Orientations directions)
{
    const QPointF pixels = WheelWatcher::pixelDelta();
    if (!pixels.isNull())
        return PanStep{-pixels, true}.within(directions);
    const qreal distance = -event.delta() / unitsPerDegree / degreesPerNotch * step;
    const bool isSideways = event.orientation() == Qt::Horizontal || !(directions & Qt::Vertical);
    return PanStep{isSideways ? QPointF(distance, 0) : QPointF(0, distance)}.within(directions);
}

PanStep PanStep::within(Qt::Orientations directions) const
{
    return {
        QPointF(directions & Qt::Horizontal ? way.x() : 0, directions & Qt::Vertical ? way.y() : 0),
        isExact};
}
