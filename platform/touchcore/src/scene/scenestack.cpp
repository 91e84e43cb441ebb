// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "layout/layoutorientation.h"
#include "mscenemanager_p.h"
#include "mscenewindow_p.h"
#include "scenedim.h"
#include "scenetransition.h"

#include <touchcore/mapplication.h>
#include <touchcore/mtheme.h>
#include <touchcore/mwindow.h>

#include <QGraphicsScene>
#include <QTransform>

#include <algorithm>

namespace
{
/// Sheets, dialogs and menus stand over each other as they come.
int rank(MSceneWindow::Layer layer)
{
    if (layer == MSceneWindow::PageLayer)
        return 0;
    return layer == MSceneWindow::BannerLayer ? 2 : 1;
}

bool hasHistory(const MSceneWindow *window)
{
    return window->layer() == MSceneWindow::PageLayer
        || window->layer() == MSceneWindow::SheetLayer;
}

QTransform turned(const QSizeF &size, int angle)
{
    switch (angle) {
    case 90:
        return QTransform().translate(size.width(), 0).rotate(90);
    case 180:
        return QTransform().translate(size.width(), size.height()).rotate(180);
    case 270:
        return QTransform().translate(0, size.height()).rotate(270);
    default:
        return {};
    }
}
} // namespace

MSceneManagerPrivate::MSceneManagerPrivate(MSceneManager *manager, MWindow *view)
    : q(manager), window(view), root(new QGraphicsWidget)
{
    // An item without contents: nothing of its own to paint.
    root->setFlag(QGraphicsItem::ItemHasNoContents);
    QObject::connect(MTheme::instance(), &MTheme::changed, q, [this] { placeLater(); });
}

void MSceneManagerPrivate::setView(const QSize &size, int angle)
{
    window->scene()->setSceneRect(QRectF(QPointF(), size));
    const QSizeF area = angle % 180 == 0 ? size : size.transposed();
    const M::Orientation held = area.width() < area.height() ? M::Portrait : M::Landscape;
    const bool isTurned = held != orientation;
    orientation = held;
    // Styles first, geometry second, listeners last: each finds what came before in place.
    tellOrientation();
    root->setTransform(turned(size, angle));
    root->resize(area);
    placeAll();
    if (isTurned) {
        Q_EMIT q->orientationChanged(held);
        Q_EMIT window->orientationChanged(held);
    }
}

void MSceneManagerPrivate::tellOrientation() const
{
    if (MApplication::activeWindow() != window || MTheme::instance()->orientation() == orientation)
        return;
    MTheme::instance()->setOrientation(orientation);
    setLayoutOrientation(orientation);
}

void MSceneManagerPrivate::placeAll()
{
    const QList<MSceneWindow *> windows = shown;
    for (MSceneWindow *shownWindow : windows) {
        shownWindow->setGeometry(shownWindow->place(root->size()));
        if (shownWindow->d->dim)
            shownWindow->d->dim->adaptToParent();
        SceneTransition::showProgress(shownWindow, shownWindow->d->progress);
    }
    updateVisibility();
}

void MSceneManagerPrivate::placeLater()
{
    if (isPlacing)
        return;
    isPlacing = true;
    QMetaObject::invokeMethod(
        q,
        [this] {
            placeAll();
            isPlacing = false;
        },
        Qt::QueuedConnection);
}

void MSceneManagerPrivate::appear(MSceneWindow *appearing, MSceneWindow::DeletionPolicy policy,
                                  bool isAnimated)
{
    const auto &d = appearing->d;
    if (d->manager && d->manager != q)
        d->manager->disappearSceneWindowNow(appearing);
    d->manager = q;
    d->deletionPolicy = policy;
    d->isDismissed = false;
    if (d->layer == MSceneWindow::BannerLayer) {
        MSceneWindow *replaced = nullptr;
        if (!banners.admit(appearing, &replaced)) {
            appearing->hide();
            adopt(appearing);
            return;
        }
        if (replaced)
            disappear(replaced, isAnimated);
    }
    if (hasHistory(appearing)) {
        forgotten.removeAll(appearing);
        history.removeAll(appearing);
        history.append(appearing);
    }
    if (d->state == MSceneWindow::Appeared || d->state == MSceneWindow::Appearing) {
        dismissForgotten(appearing, true, isAnimated);
        if (!isCovered(appearing)) {
            dismissForgotten(appearing, false, false);
            update();
            if (d->state == MSceneWindow::Appearing && !isAnimated)
                run(appearing, true, false);
            return;
        }
        d->progress = 0;
    }
    enter(appearing, isAnimated);
}

