// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "accessiblewindow.h"

#include "accessibletexts.h"

#include <touchcore/mscenemanager.h>
#include <touchcore/mscenewindow.h>
#include <touchcore/mwidget.h>
#include <touchcore/mwindow.h>

#include <QGraphicsScene>

namespace
{
/// The widget that has the focus, or lends it to something inside.
MWidget *widgetAround(QGraphicsItem *item)
{
    for (; item; item = item->parentItem()) {
        if (auto *widget = qobject_cast<MWidget *>(item->toGraphicsObject()))
            return widget;
    }
    return nullptr;
}

void tellFocus(QGraphicsItem *item)
{
    MWidget *widget = widgetAround(item);
    if (!widget)
        return;
    QAccessibleEvent event(widget, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}
} // namespace

AccessibleWindow::AccessibleWindow(MWindow *window) : QAccessibleWidget(window, QAccessible::Window)
{
    QObject::connect(window->scene(), &QGraphicsScene::focusItemChanged, window, tellFocus);
}

MWindow *AccessibleWindow::shell() const
{
    return static_cast<MWindow *>(object());
}

QList<MSceneWindow *> AccessibleWindow::usableWindows() const
{
    QList<MSceneWindow *> usable;
    const QList<MSceneWindow *> shown = shell()->sceneManager()->sceneWindows();
    for (MSceneWindow *window : shown) {
        if (window->isOnDisplay() && window->isEnabled())
            usable.append(window);
    }
    return usable;
}

QAccessibleInterface *AccessibleWindow::child(int index) const
{
    MSceneWindow *found = usableWindows().value(index);
    return found ? QAccessible::queryAccessibleInterface(found) : nullptr;
}

int AccessibleWindow::childCount() const
{
    return usableWindows().size();
}

int AccessibleWindow::indexOfChild(const QAccessibleInterface *child) const
{
    return usableWindows().indexOf(qobject_cast<MSceneWindow *>(child->object()));
}

QAccessibleInterface *AccessibleWindow::childAt(int x, int y) const
{
    return deepestChildAt(*this, x, y);
}

QAccessibleInterface *AccessibleWindow::focusChild() const
{
    MWidget *widget = widgetAround(shell()->scene()->focusItem());
    return widget ? QAccessible::queryAccessibleInterface(widget) : nullptr;
}
