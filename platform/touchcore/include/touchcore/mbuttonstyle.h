// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MBUTTONSTYLE_H
#define TOUCHCORE_MBUTTONSTYLE_H

#include <touchcore/mwidgetstyle.h>

#include <QFont>

/// How a button looks, in all of its views. Lengths are pixels at scale 1.
class MButtonStyle : public MWidgetStyle
{
    Q_OBJECT
    M_STYLE_ATTRIBUTE(QFont, font, setFont)
    M_STYLE_ATTRIBUTE(QColor, color, setColor, Qt::black)
    /// From one line to the next; 0 goes by the font.
    M_STYLE_ATTRIBUTE(int, lineHeight, setLineHeight, 0)
    /// A longer text ends in an ellipsis.
    M_STYLE_ATTRIBUTE(int, maximumLines, setMaximumLines, 1)
    M_STYLE_ATTRIBUTE(QSizeF, iconSize, setIconSize, 24, 24)
    /// Of the picture; invalid takes the colour of the text.
    M_STYLE_ATTRIBUTE(QColor, iconColor, setIconColor)
    /// Between picture, text and mark.
    M_STYLE_ATTRIBUTE(int, spacing, setSpacing, 8)
    /// Laid over the frame while the button is down, whatever its state.
    M_STYLE_ATTRIBUTE(QColor, pressedOverlay, setPressedOverlay)
    /// Of the whole button while it is disabled: 0 to 1.
    M_STYLE_ATTRIBUTE(double, disabledOpacity, setDisabledOpacity, 0.4)
    /// Text and picture stand at the start instead of the middle.
    M_STYLE_ATTRIBUTE(bool, isLeading, setIsLeading, false)
    /// The mark of a switch, check or choice: its size and colours. A switch's is the track with
    /// its thumb.
    M_STYLE_ATTRIBUTE(QSizeF, markSize, setMarkSize, 24, 24)
    M_STYLE_ATTRIBUTE(QColor, markColor, setMarkColor, Qt::black)
    M_STYLE_ATTRIBUTE(QColor, markBackgroundColor, setMarkBackgroundColor)
    M_STYLE_ATTRIBUTE(QColor, markBorderColor, setMarkBorderColor)
    M_STYLE_ATTRIBUTE(int, markBorderWidth, setMarkBorderWidth, 2)
    M_STYLE_ATTRIBUTE(int, markRadius, setMarkRadius, 4)
    M_STYLE_ATTRIBUTE(MScalableImage, markImage, setMarkImage)
    /// How long the thumb of a switch takes to its other side, in milliseconds.
    M_STYLE_ATTRIBUTE(int, switchDuration, setSwitchDuration, 160)
};

#endif
