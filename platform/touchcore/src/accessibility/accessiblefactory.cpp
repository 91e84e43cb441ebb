// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "accessiblefactory.h"

#include "accessiblegrid.h"
#include "accessiblewidget.h"
#include "accessiblewindow.h"

#include <touchcore/mcellgrid.h>
#include <touchcore/mwidget.h>
#include <touchcore/mwindow.h>

#include <QAccessible>

namespace
{
QAccessibleInterface *interfaceOf(const QString &, QObject *object)
{
    if (auto *window = qobject_cast<MWindow *>(object))
        return new AccessibleWindow(window);
    if (auto *grid = qobject_cast<MCellGrid *>(object))
        return new AccessibleGrid(grid);
    if (auto *widget = qobject_cast<MWidget *>(object))
        return new AccessibleWidget(widget);
    return nullptr;
}
} // namespace

void installAccessibility()
{
    QAccessible::installFactory(interfaceOf);
}
