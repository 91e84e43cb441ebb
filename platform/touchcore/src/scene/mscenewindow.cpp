// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mscenemanager_p.h"
#include "mscenewindow_p.h"

#include <touchcore/mapplication.h>
#include <touchcore/mwindow.h>

#include <QGraphicsScene>
#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsView>

MSceneWindow::MSceneWindow(Layer layer, QGraphicsItem *parent)
    : MStylableWidget(parent), d(std::make_unique<MSceneWindowPrivate>(layer))
{
    // It takes keys when none of its widgets does; it is no stop of the Tab key.
    setFlag(ItemIsFocusable);
    // The size is that of place(), even where contents that cannot grow would limit it.
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

MSceneWindow::~MSceneWindow()
{
    if (d->manager)
        d->manager->d->windowDestroyed(this);
}

MSceneWindow::Layer MSceneWindow::layer() const
{
    return d->layer;
}

MSceneWindow::SceneWindowState MSceneWindow::sceneWindowState() const
{
    return d->state;
}

MSceneWindow::DeletionPolicy MSceneWindow::deletionPolicy() const
{
    return d->deletionPolicy;
}

MSceneManager *MSceneWindow::sceneManager() const
{
    return d->manager;
}

void MSceneWindow::appear(MWindow *window, DeletionPolicy policy)
{
    MWindow *target = window ? window : MApplication::activeWindow();
    if (target)
        target->sceneManager()->appearSceneWindow(this, policy);
    else
        qWarning("%s cannot appear: there is no window.", metaObject()->className());
}

void MSceneWindow::appear(QGraphicsScene *scene, DeletionPolicy policy)
{
    MWindow *window = nullptr;
    if (scene) {
        const QList<QGraphicsView *> views = scene->views();
        for (QGraphicsView *view : views)
            window = window ? window : qobject_cast<MWindow *>(view);
    }
    appear(window, policy);
}

void MSceneWindow::appear(DeletionPolicy policy)
{
    appear(static_cast<MWindow *>(nullptr), policy);
}

void MSceneWindow::updateGeometry()
{
    MStylableWidget::updateGeometry();
    if (d->manager && d->state != Disappeared)
        d->manager->d->placeLater();
}

void MSceneWindow::disappear()
{
    if (d->manager)
        d->manager->disappearSceneWindow(this);
}

void MSceneWindow::dismiss()
{
    if (d->manager)
        d->manager->dismissSceneWindow(this);
}

void MSceneWindow::goBack()
{
    dismiss();
}

QRectF MSceneWindow::place(const QSizeF &area) const
{
    return {QPointF(), area};
}

MSceneWindow::Motion MSceneWindow::motion() const
{
    return FadeMotion;
}

bool MSceneWindow::isModal() const
{
    return false;
}

void MSceneWindow::pressedOutside() { }

void MSceneWindow::dismissEvent() { }

void MSceneWindow::contextMenuEvent(QGraphicsSceneContextMenuEvent *event)
{
    event->ignore();
}
