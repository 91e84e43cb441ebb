// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_PAGESWITCHER_P_H
#define DASKEL_PAGESWITCHER_P_H

#include <QList>
#include <QObject>
#include <QVector>

#include <algorithm>

class MDialog;
class MSceneManager;
class MSceneWindow;
class PageSwitcher;
class PageSwitchObserverIface;

class PageSwitcherPrivate
{
public:
    explicit PageSwitcherPrivate(PageSwitcher *switcher) : q(switcher) { }

    /// Puts the window on top and shows it.
    void push(MSceneWindow *window, bool immediate);
    /// Whether showing \a window on top would change nothing.
    bool isAlreadyShown(MSceneWindow *window, bool clearHistory) const;
    /// Finds who has a say about leaving \a window. False when the content of a page is not built
    /// in a way that is understood (which is warned about): then it cannot be left.
    static bool findObserver(MSceneWindow *window, PageSwitchObserverIface **observer);
    static MSceneManager *sceneManager();
    /// Takes what is being destroyed from a list. It is no more than a QObject by then.
    template <class List> static void forget(List *list, const QObject *destroyed)
    {
        list->erase(std::remove(list->begin(), list->end(), destroyed), list->end());
    }

    QVector<MSceneWindow *> lastPages; ///< bottom first
    QList<MDialog *> autokillDialogs; ///< a dialog may stand here more than once
    bool forceAnimation = false;
    bool isAskingObserver = false;
    PageSwitcher *q;
};

#endif
