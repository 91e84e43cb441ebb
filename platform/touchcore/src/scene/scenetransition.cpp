// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scenetransition.h"

#include "mscenewindow_p.h"
#include "scenedim.h"

#include <touchcore/mtheme.h>

namespace
{
const qreal grownFrom = 0.96;

/// Where the window comes from, as seen from its place.
QPointF entryOffset(MSceneWindow::Motion motion, const QGraphicsWidget *window, const QSizeF &area)
{
    if (motion == MSceneWindow::SlideMotion) {
        const bool isMirrored = window->layoutDirection() == Qt::RightToLeft;
        return {isMirrored ? -area.width() : area.width(), 0};
    }
    return {0, area.height() - window->y()};
}
} // namespace

SceneTransition::SceneTransition(MSceneWindow *window, bool isEntering)
    : QVariantAnimation(window), m_window(window)
{
    const qreal target = isEntering ? 1 : 0;
    const qreal progress = window->d->progress;
    const int full =
        isEntering ? window->style()->appearDuration() : window->style()->disappearDuration();
    setDuration(qRound(full * qAbs(target - progress)));
    setEasingCurve(QEasingCurve::OutCubic);
    setStartValue(progress);
    setEndValue(target);
}

void SceneTransition::updateCurrentValue(const QVariant &value)
{
    if (state() == Running)
        showProgress(m_window, value.toReal());
}

void SceneTransition::showProgress(MSceneWindow *window, qreal progress)
{
    window->d->progress = progress;
    if (window->d->dim)
        window->d->dim->setOpacity(progress);
    const QSizeF area = window->sceneManager()->visibleSize();
    const QPointF place = window->place(area).topLeft();
    window->setPos(place);
    const MSceneWindow::Motion motion = window->motion();
    const bool isStill = MTheme::instance()->isMotionReduced();
    if (!isStill && (motion == MSceneWindow::SlideMotion || motion == MSceneWindow::RiseMotion)) {
        window->setOpacity(1);
        window->setPos(place + (entryOffset(motion, window, area) * (1 - progress)).toPoint());
        return;
    }
    window->setOpacity(progress);
    window->setTransformOriginPoint(window->rect().center());
    window->setScale(motion == MSceneWindow::GrowMotion && !isStill
                         ? grownFrom + (1 - grownFrom) * progress
                         : 1);
}
