// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef NAVIGATIONWINDOW_H
#define NAVIGATIONWINDOW_H

#include <daskel/pageswitcher.h>
#include <touchcore/mapplicationpage.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/msheet.h>
#include <touchcore/mwindow.h>

#include <QApplication>
#include <QHash>
#include <QTest>

/// A window without animations whose pages and sheets have names of one letter: A to R are pages,
/// S to Z sheets. The page switcher is empty again at its end.
class NavigationWindow
{
public:
    NavigationWindow()
    {
        MSceneManager::setAnimationsEnabled(false);
        window.resize(480, 854);
        window.show();
        QApplication::setActiveWindow(&window);
    }
    ~NavigationWindow() { clear(); }

    MSceneWindow *named(QChar name)
    {
        QPointer<MSceneWindow> &found = m_windows[name];
        if (!found) {
            found = isSheet(name) ? static_cast<MSceneWindow *>(new MSheet) : new MApplicationPage;
            found->setObjectName(name);
        }
        return found;
    }
    MApplicationPage *page(QChar name) { return qobject_cast<MApplicationPage *>(named(name)); }
    MSheet *sheet(QChar name) { return qobject_cast<MSheet *>(named(name)); }

    void show(QChar name, bool clearHistory = false)
    {
        if (isSheet(name))
            PageSwitcher::instance()->showPage(sheet(name), clearHistory, true);
        else
            PageSwitcher::instance()->showPage(page(name), clearHistory, true);
    }
    /// Shows one after the other, and what they leave to the event loop.
    void showAll(const QString &names)
    {
        for (const QChar name : names)
            show(name);
        QCoreApplication::processEvents();
    }

    /// The names of what is on the stack, bottom first.
    static QString stack()
    {
        QString names;
        for (int n = 0; const MSceneWindow *shown = PageSwitcher::instance()->pageFromTop(n); ++n)
            names.prepend(shown->objectName());
        return names;
    }

    static void clear()
    {
        QCoreApplication::processEvents();
        PageSwitcher::instance()->popPages(stack().size(), true);
    }

    MWindow window;

private:
    static bool isSheet(QChar name) { return name >= QLatin1Char('S'); }

    QHash<QChar, QPointer<MSceneWindow>> m_windows;
};

#endif
