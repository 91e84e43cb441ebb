// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "gallerypages.h"

#include <touchcore/mimagewidget.h>
#include <touchcore/mlabel.h>
#include <touchcore/mstylablewidget.h>
#include <touchcore/mtheme.h>

#include <QGraphicsGridLayout>
#include <QGraphicsLinearLayout>

namespace
{
const char *const icons[] = {
    "back",         "close",         "add",        "search",       "menu",   "settings",  "check",
    "chevron-left", "chevron-right", "chevron-up", "chevron-down", "today",  "agenda",    "month",
    "week",         "day",           "todo",       "note",         "alarm",  "alarm-off", "repeat",
    "invitation",   "read-only",     "calendar",   "notebook",     "clock",  "location",  "people",
    "person",       "attachment",    "link",       "delete",       "remove", "edit",      "copy",
    "share",        "undo",          "import",     "export",       "sync",   "warning",   "info",
    "error",        "star",          "eye",        "eye-off",      "drag",
};
const int columns = 4;
const qreal columnWidth = 100; // as wide as the longest name, so that all are alike

QGraphicsWidget *captioned(const char *icon)
{
    auto *cell = new MStylableWidget;
    auto *layout = new QGraphicsLinearLayout(Qt::Vertical, cell);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    auto *image = new MImageWidget(QString::fromLatin1(icon));
    image->setPreferredSize(24, 24);
    image->setMaximumSize(24, 24);
    layout->addItem(image);
    layout->setAlignment(image, Qt::AlignHCenter);
    auto *name = new MLabel(QString::fromLatin1(icon));
    name->setStyleName(QStringLiteral("CaptionLabel"));
    name->setAlignment(Qt::AlignCenter);
    layout->addItem(name);
    return cell;
}
} // namespace

QGraphicsWidget *makeIconsPage()
{
    auto *page = new MStylableWidget;
    auto *grid = new QGraphicsGridLayout(page);
    const qreal margin = MTheme::instance()->measure(QStringLiteral("pageMargin"));
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(12);
    int number = 0;
    for (const char *icon : icons) {
        grid->addItem(captioned(icon), number / columns, number % columns);
        ++number;
    }
    for (int column = 0; column < columns; ++column)
        grid->setColumnPreferredWidth(column, columnWidth);
    return page;
}
