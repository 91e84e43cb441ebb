// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MPANNABLEVIEWPORTSTYLE_H
#define TOUCHCORE_MPANNABLEVIEWPORTSTYLE_H

#include <touchcore/mwidgetstyle.h>

/// How a viewport looks and how far one step pans. Pixels at scale 1.
class MPannableViewportStyle : public MWidgetStyle
{
    Q_OBJECT
    /// What one notch of a wheel or one arrow key pans.
    M_STYLE_ATTRIBUTE(int, panStep, setPanStep, 56)
};

#endif
