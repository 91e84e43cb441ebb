// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pagebuilder.h"

#include <touchcore/mlabel.h>
#include <touchcore/mstylablewidget.h>
#include <touchcore/mtheme.h>

#include <QGraphicsLinearLayout>

PageBuilder::PageBuilder(Edges edges)
    : m_margin(edges == PageEdges ? MTheme::instance()->measure(QStringLiteral("pageMargin")) : 0),
      m_page(new MStylableWidget), m_layout(new QGraphicsLinearLayout(Qt::Vertical, m_page))
{
    m_layout->setContentsMargins(0, m_margin, 0, m_margin);
    m_layout->setSpacing(MTheme::instance()->measure(QStringLiteral("itemSpacing")));
}

QGraphicsWidget *PageBuilder::page()
{
    m_layout->addStretch();
    return m_page;
}

void PageBuilder::addCaption(const QString &text)
{
    auto *caption = new MLabel(text);
    caption->setStyleName(QStringLiteral("CaptionLabel"));
    if (m_layout->count() > 0)
        m_layout->setItemSpacing(m_layout->count() - 1,
                                 MTheme::instance()->measure(QStringLiteral("groupSpacing")));
    add(caption);
}

void PageBuilder::add(QGraphicsLayoutItem *item)
{
    newRow()->addItem(item);
}

void PageBuilder::addWide(QGraphicsLayoutItem *item)
{
    m_layout->addItem(item);
    m_layout->setItemSpacing(m_layout->count() - 1, 0);
}

void PageBuilder::addRow(const QList<QGraphicsLayoutItem *> &items)
{
    addRow(items, MTheme::instance()->measure(QStringLiteral("itemSpacing")));
}

void PageBuilder::addJoined(const QList<QGraphicsLayoutItem *> &items)
{
    addRow(items, 0);
}

void PageBuilder::addRow(const QList<QGraphicsLayoutItem *> &items, qreal spacing)
{
    QGraphicsLinearLayout *row = newRow();
    row->setSpacing(spacing);
    for (QGraphicsLayoutItem *item : items) {
        row->addItem(item);
        row->setAlignment(item, Qt::AlignVCenter);
    }
    row->addStretch();
}

QGraphicsLinearLayout *PageBuilder::newRow()
{
    auto *row = new QGraphicsLinearLayout(Qt::Horizontal);
    row->setContentsMargins(m_margin, 0, m_margin, 0);
    // What room there is left stays at the page's end.
    row->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_layout->addItem(row);
    return row;
}
