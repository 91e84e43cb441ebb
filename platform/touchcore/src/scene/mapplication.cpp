// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "accessibility/accessiblefactory.h"
#include "windowlist.h"

#include <touchcore/mapplication.h>
#include <touchcore/mwindow.h>

bool MApplication::s_isPrestarted = false;

namespace
{
/// These take effect only before the application is made.
int &withScreenPixels(int &argc)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    return argc;
}
} // namespace

QList<MWindow *> &windowList()
{
    static QList<MWindow *> windows;
    return windows;
}

MApplication::MApplication(int &argc, char **argv) : QApplication(withScreenPixels(argc), argv)
{
    installAccessibility();
}

MApplication::~MApplication() = default;

MWindow *MApplication::activeWindow()
{
    return windowList().value(0);
}

MWindow *MApplication::activeApplicationWindow()
{
    return activeWindow();
}

void MApplication::setPrestarted(bool isPrestarted)
{
    if (s_isPrestarted == isPrestarted)
        return;
    s_isPrestarted = isPrestarted;
    if (!isPrestarted) {
        const QList<MWindow *> windows = windowList();
        for (MWindow *window : windows)
            window->showIfHeldBack();
    }
    if (auto *application = qobject_cast<MApplication *>(instance()))
        Q_EMIT application->prestartedChanged(isPrestarted);
}

bool MApplication::isPrestarted()
{
    return s_isPrestarted;
}