void MSceneManagerPrivate::enter(MSceneWindow *entering, bool isAnimated)
{
    const QPointer<MSceneWindow> guard(entering);
    adopt(entering);
    insert(entering);
    if (entering->isModal()) {
        entering->setFlag(QGraphicsItem::ItemIsPanel);
        if (!entering->d->dim)
            entering->d->dim = new SceneDim(entering);
        entering->d->dim->setTakingAll(true);
    }
    restack();
    entering->setGeometry(entering->place(root->size()));
    SceneTransition::showProgress(entering, entering->d->progress);
    entering->show();
    entering->d->state = MSceneWindow::Appearing;
    if (hasHistory(entering))
        dismissForgotten(entering, true, isAnimated);
    update();
    if (guard)
        Q_EMIT entering->appearing();
    if (guard && entering->d->state == MSceneWindow::Appearing)
        run(entering, true, isAnimated);
}

void MSceneManagerPrivate::adopt(MSceneWindow *newcomer)
{
    // Qt crashes on an item that is given a parent in another scene.
    if (newcomer->scene() && newcomer->scene() != root->scene())
        newcomer->scene()->removeItem(newcomer);
    newcomer->setParentItem(root);
    // An item that gets a parent keeps the direction that it was made with.
    if (!newcomer->testAttribute(Qt::WA_SetLayoutDirection))
        newcomer->unsetLayoutDirection();
}

void MSceneManagerPrivate::insert(MSceneWindow *entering)
{
    shown.removeOne(entering);
    const auto place = std::upper_bound(
        shown.begin(), shown.end(), rank(entering->d->layer),
        [](int wanted, const MSceneWindow *other) { return wanted < rank(other->layer()); });
    shown.insert(place, entering);
}

void MSceneManagerPrivate::restack()
{
    qreal height = 0;
    for (MSceneWindow *shownWindow : qAsConst(shown)) {
        if (shownWindow->d->dim)
            shownWindow->d->dim->setZValue(++height);
        shownWindow->setZValue(++height);
    }
}

void MSceneManagerPrivate::run(MSceneWindow *moving, bool isEntering, bool isAnimated)
{
    if (SceneTransition *running = moving->d->transition) {
        // It may be its own end that leads here.
        running->disconnect(q);
        running->stop();
    }
    const auto finish = [this, moving, isEntering] {
        if (isEntering)
            finishAppearing(moving);
        else
            finishDisappearing(moving);
    };
    if (!isAnimated || !window->isVisible() || !moving->isVisible()) {
        finish();
        return;
    }
    auto *transition = new SceneTransition(moving, isEntering);
    moving->d->transition = transition;
    QObject::connect(transition, &QAbstractAnimation::finished, q, finish);
    transition->start(QAbstractAnimation::DeleteWhenStopped);
}

void MSceneManagerPrivate::finishAppearing(MSceneWindow *entered)
{
    const QPointer<MSceneWindow> guard(entered);
    SceneTransition::showProgress(entered, 1);
    entered->d->state = MSceneWindow::Appeared;
    if (hasHistory(entered))
        dismissForgotten(entered, false, false);
    update();
    if (guard)
        Q_EMIT entered->appeared();
}

void MSceneManagerPrivate::disappear(MSceneWindow *leaving, bool isAnimated)
{
    const auto &d = leaving->d;
    if (d->manager != q)
        return;
    if (d->state == MSceneWindow::Disappeared) {
        if (banners.withdraw(leaving))
            deleteIfDone(leaving);
        return;
    }
    if (d->state == MSceneWindow::Disappearing) {
        if (!isAnimated)
            run(leaving, false, false);
        return;
    }
    const QPointer<MSceneWindow> guard(leaving);
    d->state = MSceneWindow::Disappearing;
    if (d->dim)
        d->dim->setTakingAll(false);
    history.removeAll(leaving);
    forgotten.removeAll(leaving);
    if (d->isDismissed && d->layer == MSceneWindow::PageLayer)
        revealHistory(leaving);
    update();
    Q_EMIT leaving->disappearing();
    if (guard && leaving->d->state == MSceneWindow::Disappearing)
        run(leaving, false, isAnimated);
}

