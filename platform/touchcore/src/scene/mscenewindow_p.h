// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MSCENEWINDOW_P_H
#define TOUCHCORE_MSCENEWINDOW_P_H

#include <touchcore/mscenemanager.h>
#include <touchcore/mscenewindow.h>

#include <QPointer>

class SceneDim;
class SceneTransition;

class MSceneWindowPrivate
{
public:
    explicit MSceneWindowPrivate(MSceneWindow::Layer kind) : layer(kind) { }

    const MSceneWindow::Layer layer;
    MSceneWindow::SceneWindowState state = MSceneWindow::Disappeared;
    MSceneWindow::DeletionPolicy deletionPolicy = MSceneWindow::KeepWhenDone;
    QPointer<MSceneManager> manager;
    /// Whether it goes, or went, because the person is done with it.
    bool isDismissed = false;
    /// How far it has come: 0 gone, 1 at its place.
    qreal progress = 0;
    QPointer<SceneTransition> transition;
    QPointer<SceneDim> dim;
    /// What had the focus when another window took it.
    QPointer<QGraphicsObject> lastFocus;
};

#endif
