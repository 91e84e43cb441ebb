// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MLABELSTYLE_H
#define TOUCHCORE_MLABELSTYLE_H

#include <touchcore/mwidgetstyle.h>

#include <QFont>

/// How a label writes.
class MLabelStyle : public MWidgetStyle
{
    Q_OBJECT
    M_STYLE_ATTRIBUTE(QFont, font, setFont)
    M_STYLE_ATTRIBUTE(QColor, color, setColor, Qt::black)
    /// Of the links in rich text.
    M_STYLE_ATTRIBUTE(QColor, linkColor, setLinkColor, Qt::blue)
    /// From one line to the next, in pixels at text scale 1; 0 goes by the font.
    M_STYLE_ATTRIBUTE(int, lineHeight, setLineHeight, 0)
};

#endif
