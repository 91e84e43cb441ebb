// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/objectmenuhook.h"
#include "mscenemanager_p.h"

#include <touchcore/mobjectmenu.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mwindow.h>

#include <QGraphicsScene>

namespace
{
bool theAnimationsEnabled = true;

QList<MSceneWindow *> alive(const QList<QPointer<MSceneWindow>> &windows)
{
    QList<MSceneWindow *> found;
    for (const QPointer<MSceneWindow> &window : windows) {
        if (window)
            found.append(window);
    }
    return found;
}
} // namespace

MSceneManager::MSceneManager(MWindow *window)
    : QObject(window), d(std::make_unique<MSceneManagerPrivate>(this, window))
{
    setObjectMenuOpener(&MObjectMenu::open);
    window->scene()->addItem(d->root);
}

MSceneManager::~MSceneManager()
{
    d->isClosing = true;
    delete d->root;
}

void MSceneManager::setAnimationsEnabled(bool isEnabled)
{
    theAnimationsEnabled = isEnabled;
}

bool MSceneManager::areAnimationsEnabled()
{
    return theAnimationsEnabled;
}

MWindow *MSceneManager::window() const
{
    return d->window;
}

M::Orientation MSceneManager::orientation() const
{
    return d->orientation;
}

QSizeF MSceneManager::visibleSize() const
{
    return d->root->size();
}

QGraphicsWidget *MSceneManager::root() const
{
    return d->root;
}

void MSceneManager::appearSceneWindow(MSceneWindow *window, MSceneWindow::DeletionPolicy policy)
{
    d->appear(window, policy, theAnimationsEnabled);
}

void MSceneManager::appearSceneWindowNow(MSceneWindow *window, MSceneWindow::DeletionPolicy policy)
{
    d->appear(window, policy, false);
}

void MSceneManager::disappearSceneWindow(MSceneWindow *window)
{
    d->disappear(window, theAnimationsEnabled);
}

void MSceneManager::disappearSceneWindowNow(MSceneWindow *window)
{
    d->disappear(window, false);
}

void MSceneManager::dismissSceneWindow(MSceneWindow *window)
{
    d->dismiss(window, theAnimationsEnabled);
}

void MSceneManager::dismissSceneWindowNow(MSceneWindow *window)
{
    d->dismiss(window, false);
}

QList<MSceneWindow *> MSceneManager::pageHistory() const
{
    return alive(d->history);
}

void MSceneManager::setPageHistory(const QList<MSceneWindow *> &history)
{
    d->setHistory(history);
}

QList<MSceneWindow *> MSceneManager::sceneWindows() const
{
    return d->shown;
}

MSceneWindow *MSceneManager::topWindow() const
{
    return d->topWindow();
}
