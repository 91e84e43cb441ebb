// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "gallerypages.h"
#include "pagebuilder.h"

#include <touchcore/mbutton.h>
#include <touchcore/mbuttongroup.h>

namespace
{
MButton *button(const char *text, const char *styleName = "", const char *icon = "",
                const char *viewType = "")
{
    auto *made = new MButton(QString::fromUtf8(text));
    made->setViewType(QString::fromLatin1(viewType));
    made->setStyleName(QString::fromLatin1(styleName));
    made->setIconID(QString::fromLatin1(icon));
    return made;
}

MButton *checkable(const char *text, const char *viewType, bool isChecked)
{
    MButton *made = button(text, "", "", viewType);
    made->setCheckable(true);
    made->setChecked(isChecked);
    return made;
}

MButton *disabled(MButton *made)
{
    made->setEnabled(false);
    return made;
}

QList<QGraphicsLayoutItem *> grouped(const QStringList &texts, const char *viewType, int chosen,
                                     const QStringList &icons = {})
{
    QList<QGraphicsLayoutItem *> items;
    MButtonGroup *group = nullptr;
    for (const QString &text : texts) {
        MButton *made = button("", "", "", viewType);
        made->setText(text);
        made->setIconID(icons.value(items.size()));
        if (!group)
            group = new MButtonGroup(made);
        group->addButton(made, items.size());
        items.append(made);
    }
    group->setCheckedId(chosen);
    return items;
}
} // namespace

QGraphicsWidget *makeButtonsPage()
{
    PageBuilder builder;
    builder.addCaption(QStringLiteral("Push buttons"));
    builder.addRow(
        {button("Save", "MainActionButton"), button("Today"), button("Later", "QuietButton")});
    builder.addRow(
        {button("Delete series", "DestructiveButton", "delete"), button("Share", "", "share")});
    builder.addRow({disabled(button("Save", "MainActionButton")), disabled(button("Today"))});
    builder.addCaption(QStringLiteral("Icons"));
    builder.addRow({button("Back", "", "back", "icon"), button("Search", "", "search", "icon"),
                    disabled(button("Menu", "", "menu", "icon")),
                    button("Add", "RoundButton", "add", "icon")});
    builder.addCaption(QStringLiteral("Switches and checks"));
    builder.addWide(checkable("All day", "switch", true));
    builder.addWide(checkable("Hide done to-dos, also those that were done only just now and would "
                              "otherwise stay until midnight",
                              "switch", false));
    builder.addWide(checkable("Water the plants", "check", true));
    builder.addWide(checkable("Buy bread", "check", false));
    builder.addWide(disabled(checkable("Not for you", "check", true)));
    builder.addCaption(QStringLiteral("One of several"));
    builder.addJoined(grouped(
        {QStringLiteral("Day"), QStringLiteral("Week"), QStringLiteral("Month")}, "group", 1));
    builder.addRow(grouped({QStringLiteral("Agenda"), QStringLiteral("Month"),
                            QStringLiteral("To-dos"), QStringLiteral("Notes")},
                           "tab", 0,
                           {QStringLiteral("agenda"), QStringLiteral("month"),
                            QStringLiteral("todo"), QStringLiteral("note")}));
    const QList<QGraphicsLayoutItem *> choices =
        grouped({QStringLiteral("Never"), QStringLiteral("Every week"),
                 QStringLiteral("Every month on the last day, also where it is the 28th")},
                "choice", 1);
    for (QGraphicsLayoutItem *choice : choices)
        builder.addWide(choice);
    return builder.page();
}
