// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_PAGEHEADERWIDGETSTYLE_H
#define DASKEL_PAGEHEADERWIDGETSTYLE_H

#include <touchcore/mscalableimage.h>
#include <touchcore/mwidgetstyle.h>

#include <QColor>
#include <QString>

/// How page headers look.
class PageHeaderWidgetStyle : public MWidgetStyle
{
    Q_OBJECT
    /// Drawn over the colour.
    M_STYLE_ATTRIBUTE(MScalableImage, image, setImage)
    /// Whether the colour fades towards the page below.
    M_STYLE_ATTRIBUTE(bool, gradient, setGradient, false)
    /// The style name of the title.
    M_STYLE_ATTRIBUTE(QString, labelStyle, setLabelStyle)
    /// Takes the place of the colour that the program set, when it is valid.
    M_STYLE_ATTRIBUTE(QColor, color, setColor)
};

#endif
