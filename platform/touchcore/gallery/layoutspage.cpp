// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "gallerypages.h"

#include <touchcore/mbutton.h>
#include <touchcore/mgridlayoutpolicy.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlayout.h>
#include <touchcore/mlinearlayoutpolicy.h>
#include <touchcore/mstylablewidget.h>

/// The same seven buttons one below the other in portrait and as a grid in landscape; the button at
/// the top goes round the policies by hand.
QGraphicsWidget *makeLayoutsPage()
{
    auto *page = new MStylableWidget;
    auto *layout = new MLayout(page);
    auto *column = new MLinearLayoutPolicy(layout, Qt::Vertical);
    auto *row = new MLinearLayoutPolicy(layout, Qt::Horizontal);
    auto *grid = new MGridLayoutPolicy(layout);
    auto *next = new MButton(QStringLiteral("Another arrangement"));
    next->setStyleName(QStringLiteral("MainActionButton"));
    column->addItem(next);
    grid->addItem(next, 0, 0, 1, 3);
    row->addItem(next);
    for (int day = 1; day <= 6; ++day) {
        auto *button = new MButton(QStringLiteral("Day %1").arg(day));
        column->addItem(button);
        grid->addItem(button, 1 + (day - 1) / 3, (day - 1) % 3);
        if (day <= 2)
            row->addItem(button);
    }
    for (MAbstractLayoutPolicy *policy :
         {static_cast<MAbstractLayoutPolicy *>(column), static_cast<MAbstractLayoutPolicy *>(row),
          static_cast<MAbstractLayoutPolicy *>(grid)})
        policy->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(8);
    row->setSpacing(8);
    grid->setSpacing(8);
    layout->setPortraitPolicy(column);
    layout->setLandscapePolicy(grid);
    QObject::connect(next, &MButton::clicked, page, [layout, column, row, grid] {
        MAbstractLayoutPolicy *const order[] = {column, grid, row};
        for (int i = 0; i < 3; ++i) {
            if (layout->policy() == order[i]) {
                layout->setPolicy(order[(i + 1) % 3]);
                return;
            }
        }
    });
    return page;
}
