// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "librarypages.h"

#include <daskel/daskelutility.h>
#include <touchcore/mtheme.h>
#include <touchcore/mwindow.h>

#include <gallerypages.h>

namespace
{
// What is answered changes nothing here but what is drawn.

void openPlainQuestion(MWindow *window)
{
    daskelUtilityAskYesNo(QStringLiteral("Delete \u201cSwimming\u201d on Saturday?"), window,
                          SLOT(update()));
}

void openTitledQuestion(MWindow *window)
{
    daskelUtilityAskYesNoWithTitle(
        QStringLiteral("Delete series"),
        QStringLiteral("This deletes all 12 swimming lessons. You can undo it for 6 seconds."),
        window, SLOT(update()));
}

void openBannerOfALine(MWindow *window)
{
    daskelUtilityShowInfoBanner(window->scene(),
                                QStringLiteral("Saved in the calendar \u201cFamily\u201d"));
}

void openBannerOfTwoLines(MWindow *window)
{
    daskelUtilityShowInfoBanner(
        window->scene(),
        QStringLiteral("Saved in the calendar \u201cFamily\u201d, which is hidden now"));
}
} // namespace

const QVector<GalleryPage> &galleryPages()
{
    // The pages use styles of the library before its first widget is made.
    MTheme::instance()->addLibrary(QStringLiteral("libdaskel"));
    static const QVector<GalleryPage> pages{
        {"header", "Page header", makeHeaderPage, nullptr},
        {"events", "Events", makeEventsPage, nullptr},
        {"todos", "To-dos", makeTodosPage, nullptr},
        {"narrow-notes", "Narrow notes", makeNarrowNotesPage, nullptr},
        {"delete", "Deleting", makeEventsPage, openDeleteQuestion},
        {"states", "States", makeStatesPage, nullptr},
        {"question", "Question", makeHeaderPage, openPlainQuestion},
        {"titled-question", "Question with a title", makeHeaderPage, openTitledQuestion},
        {"banner", "Banner", makeHeaderPage, openBannerOfALine},
        {"long-banner", "Banner of two lines", makeHeaderPage, openBannerOfTwoLines},
    };
    return pages;
}
