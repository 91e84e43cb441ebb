// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pagebar.h"

#include <touchcore/mbutton.h>
#include <touchcore/mbuttongroup.h>
#include <touchcore/mlayout.h>
#include <touchcore/mlinearlayoutpolicy.h>

namespace
{
struct Tab {
    const char *icon;
    const char *textId;
};
constexpr Tab tabs[PageBar::pageCount] = {
    {"agenda", "qtn_dcal_agenda"},
    {"todo", "qtn_dcal_todos"},
    {"note", "qtn_dcal_notes"},
};
} // namespace

PageBar::PageBar(Page current, QGraphicsItem *parent)
    : MStylableWidget(parent), m_group(new MButtonGroup(this)), m_current(current)
{
    setStyleName(QStringLiteral("PageBar"));
    auto *layout = new MLayout;
    auto *row = new MLinearLayoutPolicy(layout, Qt::Horizontal);
    auto *column = new MLinearLayoutPolicy(layout, Qt::Vertical);
    for (int page = 0; page < pageCount; ++page) {
        auto *button = new MButton(this);
        button->setViewType(QStringLiteral("tab"));
        button->setStyleName(QStringLiteral("TabButton"));
        button->setIconID(QLatin1String(tabs[page].icon));
        m_group->addButton(button, page);
        row->addItem(button);
        row->setStretchFactor(button, 1);
        column->addItem(button);
    }
    column->addStretch();
    layout->setPortraitPolicy(row);
    layout->setLandscapePolicy(column);
    setLayout(layout);
    m_group->setCheckedId(current);
    connect(m_group, &MButtonGroup::buttonClicked, this, [this](int page) {
        // The bar of this page goes on showing this page.
        m_group->setCheckedId(m_current);
        Q_EMIT pageChosen(page);
    });
    retranslate();
}

void PageBar::retranslate()
{
    for (int page = 0; page < pageCount; ++page)
        m_group->button(page)->setText(qtTrId(tabs[page].textId));
}
