// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "gallerypages.h"
#include "pagebuilder.h"

#include <touchcore/mapplication.h>
#include <touchcore/mbanner.h>
#include <touchcore/mbutton.h>
#include <touchcore/mdialog.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlistitem.h>
#include <touchcore/mmessagebox.h>
#include <touchcore/mobjectmenu.h>
#include <touchcore/mpannableviewport.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mscenewindow.h>
#include <touchcore/msheet.h>
#include <touchcore/mwindow.h>

#include <QAction>
#include <QGraphicsLinearLayout>

namespace
{
using Opener = void (*)(MWindow *);

MButton *opening(const char *text, Opener open)
{
    auto *button = new MButton(QString::fromUtf8(text));
    QObject::connect(button, &MButton::clicked, button,
                     [open] { open(MApplication::activeWindow()); });
    return button;
}

QList<QAction *> menuActions(QObject *owner)
{
    QList<QAction *> actions;
    for (const char *text : {"Mark as done", "Edit", "Delete"})
        actions.append(new QAction(QString::fromUtf8(text), owner));
    return actions;
}
} // namespace

QGraphicsWidget *makeDialogsPage()
{
    PageBuilder builder;
    builder.addCaption(QStringLiteral("What stands above a page"));
    builder.add(opening("Dialog", openDialog));
    builder.add(opening("Question", openQuestion));
    builder.add(opening("Long question", openLongQuestion));
    builder.add(opening("Sheet", openSheet));
    builder.add(opening("Banner", openBanner));
    builder.add(opening("Banner with undo", openUndoBanner));
    builder.addCaption(QStringLiteral("Press this for long"));
    auto *item = new MListItem;
    item->setObjectName(QStringLiteral("itemWithMenu"));
    item->addActions(menuActions(item));
    auto *layout = new QGraphicsLinearLayout(item);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addItem(new MLabel(QStringLiteral("Dentist")));
    builder.addWide(item);
    return builder.page();
}

void openDialog(MWindow *window)
{
    PageBuilder builder(PageBuilder::NoEdges);
    auto *label = new MLabel(QStringLiteral("How often should this be looked for?"));
    label->setWordWrap(true);
    builder.add(label);
    auto *always = new MButton(QStringLiteral("Every hour"));
    always->setViewType(QStringLiteral("switch"));
    always->setStyleName(QStringLiteral("DialogSwitchButton"));
    always->setCheckable(true);
    builder.add(always);
    auto *dialog = new MDialog;
    dialog->setTitle(QStringLiteral("Synchronisation"));
    dialog->setCentralWidget(builder.page());
    dialog->appear(window, MSceneWindow::DestroyWhenDone);
}

void openQuestion(MWindow *window)
{
    auto *question = new MMessageBox(QString(), QStringLiteral("Delete “Dentist”?"),
                                     MMessageBox::Yes | MMessageBox::No);
    question->appear(window, MSceneWindow::DestroyWhenDone);
}

void openLongQuestion(MWindow *window)
{
    auto *question = new MMessageBox(
        QStringLiteral("Delete the whole series?"),
        QStringLiteral("“Choir practice” repeats every week until 3 March. All its occurrences go, "
                       "also those that are over."),
        MMessageBox::Yes | MMessageBox::No);
    question->appear(window, MSceneWindow::DestroyWhenDone);
}

void openSheet(MWindow *window)
{
    auto *sheet = new MSheet;
    auto *cancel = new QAction(QStringLiteral("Cancel"), sheet);
    auto *save = new QAction(QStringLiteral("Save"), sheet);
    for (QAction *action : {cancel, save})
        QObject::connect(action, &QAction::triggered, sheet, [sheet] { sheet->dismiss(); });
    sheet->setTitle(QStringLiteral("Edit event"));
    sheet->setCancelAction(cancel);
    sheet->setDoneAction(save);
    auto *viewport = new MPannableViewport;
    viewport->setWidget(makeTextPage());
    sheet->setCentralWidget(viewport);
    sheet->appear(window, MSceneWindow::DestroyWhenDone);
}

void openBanner(MWindow *window)
{
    auto *banner = new MBanner;
    banner->setStyleName(QStringLiteral("InformationBanner"));
    banner->setTitle(QStringLiteral("Saved in the hidden notebook “Family”"));
    banner->appear(window, MSceneWindow::DestroyWhenDone);
}

void openUndoBanner(MWindow *window)
{
    auto *banner = new MBanner;
    banner->setTitle(QStringLiteral("“Dentist” is deleted"));
    banner->setActionText(QStringLiteral("Undo"));
    banner->appear(window, MSceneWindow::DestroyWhenDone);
}

void openMenu(MWindow *window)
{
    MSceneWindow *page = window->sceneManager()->topWindow();
    auto *menu = new MObjectMenu(menuActions(page));
    menu->popUp(page, page->rect().center());
}
