// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "gallerypages.h"

const QVector<GalleryPage> &galleryPages()
{
    static const QVector<GalleryPage> pages{
        {"buttons", "Buttons", makeButtonsPage, nullptr, false},
        {"labels", "Labels", makeLabelsPage, nullptr, false},
        {"text", "Text", makeTextPage, nullptr, false},
        {"icons", "Icons", makeIconsPage, nullptr, false},
        {"list", "List of 10,000 rows", makeListPage, nullptr, true},
        {"endless-list", "List that grows at both ends", makeEndlessListPage, nullptr, true},
        {"layouts", "Layouts", makeLayoutsPage, nullptr, false},
        {"dialogs", "Dialogs, sheets, banners", makeDialogsPage, nullptr, false},
        {"dialog", "Dialog", makeLabelsPage, openDialog, false},
        {"question", "Question", makeLabelsPage, openQuestion, false},
        {"long-question", "Long question", makeLabelsPage, openLongQuestion, false},
        {"sheet", "Sheet", makeLabelsPage, openSheet, false},
        {"banner", "Banner", makeLabelsPage, openBanner, false},
        {"undo-banner", "Banner with undo", makeLabelsPage, openUndoBanner, false},
    };
    return pages;
}
