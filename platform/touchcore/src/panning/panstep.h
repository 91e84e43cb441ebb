// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_PANSTEP_H
#define TOUCHCORE_PANSTEP_H

#include <QPointF>

class QGraphicsSceneWheelEvent;
class QKeyEvent;
class QSizeF;

/// How far a key or a wheel pans.
struct PanStep {
    QPointF way;
    /// The device tells exactly how far: no glide is needed.
    bool isExact = false;

    /// \a step: pixels of an arrow key. A page key leaves as much in view. Without a way for other
    /// keys.
    static PanStep ofKey(const QKeyEvent &event, qreal step, const QSizeF &view);
    /// \a step: pixels of a notch of the wheel. A plain wheel also pans what can only be panned
    /// sideways.
    static PanStep ofWheel(const QGraphicsSceneWheelEvent &event, qreal step,
                           Qt::Orientations directions);

    /// Without what lies in other directions.
    PanStep within(Qt::Orientations directions) const;
};

#endif
