// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "gallerywindow.h"

#include "gallerypages.h"

#include <touchcore/mapplicationpage.h>
#include <touchcore/mbutton.h>
#include <touchcore/mpannableviewport.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mstylablewidget.h>
#include <touchcore/mtheme.h>
#include <touchcore/mwindow.h>

#include <QAction>
#include <QGraphicsLinearLayout>
#include <QGuiApplication>

namespace
{
MPannableViewport *pannable(QGraphicsWidget *content)
{
    auto *viewport = new MPannableViewport;
    viewport->setWidget(content);
    return viewport;
}

void addSwitches(MApplicationPage *page)
{
    auto *scheme = new QAction(QStringLiteral("Light or dark"), page);
    QObject::connect(scheme, &QAction::triggered, [] {
        MTheme *theme = MTheme::instance();
        theme->setColorScheme(theme->colorScheme() == M::DarkScheme ? M::LightScheme
                                                                    : M::DarkScheme);
    });
    auto *direction = new QAction(QStringLiteral("Left or right"), page);
    QObject::connect(direction, &QAction::triggered, [] {
        const bool isMirrored = QGuiApplication::isRightToLeft();
        QGuiApplication::setLayoutDirection(isMirrored ? Qt::LeftToRight : Qt::RightToLeft);
    });
    auto *size = new QAction(QStringLiteral("Text at 100 or 130 %"), page);
    QObject::connect(size, &QAction::triggered, [] {
        MTheme *theme = MTheme::instance();
        theme->setTextScale(theme->textScale() > 1 ? 1 : 1.3);
    });
    for (QAction *action : {scheme, direction, size}) {
        action->setPriority(QAction::LowPriority);
        page->addAction(action);
    }
}
} // namespace

void showGalleryIndex(MWindow *window)
{
    auto *index = new MStylableWidget;
    auto *layout = new QGraphicsLinearLayout(Qt::Vertical, index);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (const GalleryPage &page : galleryPages()) {
        auto *entry = new MButton(QString::fromUtf8(page.title));
        entry->setStyleName(QStringLiteral("RowButton"));
        QObject::connect(entry, &MButton::clicked, window,
                         [window, page] { showGalleryPage(window, page); });
        layout->addItem(entry);
    }
    auto *page = new MApplicationPage;
    page->setTitle(QStringLiteral("Gallery"));
    page->setCentralWidget(pannable(index));
    addSwitches(page);
    page->appear(window, MSceneWindow::DestroyWhenDismissed);
}

void showGalleryPage(MWindow *window, const GalleryPage &entry)
{
    auto *page = new MApplicationPage;
    page->setTitle(QString::fromUtf8(entry.title));
    page->setCentralWidget(pannable(entry.makeContent()));
    addSwitches(page);
    page->appear(window, MSceneWindow::DestroyWhenDismissed);
    if (entry.open)
        entry.open(window);
}
