// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef GALLERYPAGES_H
#define GALLERYPAGES_H

#include <QVector>

class MWindow;
class QGraphicsWidget;

/// One thing that the gallery shows.
struct GalleryPage {
    const char *id; ///< the name of its pictures
    const char *title;
    /// Makes what the page holds.
    QGraphicsWidget *(*makeContent)();
    /// What appears above the page, such as a dialog; null when there is nothing.
    void (*open)(MWindow *window);
};

/// All pages, in the order in which they are listed.
const QVector<GalleryPage> &galleryPages();

QGraphicsWidget *makeButtonsPage();
QGraphicsWidget *makeLabelsPage();
QGraphicsWidget *makeTextPage();
QGraphicsWidget *makeListPage();
QGraphicsWidget *makeEndlessListPage();
QGraphicsWidget *makeLayoutsPage();
QGraphicsWidget *makeIconsPage();
QGraphicsWidget *makeDatePage();
QGraphicsWidget *makeTimePage();
QGraphicsWidget *makeChoicesPage();
QGraphicsWidget *makeDialogsPage();

void openDialog(MWindow *window);
void openQuestion(MWindow *window);
void openLongQuestion(MWindow *window);
void openSheet(MWindow *window);
void openBanner(MWindow *window);
void openUndoBanner(MWindow *window);
void openMenu(MWindow *window);

#endif
