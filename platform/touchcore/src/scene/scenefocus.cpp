// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mscenemanager_p.h"
#include "mscenewindow_p.h"
#include "scenedim.h"

#include <touchcore/mwindow.h>

#include <QGraphicsScene>

#include <algorithm>

namespace
{
/// The first, or the last, that the Tab key stops at, in the order in which the widgets were made.
QGraphicsWidget *tabStop(const QGraphicsItem *parent, bool isFirst)
{
    const QList<QGraphicsItem *> children = parent->childItems();
    for (int i = 0; i < children.size(); ++i) {
        QGraphicsItem *child = children.at(isFirst ? i : children.size() - 1 - i);
        if (!child->isVisible() || !child->isEnabled())
            continue;
        auto *widget = child->isWidget() ? static_cast<QGraphicsWidget *>(child) : nullptr;
        const bool isStop = widget && (widget->focusPolicy() & Qt::TabFocus);
        if (isStop && isFirst)
            return widget;
        if (QGraphicsWidget *found = tabStop(child, isFirst))
            return found;
        if (isStop)
            return widget;
    }
    return nullptr;
}
} // namespace

MSceneWindow *MSceneManagerPrivate::topWindow() const
{
    for (auto it = shown.crbegin(); it != shown.crend(); ++it) {
        const bool isComing =
            (*it)->d->state == MSceneWindow::Appeared || (*it)->d->state == MSceneWindow::Appearing;
        if (isComing && (*it)->d->layer != MSceneWindow::BannerLayer)
            return *it;
    }
    return nullptr;
}

void MSceneManagerPrivate::update()
{
    // In this order: what is hidden loses the focus, and does not get it back by itself.
    const bool isOther = focusWindow != topWindow();
    if (isOther)
        rememberFocus();
    updateVisibility();
    if (isOther)
        giveFocus();
}

bool MSceneManagerPrivate::fillsWindow(const MSceneWindow *candidate) const
{
    const bool mayFill = candidate->d->layer == MSceneWindow::PageLayer
        || candidate->d->layer == MSceneWindow::SheetLayer;
    return mayFill && candidate->d->state == MSceneWindow::Appeared
        && candidate->geometry().contains(root->rect());
}

bool MSceneManagerPrivate::hidesBackground() const
{
    return std::any_of(shown.begin(), shown.end(), [this](const MSceneWindow *candidate) {
        const MSceneWindowStyle *style = candidate->style();
        return fillsWindow(candidate) && style->cornerRadius() == 0
            && style->backgroundColor().isValid() && style->backgroundColor().alpha() == 255;
    });
}

bool MSceneManagerPrivate::isCovered(const MSceneWindow *candidate) const
{
    for (int i = shown.indexOf(const_cast<MSceneWindow *>(candidate)) + 1; i < shown.size(); ++i) {
        const MSceneWindow *above = shown.at(i);
        const bool isPageOnItsWay = above->d->layer == MSceneWindow::PageLayer
            && above->d->state == MSceneWindow::Appearing;
        if (isPageOnItsWay || fillsWindow(above))
            return true;
    }
    return false;
}

void MSceneManagerPrivate::updateVisibility()
{
    bool isHidden = false;
    const QList<MSceneWindow *> windows = shown;
    for (auto it = windows.crbegin(); it != windows.crend(); ++it) {
        MSceneWindow *candidate = *it;
        // Those who enter or leave the display may show and delete others.
        if (!shown.contains(candidate))
            continue;
        candidate->setVisible(!isHidden);
        if (candidate->d->dim)
            candidate->d->dim->setVisible(!isHidden && !fillsWindow(candidate));
        const bool isOnDisplay = !isHidden && window->isOnDisplay();
        if (candidate->isOnDisplay() != isOnDisplay)
            MWidget::updateDisplayState(candidate, isOnDisplay);
        isHidden = isHidden || fillsWindow(candidate);
    }
}

void MSceneManagerPrivate::rememberFocus()
{
    if (!focusWindow)
        return;
    QGraphicsItem *item = window->scene()->focusItem();
    const bool isInside = item && focusWindow->isAncestorOf(item);
    focusWindow->d->lastFocus = isInside ? item->toGraphicsObject() : nullptr;
}

void MSceneManagerPrivate::giveFocus()
{
    focusWindow = topWindow();
    activateTop();
    if (!focusWindow)
        return;
    // The focus ring is for those who are using the keyboard.
    const bool isByKeyboard = window->isKeyboardInUse();
    QGraphicsObject *target = focusWindow->d->lastFocus;
    if (isByKeyboard && (!target || !target->isVisible()))
        target = tabStop(focusWindow, true);
    QGraphicsScene *scene = window->scene();
    // It may have the focus already, but not show it.
    if (isByKeyboard && scene->focusItem() == target)
        scene->setFocusItem(nullptr);
    if (target)
        target->setFocus(isByKeyboard ? Qt::TabFocusReason : Qt::ActiveWindowFocusReason);
    else
        focusWindow->setFocus(Qt::ActiveWindowFocusReason);
}

bool MSceneManagerPrivate::tabInto(bool isForward)
{
    QGraphicsWidget *stop = focusWindow ? tabStop(focusWindow, isForward) : nullptr;
    const QGraphicsItem *focused = window->scene()->focusItem();
    if (!stop || (focused && focused != focusWindow))
        return false;
    stop->setFocus(isForward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void MSceneManagerPrivate::activateTop()
{
    MSceneWindow *panel = focusWindow && focusWindow->isPanel() ? focusWindow.data() : nullptr;
    window->scene()->setActivePanel(panel);
}
