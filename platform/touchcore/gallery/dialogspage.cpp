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
#include <touchcore/msheet.h>
#include <touchcore/mwindow.h>

#include <QAction>

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
    for (const char *text : {"Mark as done", "Edit", "Delete"})
        item->addAction(new QAction(QString::fromUtf8(text), item));
    builder.add(item);
    return builder.page();
}

void openDialog(MWindow *window)
{
    PageBuilder builder;
    auto *label = new MLabel(QStringLiteral("How often should this be looked for?"));
    label->setWordWrap(true);
    builder.add(label);
    auto *always = new MButton(QStringLiteral("Every hour"));
    always->setViewType(QStringLiteral("switch"));
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
    sheet->setCentralWidget(makeTextPage());
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
