// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "noteheadercreator.h"

#include <daskel/notewidgetitemmodel.h>
#include <kcalcompat/clock.h>
#include <touchcore/mlabel.h>
#include <touchcore/mtheme.h>
#include <touchcore/mwidgetrecycler.h>

#include <QGraphicsLinearLayout>

namespace
{
struct HeaderStyle {
    QString panel;
    QString label;
};

HeaderStyle styleOf(bool isToday)
{
    return isToday ? HeaderStyle{QStringLiteral("CommonGroupHeaderPanelOrange"),
                                 QStringLiteral("CommonGroupHeaderWhite")}
                   : HeaderStyle{QStringLiteral("CommonGroupHeaderPanelGray"),
                                 QStringLiteral("CommonGroupHeaderBlack")};
}
} // namespace

NoteListHeaderWidget::NoteListHeaderWidget(QGraphicsItem *parent)
    : MStylableWidget(parent), m_label(new MLabel(this))
{
    MTheme::instance()->registerStylableType("NoteListHeaderWidget", QStringLiteral("libdaskel"));
    auto *layout = new QGraphicsLinearLayout(Qt::Horizontal, this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addItem(m_label);
}

void NoteListHeaderWidget::show(const QString &label, bool isToday)
{
    const HeaderStyle style = styleOf(isToday);
    setStyleName(style.panel);
    m_label->setStyleName(style.label);
    m_label->setText(label);
}

MWidget *NoteHeaderCreator::createCell(const QModelIndex &index, MWidgetRecycler &recycler) const
{
    auto *header = static_cast<NoteListHeaderWidget *>(recycler.take("NoteListHeaderWidget"));
    if (!header)
        header = new NoteListHeaderWidget;
    updateCell(index, header);
    return header;
}

void NoteHeaderCreator::updateCell(const QModelIndex &index, MWidget *cell) const
{
    const QDate date = index.data(NoteWidgetItemModel::StartRole).toDateTime().date();
    const QDate today = KCalCompat::Clock::now().toLocalTime().date();
    static_cast<NoteListHeaderWidget *>(cell)->show(index.data().toString(), date == today);
}

QSizeF NoteHeaderCreator::cellSize() const
{
    if (!m_cellSize.isValid()) {
        NoteListHeaderWidget prototype;
        prototype.show(QStringLiteral("0"), false);
        m_cellSize = prototype.effectiveSizeHint(Qt::PreferredSize);
    }
    return m_cellSize;
}
