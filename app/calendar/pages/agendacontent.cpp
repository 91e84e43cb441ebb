// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "agendacontent.h"

#include "datedialog.h"
#include "loaders/agendaloader.h"
#include "loaders/dates.h"

#include <daskel/daskelpageheaderwidget.h>
#include <daskel/db_instance.h>
#include <daskel/notelistwidget.h>
#include <daskel/notewidgetitemmodel.h>
#include <touchcore/mbutton.h>
#include <touchcore/mpannableviewport.h>

#include <QGraphicsLinearLayout>
#include <QItemSelectionModel>

#include <algorithm>

namespace
{
QDate dayOf(const QModelIndex &header)
{
    return header.data(NoteWidgetItemModel::StartRole).toDateTime().date();
}
} // namespace

AgendaContent::AgendaContent(NoteDeletion *deletion)
    : NoteListContent(std::make_unique<AgendaLoader>(), true, true, deletion),
      m_jumpButton(new MButton(this))
{
    m_jumpButton->setViewType(QStringLiteral("icon"));
    m_jumpButton->setStyleName(QStringLiteral("IconButton"));
    m_jumpButton->setIconID(QStringLiteral("calendar"));
    m_jumpButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    headerRow()->addItem(m_jumpButton);
    headerRow()->setAlignment(m_jumpButton, Qt::AlignVCenter);
    connect(m_jumpButton, &MButton::clicked, this, &AgendaContent::chooseDate);
    connect(header()->getButtonWidget(), &MButton::clicked, this, &AgendaContent::goToToday);
    AgendaContent::retranslate();
}

AgendaLoader *AgendaContent::agenda() const
{
    return static_cast<AgendaLoader *>(loader());
}

void AgendaContent::retranslate()
{
    m_jumpButton->setText(qtTrId("qtn_dcal_jump_to_date"));
    header()->getButtonWidget()->setText(qtTrId("qtn_dcal_today"));
    NoteListContent::retranslate();
}

QString AgendaContent::title() const
{
    return Dates::monthLabel(m_shownMonth.isValid() ? m_shownMonth : Dates::today());
}

NoteListContent::Empty AgendaContent::emptyText() const
{
    return {QStringLiteral("no-events"), qtTrId("qtn_dcal_no_events"), qtTrId("qtn_dcal_import")};
}

/// A calendar with nothing in it at all: only today's header is there.
bool AgendaContent::isEmpty() const
{
    if (list()->noteCount() > 0 || noteModel()->rowCount() > 1)
        return false;
    const auto storage = DbInstance::instance()->storage();
    return !storage->nextDateWithIncidence(Dates::today()).isValid()
        && !storage->previousDateWithIncidence(Dates::today()).isValid();
}

void AgendaContent::notifyUpdate(unsigned int reasons)
{
    const bool followsMidnight = (reasons & DateReason) && m_isAtToday;
    NoteListContent::notifyUpdate(reasons);
    if (followsMidnight)
        goToToday();
}

void AgendaContent::prepareReload(const QDate &topDay)
{
    if (!m_isJumping)
        agenda()->setAnchor(topDay);
}

void AgendaContent::jumpTo(const QDate &day)
{
    QModelIndex header = headerFrom(day);
    if (!header.isValid()) {
        m_isJumping = true;
        agenda()->setAnchor(day);
        list()->setRefreshEnabled();
        NoteListContent::notifyUpdate(DataReason);
        m_isJumping = false;
        header = headerFrom(day);
        // The nearest day with something is later than the one asked for, or earlier.
        const QModelIndex first = noteModel()->index(0, 0);
        if (!header.isValid())
            header =
                dayOf(first) > day ? first : noteModel()->index(noteModel()->rowCount() - 1, 0);
    }
    list()->scrollTo(header, MList::PositionAtTop);
    viewChanged();
    lookAtEdges();
}

void AgendaContent::goToToday()
{
    jumpTo(Dates::today());
}

void AgendaContent::goHome()
{
    goToToday();
    // The arrows go on from what is seen now.
    list()->selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
}

QModelIndex AgendaContent::headerFrom(const QDate &day) const
{
    const NoteWidgetItemModel *model = noteModel();
    const int count = model->rowCount();
    if (count == 0 || dayOf(model->index(0, 0)) > day)
        return {};
    for (int row = 0; row < count; ++row) {
        if (dayOf(model->index(row, 0)) >= day)
            return model->index(row, 0);
    }
    return {};
}

bool AgendaContent::isTodayInView() const
{
    const QDate today = Dates::today();
    const QModelIndexList visible = list()->visibleItems();
    return std::any_of(visible.cbegin(), visible.cend(), [&](const QModelIndex &index) {
        return dayOf(index.parent().isValid() ? index.parent() : index) == today;
    });
}

void AgendaContent::viewChanged()
{
    const QDate top = topDay();
    m_isAtToday = !top.isValid() || isTodayInView();
    header()->setButtonVisible(!m_isAtToday);
    const QDate month = top.isValid() ? QDate(top.year(), top.month(), 1) : QDate();
    if (month != m_shownMonth) {
        m_shownMonth = month;
        header()->setTitle(title());
    }
}

void AgendaContent::chooseDate()
{
    askForDate(topDay().isValid() ? topDay() : Dates::today(),
               [this](const QDate &day) { jumpTo(day); });
}
