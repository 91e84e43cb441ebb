// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actionbutton.h"

#include <touchcore/mbutton.h>

#include <QAction>
#include <QVariant>

namespace
{
void showAction(MButton *button, const QAction *action)
{
    const QString icon = actionIcon(action);
    button->setViewType(icon.isEmpty() ? QString() : QStringLiteral("icon"));
    button->setStyleName(icon.isEmpty() ? QStringLiteral("PageHeaderButton") : QString());
    button->setIconID(icon);
    button->setText(action->iconText());
    button->setEnabled(action->isEnabled());
    button->setCheckable(action->isCheckable());
    button->setChecked(action->isChecked());
}
} // namespace

QString actionIcon(const QAction *action)
{
    return action->property("iconID").toString();
}

void tieButton(MButton *button, QAction *action)
{
    showAction(button, action);
    QObject::connect(action, &QAction::changed, button,
                     [button, action] { showAction(button, action); });
    QObject::connect(button, &MButton::clicked, action, &QAction::trigger);
}
