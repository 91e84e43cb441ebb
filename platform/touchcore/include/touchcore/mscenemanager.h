// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MSCENEMANAGER_H
#define TOUCHCORE_MSCENEMANAGER_H

#include <touchcore/mnamespace.h>
#include <touchcore/mscenewindow.h>

#include <QList>

class MSceneManagerPrivate;

/// Shows the scene windows of one MWindow: who is on top, who covers whom, how they come and go,
/// and where the keyboard's focus is.
///
/// Owned by its window. A page or sheet that fills the window hides the pages below it once it has
/// appeared: they keep their state, but leave the display. Every call that shows or hides works at
/// once without an animation (the calls that end in Now, or animations off); then all signals have
/// been sent when it returns. UI thread only.
class MSceneManager : public QObject
{
    Q_OBJECT

public:
    explicit MSceneManager(MWindow *window);
    ~MSceneManager() override;

    /// On by default, for all windows. Off, every transition ends before the call that starts it
    /// returns.
    static void setAnimationsEnabled(bool isEnabled);
    static bool areAnimationsEnabled();

    MWindow *window() const;
    M::Orientation orientation() const;
    /// The room for scene windows, in pixels, as the person holds the window.
    QSizeF visibleSize() const;
    /// The parent of all scene windows. Its coordinates are turned with the window; those of the
    /// scene are not.
    QGraphicsWidget *root() const;

    /// Shows \a window above its like and gives it the focus. One that is covered comes to the top;
    /// one that is on top already stays as it is. A banner may have to wait for another one.
    void appearSceneWindow(MSceneWindow *window,
                           MSceneWindow::DeletionPolicy policy = MSceneWindow::KeepWhenDone);
    void appearSceneWindowNow(MSceneWindow *window,
                              MSceneWindow::DeletionPolicy policy = MSceneWindow::KeepWhenDone);
    /// Hides \a window. One that is not shown stays as it is.
    void disappearSceneWindow(MSceneWindow *window);
    void disappearSceneWindowNow(MSceneWindow *window);
    /// Hides \a window for good: it leaves the page history, and the page that is then the last of
    /// the history appears if no page is left.
    void dismissSceneWindow(MSceneWindow *window);
    void dismissSceneWindowNow(MSceneWindow *window);

    /// The pages and sheets that the person came through, the one in view last. It follows what
    /// appears and disappears.
    QList<MSceneWindow *> pageHistory() const;
    /// Replaces the history. Pages and sheets that are shown and not in it go with the next page or
    /// sheet that appears, in its transition.
    void setPageHistory(const QList<MSceneWindow *> &history);

    /// The windows that are shown or on their way, the lowest first.
    QList<MSceneWindow *> sceneWindows() const;
    /// The one that the keyboard and the back key go to, never a banner; null when there is none.
    MSceneWindow *topWindow() const;

Q_SIGNALS:
    /// Sent when theme and geometry are those of the new orientation.
    void orientationChanged(const M::Orientation &orientation);

private:
    friend class MSceneWindow;
    friend class MWindow;
    std::unique_ptr<MSceneManagerPrivate> d;
};

#endif
