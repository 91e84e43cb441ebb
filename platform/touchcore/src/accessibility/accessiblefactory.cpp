// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "accessiblefactory.h"

#include "accessiblewidget.h"
#include "accessiblewindow.h"

#include <touchcore/mwidget.h>
#include <touchcore/mwindow.h>

#include <QAccessible>

namespace
{
QAccessibleInterface *interfaceOf(const QString &, QObject *object)
{
    if (auto *window = qobject_cast<MWindow *>(object))
        return new AccessibleWindow(window);
    if (auto *widget = qobject_cast<MWidget *>(object))
        return new AccessibleWidget(widget);
    return nullptr;
}
} // namespace

void installAccessibility()
{
    QAccessible::installFactory(interfaceOf);
}
