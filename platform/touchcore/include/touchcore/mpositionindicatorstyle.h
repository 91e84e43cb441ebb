// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MPOSITIONINDICATORSTYLE_H
#define TOUCHCORE_MPOSITIONINDICATORSTYLE_H

#include <touchcore/mwidgetstyle.h>

/// How the bars look that tell where a pan is. Pixels at scale 1, times in milliseconds.
class MPositionIndicatorStyle : public MWidgetStyle
{
    Q_OBJECT
    M_STYLE_ATTRIBUTE(QColor, color, setColor, Qt::gray)
    M_STYLE_ATTRIBUTE(int, thickness, setThickness, 4)
    /// Between a bar and the edge of the viewport along which it runs.
    M_STYLE_ATTRIBUTE(int, edgeGap, setEdgeGap, 2)
    M_STYLE_ATTRIBUTE(int, minimumLength, setMinimumLength, 32)
    /// How long the bars stay after the last movement.
    M_STYLE_ATTRIBUTE(int, hideDelay, setHideDelay, 800)
    M_STYLE_ATTRIBUTE(int, fadeDuration, setFadeDuration, 200)
};

#endif
