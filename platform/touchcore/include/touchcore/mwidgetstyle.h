// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MWIDGETSTYLE_H
#define TOUCHCORE_MWIDGETSTYLE_H

#include <touchcore/mscalableimage.h>
#include <touchcore/mstyle.h>

#include <QColor>
#include <QSizeF>

class QPainter;
class QRectF;

/// What every widget's style has: the room around it, its size and its frame. Pixels at scale 1.
///
/// A margin lies outside the frame, a padding between frame and contents. Left and right are those
/// of a left-to-right layout and change sides with it.
class MWidgetStyle : public MStyle
{
    Q_OBJECT
    M_STYLE_ATTRIBUTE(int, marginLeft, setMarginLeft, 0)
    M_STYLE_ATTRIBUTE(int, marginTop, setMarginTop, 0)
    M_STYLE_ATTRIBUTE(int, marginRight, setMarginRight, 0)
    M_STYLE_ATTRIBUTE(int, marginBottom, setMarginBottom, 0)
    M_STYLE_ATTRIBUTE(int, paddingLeft, setPaddingLeft, 0)
    M_STYLE_ATTRIBUTE(int, paddingTop, setPaddingTop, 0)
    M_STYLE_ATTRIBUTE(int, paddingRight, setPaddingRight, 0)
    M_STYLE_ATTRIBUTE(int, paddingBottom, setPaddingBottom, 0)
    /// A side below 0 is not set: the contents decide.
    M_STYLE_ATTRIBUTE(QSizeF, preferredSize, setPreferredSize, -1, -1)
    M_STYLE_ATTRIBUTE(QSizeF, minimumSize, setMinimumSize, -1, -1)
    M_STYLE_ATTRIBUTE(QSizeF, maximumSize, setMaximumSize, -1, -1)
    M_STYLE_ATTRIBUTE(QColor, backgroundColor, setBackgroundColor)
    M_STYLE_ATTRIBUTE(MScalableImage, backgroundImage, setBackgroundImage)
    M_STYLE_ATTRIBUTE(int, cornerRadius, setCornerRadius, 0)
    M_STYLE_ATTRIBUTE(QColor, borderColor, setBorderColor)
    M_STYLE_ATTRIBUTE(int, borderWidth, setBorderWidth, 0)
    /// Width of the soft shadow around the frame; it is drawn outside the widget's rectangle.
    M_STYLE_ATTRIBUTE(int, shadow, setShadow, 0)
    M_STYLE_ATTRIBUTE(QColor, shadowColor, setShadowColor, 0, 0, 0, 80)
    /// Where the focus ring runs: outside the frame, or below 0 inside it.
    M_STYLE_ATTRIBUTE(int, focusOffset, setFocusOffset, 2)

public:
    QMarginsF margins(Qt::LayoutDirection direction = Qt::LeftToRight) const;
    QMarginsF paddings(Qt::LayoutDirection direction = Qt::LeftToRight) const;
    /// Draws the frame of a widget that fills \a rect: shadow, colour, picture, border.
    void drawBackground(QPainter *painter, const QRectF &rect, Qt::LayoutDirection direction) const;
    /// The minimum, preferred or maximum size; sides that are not set are -1.
    QSizeF sizeHint(Qt::SizeHint which) const;
};

#endif
