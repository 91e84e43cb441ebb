// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MSCENEWINDOWSTYLE_H
#define TOUCHCORE_MSCENEWINDOWSTYLE_H

#include <touchcore/mwidgetstyle.h>

/// How a page, sheet, dialog, menu or banner stands in its window. Lengths are pixels at scale 1.
class MSceneWindowStyle : public MWidgetStyle
{
    Q_OBJECT
    /// What is drawn over all below a sheet, dialog or menu while it is shown.
    M_STYLE_ATTRIBUTE(QColor, dimColor, setDimColor, 0, 0, 0, 112)
    /// The least room to the edges of the window for what does not fill it.
    M_STYLE_ATTRIBUTE(int, edgeDistance, setEdgeDistance, 16)
    /// Of those that need not fill the window; 0 is no limit.
    M_STYLE_ATTRIBUTE(int, maximumWidth, setMaximumWidth, 0)
    /// Between the parts inside.
    M_STYLE_ATTRIBUTE(int, spacing, setSpacing, 16)
    /// How long coming and going take, in milliseconds.
    M_STYLE_ATTRIBUTE(int, appearDuration, setAppearDuration, 200)
    M_STYLE_ATTRIBUTE(int, disappearDuration, setDisappearDuration, 160)
};

/// The bar at the top of pages and sheets.
class MPageHeaderStyle : public MWidgetStyle
{
    Q_OBJECT
    M_STYLE_ATTRIBUTE(int, height, setHeight, 56)
    /// From the edge to the title where no button stands before it.
    M_STYLE_ATTRIBUTE(int, titleDistance, setTitleDistance, 16)
    /// Names of pictures.
    M_STYLE_ATTRIBUTE(QString, backImage, setBackImage, QStringLiteral("back"))
    M_STYLE_ATTRIBUTE(QString, closeImage, setCloseImage, QStringLiteral("close"))
    M_STYLE_ATTRIBUTE(QString, menuImage, setMenuImage, QStringLiteral("menu"))
};

/// How a dialog stands in its window.
class MDialogStyle : public MSceneWindowStyle
{
    Q_OBJECT
    /// From the contents to the buttons.
    M_STYLE_ATTRIBUTE(int, buttonDistance, setButtonDistance, 24)

public:
    MDialogStyle() { setMaximumWidth(400); }
};

/// How a banner stands in its window.
class MBannerStyle : public MSceneWindowStyle
{
    Q_OBJECT
    /// From the lower edge of the window: above what stands there.
    M_STYLE_ATTRIBUTE(int, bottomDistance, setBottomDistance, 72)
    /// How long it stays, in milliseconds: without and with something to do about it.
    M_STYLE_ATTRIBUTE(int, timeout, setTimeout, 3000)
    M_STYLE_ATTRIBUTE(int, actionTimeout, setActionTimeout, 6000)

public:
    MBannerStyle() { setMaximumWidth(480); }
};

/// How an object menu looks.
class MObjectMenuStyle : public MSceneWindowStyle
{
    Q_OBJECT
    M_STYLE_ATTRIBUTE(int, rowHeight, setRowHeight, 48)
    M_STYLE_ATTRIBUTE(int, minimumWidth, setMinimumWidth, 200)
    /// From the finger to the nearest corner of the menu.
    M_STYLE_ATTRIBUTE(int, fingerDistance, setFingerDistance, 8)
    /// The picture before an action that is checked.
    M_STYLE_ATTRIBUTE(QString, checkedImage, setCheckedImage, QStringLiteral("check"))

public:
    MObjectMenuStyle() { setMaximumWidth(320); }
};

#endif
