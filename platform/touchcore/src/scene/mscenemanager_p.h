// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MSCENEMANAGER_P_H
#define TOUCHCORE_MSCENEMANAGER_P_H

#include "bannerqueue.h"

#include <touchcore/mscenemanager.h>

#include <QGraphicsWidget>
#include <QPointer>

class MSceneManagerPrivate
{
public:
    MSceneManagerPrivate(MSceneManager *manager, MWindow *view);

    /// \a size: the viewport; \a angle: how it is turned, clockwise in degrees (0, 90, 180, 270).
    void setView(const QSize &size, int angle);
    /// Lets theme and layouts follow the window when it is the active one.
    void tellOrientation() const;
    /// Puts every window at its place, now or with the next turn of the event loop.
    void placeAll();
    void placeLater();

    void appear(MSceneWindow *window, MSceneWindow::DeletionPolicy policy, bool isAnimated);
    void disappear(MSceneWindow *window, bool isAnimated);
    void dismiss(MSceneWindow *window, bool isAnimated);
    void windowDestroyed(MSceneWindow *window);

    void setHistory(const QList<MSceneWindow *> &windows);
    MSceneWindow *topWindow() const;
    /// Whether something opaque fills the window, so that nothing behind it need be painted.
    bool hidesBackground() const;
    /// Brings visibility, display state and focus in line with what is shown.
    void update();
    /// Gives the top window's panel the focus, which an inactive window refused.
    void activateTop();
    /// Gives the focus to the first widget of the top window, or the last; answers false when one
    /// has it already.
    bool tabInto(bool isForward);

    MSceneManager *const q;
    MWindow *const window;
    QGraphicsWidget *const root;
    M::Orientation orientation = M::Portrait;
    /// The lowest first.
    QList<MSceneWindow *> shown;
    QList<QPointer<MSceneWindow>> history;
    /// Shown, but taken out of the history: they go with the next transition.
    QList<QPointer<MSceneWindow>> forgotten;
    QPointer<MSceneWindow> focusWindow;
    BannerQueue banners;
    bool isPlacing = false;
    bool isClosing = false;

private:
    void enter(MSceneWindow *window, bool isAnimated);
    /// From now on the window of this manager owns the scene window.
    void adopt(MSceneWindow *window);
    void insert(MSceneWindow *window);
    void restack();
    void run(MSceneWindow *window, bool isEntering, bool isAnimated);
    void finishAppearing(MSceneWindow *window);
    void finishDisappearing(MSceneWindow *window);
    static void deleteIfDone(MSceneWindow *window);
    static void removeDim(MSceneWindow *window);

    bool isCovered(const MSceneWindow *window) const;
    bool fillsWindow(const MSceneWindow *window) const;
    void dismissForgotten(const MSceneWindow *appearing, bool onlyAbove, bool isAnimated);
    void revealHistory(MSceneWindow *leaving);

    void rememberFocus();
    void giveFocus();
    void updateVisibility();
};

#endif
