// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "gallerypages.h"

const QVector<GalleryPage> &galleryPages()
{
    static const QVector<GalleryPage> pages{
        {"buttons", "Buttons", makeButtonsPage, nullptr},
        {"labels", "Labels", makeLabelsPage, nullptr},
        {"text", "Text", makeTextPage, nullptr},
        {"date", "Date", makeDatePage, nullptr},
        {"time", "Time", makeTimePage, nullptr},
        {"choices", "Choices and amounts", makeChoicesPage, nullptr},
        {"icons", "Icons", makeIconsPage, nullptr},
        {"list", "List of 10,000 rows", makeListPage, nullptr},
        {"endless-list", "List that grows at both ends", makeEndlessListPage, nullptr},
        {"layouts", "Layouts", makeLayoutsPage, nullptr},
        {"dialogs", "Dialogs, sheets, banners", makeDialogsPage, nullptr},
        {"dialog", "Dialog", makeLabelsPage, openDialog},
        {"question", "Question", makeLabelsPage, openQuestion},
        {"long-question", "Long question", makeLabelsPage, openLongQuestion},
        {"sheet", "Sheet", makeLabelsPage, openSheet},
        {"banner", "Banner", makeLabelsPage, openBanner},
        {"undo-banner", "Banner with undo", makeLabelsPage, openUndoBanner},
        {"menu", "Menu", makeLabelsPage, openMenu},
    };
    return pages;
}
