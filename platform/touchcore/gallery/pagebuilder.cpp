// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pagebuilder.h"

#include <touchcore/mlabel.h>
#include <touchcore/mstylablewidget.h>
#include <touchcore/mtheme.h>

#include <QGraphicsLinearLayout>

PageBuilder::PageBuilder() : m_page(new MStylableWidget), m_layout(nullptr)
{
    const qreal margin = MTheme::instance()->measure(QStringLiteral("pageMargin"));
    m_layout = new QGraphicsLinearLayout(Qt::Vertical, m_page);
    m_layout->setContentsMargins(margin, margin, margin, margin);
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
    m_layout->addItem(caption);
}

void PageBuilder::add(QGraphicsLayoutItem *item)
{
    m_layout->addItem(item);
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
    auto *row = new QGraphicsLinearLayout(Qt::Horizontal);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);
    for (QGraphicsLayoutItem *item : items) {
        row->addItem(item);
        row->setAlignment(item, Qt::AlignVCenter);
    }
    row->addStretch();
    m_layout->addItem(row);
}
