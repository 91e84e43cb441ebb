// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MSCENEWINDOW_H
#define TOUCHCORE_MSCENEWINDOW_H

#include <touchcore/mscenewindowstyle.h>
#include <touchcore/mstylablewidget.h>

class MSceneManager;
class MSceneWindowPrivate;
class MWindow;

/// Something that comes over what is shown and goes again: a page, sheet, dialog, menu or banner.
///
/// It is in no scene until it first appears. From then on its window owns it, besides whoever made
/// it: the deletion policy says when it is deleted, at the latest with its window. UI thread only.
class MSceneWindow : public MStylableWidget
{
    Q_OBJECT
    M_STYLE(MSceneWindowStyle)

public:
    /// The values are part of the interface.
    enum SceneWindowState {
        Disappeared = 0,
        Appeared = 1, ///< also while another window covers it
        Appearing = 2,
        Disappearing = 3,
    };
    Q_ENUM(SceneWindowState)

    /// When the window is deleted (with the next turn of the event loop).
    enum DeletionPolicy {
        KeepWhenDone, ///< not: it can appear again
        DestroyWhenDone, ///< when it has disappeared, however that came
        DestroyWhenDismissed, ///< when it was dismissed, not when it only disappeared
    };
    Q_ENUM(DeletionPolicy)

    /// What kind it is: pages stand below all else, banners above; sheets, dialogs and menus stand
    /// over each other in the order in which they appeared.
    enum Layer { PageLayer, SheetLayer, DialogLayer, MenuLayer, BannerLayer };

    /// How it comes and goes.
    enum Motion {
        SlideMotion, ///< from the end of the layout direction
        RiseMotion, ///< from below
        GrowMotion, ///< fades and grows from 96 %
        FadeMotion,
    };

    ~MSceneWindow() override;

    Layer layer() const;
    SceneWindowState sceneWindowState() const;
    DeletionPolicy deletionPolicy() const;
    /// Where it was last shown; null before it first appeared.
    MSceneManager *sceneManager() const;

    /// Appears in \a window, or in the active window for null; without any window it warns and does
    /// nothing. MSceneManager::appearSceneWindow().
    void appear(MWindow *window, DeletionPolicy policy = KeepWhenDone);
    /// In the window that shows \a scene.
    void appear(QGraphicsScene *scene, DeletionPolicy policy = KeepWhenDone);
    /// In the active window.
    void appear(DeletionPolicy policy = KeepWhenDone);

    /// Size hints may have changed: one that is as large as its contents gets its new size with the
    /// next turn of the event loop.
    void updateGeometry() override;

public Q_SLOTS:
    /// Goes for now. MSceneManager::disappearSceneWindow().
    void disappear();
    /// Goes because the person is done with it. MSceneManager::dismissSceneWindow().
    void dismiss();
    /// The person pressed Escape or the back key. Dismisses the window; kinds with a button for it
    /// do as that button does.
    virtual void goBack();

Q_SIGNALS:
    /// sceneWindowState() is Appearing (and so on) when they are sent, also without animations.
    void appearing();
    void appeared();
    void disappearing();
    void disappeared();

protected:
    explicit MSceneWindow(Layer layer, QGraphicsItem *parent = nullptr);

    /// The place in a window of the size \a area. Fills it by default.
    virtual QRectF place(const QSizeF &area) const;
    virtual Motion motion() const;
    /// Whether nothing below can be used while it is shown. False by default.
    virtual bool isModal() const;
    /// The person pressed beside a modal window. Nothing by default.
    virtual void pressedOutside();
    /// Called before it goes by dismiss(). Nothing by default.
    virtual void dismissEvent();

    /// The actions of a scene window stand in its header; a long press on it opens no menu of them.
    void contextMenuEvent(QGraphicsSceneContextMenuEvent *event) override;

private:
    friend class MSceneManagerPrivate;
    friend class SceneDim;
    friend class SceneTransition;
    std::unique_ptr<MSceneWindowPrivate> d;
};

#endif