void MSceneManagerPrivate::dismiss(MSceneWindow *leaving, bool isAnimated)
{
    if (leaving->d->manager != q)
        return;
    const QPointer<MSceneWindow> guard(leaving);
    leaving->d->isDismissed = true;
    history.removeAll(leaving);
    if (leaving->d->state != MSceneWindow::Disappeared) {
        leaving->dismissEvent();
        if (guard)
            disappear(leaving, isAnimated);
        return;
    }
    banners.withdraw(leaving);
    deleteIfDone(leaving);
}

void MSceneManagerPrivate::finishDisappearing(MSceneWindow *left)
{
    const QPointer<MSceneWindow> guard(left);
    const auto &d = left->d;
    d->state = MSceneWindow::Disappeared;
    d->progress = 0;
    removeDim(left);
    shown.removeOne(left);
    // The focus goes to the next window before this one takes it away with it.
    update();
    left->hide();
    if (d->layer == MSceneWindow::BannerLayer) {
        if (MSceneWindow *next = banners.leave(left))
            appear(next, next->d->deletionPolicy, MSceneManager::areAnimationsEnabled());
    }
    Q_EMIT left->disappeared();
    if (guard && left->d->state == MSceneWindow::Disappeared)
        deleteIfDone(left);
    // A panel that is deleted takes the scene's focus with it, whoever has it.
    if (guard && left->deletionPolicy() != MSceneWindow::KeepWhenDone) {
        const auto keepFocus = [this] {
            if (!window->scene()->focusItem())
                giveFocus();
        };
        QObject::connect(left, &QObject::destroyed, q, keepFocus, Qt::QueuedConnection);
    }
}

void MSceneManagerPrivate::deleteIfDone(MSceneWindow *left)
{
    const MSceneWindow::DeletionPolicy policy = left->d->deletionPolicy;
    if (policy == MSceneWindow::DestroyWhenDone
        || (policy == MSceneWindow::DestroyWhenDismissed && left->d->isDismissed))
        left->deleteLater();
}

void MSceneManagerPrivate::removeDim(MSceneWindow *owner)
{
    if (!owner->d->dim)
        return;
    // It may be its own press that ends here.
    owner->d->dim->hide();
    owner->d->dim->deleteLater();
    owner->d->dim.clear();
}

void MSceneManagerPrivate::windowDestroyed(MSceneWindow *destroyed)
{
    const bool wasShown = shown.removeOne(destroyed);
    history.removeAll(destroyed);
    forgotten.removeAll(destroyed);
    MSceneWindow *next = banners.leave(destroyed);
    if (focusWindow == destroyed)
        focusWindow.clear();
    removeDim(destroyed);
    if (isClosing)
        return;
    if (wasShown)
        update();
    if (next)
        appear(next, next->d->deletionPolicy, MSceneManager::areAnimationsEnabled());
}

void MSceneManagerPrivate::setHistory(const QList<MSceneWindow *> &windows)
{
    history.clear();
    for (MSceneWindow *page : windows)
        history.append(page);
    forgotten.clear();
    for (MSceneWindow *shownWindow : qAsConst(shown)) {
        if (hasHistory(shownWindow) && !windows.contains(shownWindow))
            forgotten.append(shownWindow);
    }
}

void MSceneManagerPrivate::dismissForgotten(const MSceneWindow *appearing, bool onlyAbove,
                                            bool isAnimated)
{
    const int place = shown.indexOf(const_cast<MSceneWindow *>(appearing));
    const QList<QPointer<MSceneWindow>> candidates = forgotten;
    for (const QPointer<MSceneWindow> &candidate : candidates) {
        if (candidate && (!onlyAbove || shown.indexOf(candidate) > place))
            dismiss(candidate, isAnimated);
    }
}

void MSceneManagerPrivate::revealHistory(MSceneWindow *leaving)
{
    const bool hasPage = std::any_of(shown.begin(), shown.end(), [](const MSceneWindow *other) {
        return other->layer() == MSceneWindow::PageLayer
            && other->sceneWindowState() != MSceneWindow::Disappearing;
    });
    while (!hasPage && !history.isEmpty()) {
        if (MSceneWindow *last = history.last()) {
            appear(last, last->d->deletionPolicy, false);
            // Below the one that goes, which uncovers it.
            if (shown.removeOne(last))
                shown.insert(shown.indexOf(leaving), last);
            restack();
            return;
        }
        history.removeLast();
    }
}
