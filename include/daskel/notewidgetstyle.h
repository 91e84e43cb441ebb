// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTEWIDGETSTYLE_H
#define DASKEL_NOTEWIDGETSTYLE_H

#include <touchcore/mscalableimage.h>
#include <touchcore/mwidgetstyle.h>

#include <QColor>
#include <QFont>
#include <QSizeF>
#include <QString>

/// How a note is drawn: the stripe in its notebook's colour, its marks and its texts.
class NoteWidgetStyle : public MWidgetStyle
{
    Q_OBJECT
    /// From one mark to the next, and from the texts to the first.
    M_STYLE_ATTRIBUTE(int, indicatorsPaddingRight, setIndicatorsPaddingRight, 4)
    M_STYLE_ATTRIBUTE(int, stripeWidth, setStripeWidth, 4)
    M_STYLE_ATTRIBUTE(int, stripeLeftMargin, setStripeLeftMargin, 8)
    M_STYLE_ATTRIBUTE(int, stripeRightMargin, setStripeRightMargin, 12)
    M_STYLE_ATTRIBUTE(int, stripeTopMargin, setStripeTopMargin, 0)
    M_STYLE_ATTRIBUTE(int, stripeBottomMargin, setStripeBottomMargin, 0)
    // The marks; one without a picture is not shown.
    M_STYLE_ATTRIBUTE(MScalableImage, alarmImage, setAlarmImage)
    M_STYLE_ATTRIBUTE(MScalableImage, repeatImage, setRepeatImage)
    M_STYLE_ATTRIBUTE(MScalableImage, invitationImage, setInvitationImage)
    M_STYLE_ATTRIBUTE(MScalableImage, readOnlyImage, setReadOnlyImage)
    /// The shape of the stripe; none is a plain bar.
    M_STYLE_ATTRIBUTE(MScalableImage, stripeMaskImage, setStripeMaskImage)
    /// The shape of the stripe of a tentative note; none is a plain bar.
    M_STYLE_ATTRIBUTE(MScalableImage, stripeMaskImageAlt, setStripeMaskImageAlt)
    /// Of each mark.
    M_STYLE_ATTRIBUTE(QSizeF, alarmImageSize, setAlarmImageSize, 16, 16)
    M_STYLE_ATTRIBUTE(int, alarmImageMarginTop, setAlarmImageMarginTop, 18)
    M_STYLE_ATTRIBUTE(int, alarmImageMarginRight, setAlarmImageMarginRight, 16)
    /// Whether the frame of the style is drawn at all.
    M_STYLE_ATTRIBUTE(bool, backgroundDraw, setBackgroundDraw, true)
    M_STYLE_ATTRIBUTE(QFont, titleFont, setTitleFont)
    M_STYLE_ATTRIBUTE(QFont, timeFont, setTimeFont)
    M_STYLE_ATTRIBUTE(QFont, locationFont, setLocationFont)
    M_STYLE_ATTRIBUTE(QColor, titleColor, setTitleColor, Qt::black)
    M_STYLE_ATTRIBUTE(QColor, timeColor, setTimeColor, Qt::black)
    M_STYLE_ATTRIBUTE(QColor, locationColor, setLocationColor, Qt::darkGray)
    /// Of the marks at the far end.
    M_STYLE_ATTRIBUTE(QColor, markColor, setMarkColor, Qt::darkGray)
};

/// How a note is drawn as a row of a list.
class NoteWidgetListItemStyle : public NoteWidgetStyle
{
    Q_OBJECT
    // The styles of its labels.
    M_STYLE_ATTRIBUTE(QString, titleStyleName, setTitleStyleName,
                      QStringLiteral("NoteListItemTitle"))
    /// The title of a to-do that is done, and of a cancelled event.
    M_STYLE_ATTRIBUTE(QString, doneTitleStyleName, setDoneTitleStyleName,
                      QStringLiteral("NoteListItemTitleDone"))
    M_STYLE_ATTRIBUTE(QString, tentativeTitleStyleName, setTentativeTitleStyleName,
                      QStringLiteral("NoteListItemTitleTentative"))
    /// The place.
    M_STYLE_ATTRIBUTE(QString, subtitleStyleName, setSubtitleStyleName,
                      QStringLiteral("NoteListItemPlace"))
    /// The first line of the times.
    M_STYLE_ATTRIBUTE(QString, subTextStyleName, setSubTextStyleName,
                      QStringLiteral("NoteListItemTime"))
    /// The second line of the times: the end.
    M_STYLE_ATTRIBUTE(QString, endStyleName, setEndStyleName, QStringLiteral("NoteListItemEnd"))
    /// Both lines of the times of a to-do that is overdue.
    M_STYLE_ATTRIBUTE(QString, overdueStyleName, setOverdueStyleName,
                      QStringLiteral("NoteListItemTimeOverdue"))
    /// At least; a clock of 12 hours takes more.
    M_STYLE_ATTRIBUTE(int, timeColumnWidth, setTimeColumnWidth, 64)
};

#endif
