// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notecellcreator.h"

#include "daskelassert.h"

#include <daskel/notelistwidget.h>
#include <daskel/notewidget.h>
#include <daskel/notewidgetitemmodel.h>
#include <touchcore/mlabel.h>
#include <touchcore/mwidgetrecycler.h>

namespace
{
template <class Note> NoteWidget *newNote(NoteListWidget *list)
{
    return new Note(KCalCore::Incidence::Ptr(), list);
}

struct NoteClass {
    KCalCore::IncidenceBase::IncidenceType type;
    const char *name;
    NoteWidget *(*make)(NoteListWidget *list);
};
constexpr NoteClass noteClasses[] = {
    {KCalCore::IncidenceBase::TypeEvent, "EventNoteWidget", newNote<EventNoteWidget>},
    {KCalCore::IncidenceBase::TypeTodo, "TodoNoteWidget", newNote<TodoNoteWidget>},
    {KCalCore::IncidenceBase::TypeJournal, "JournalNoteWidget", newNote<JournalNoteWidget>},
};

const NoteClass &classOf(const KCalCore::Incidence &incidence)
{
    for (const NoteClass &noteClass : noteClasses) {
        if (noteClass.type == incidence.type())
            return noteClass;
    }
    DASKEL_ASSERT(false, "notelistwidget", 0);
    return noteClasses[0];
}

MWidget *newEmptyDay(MWidgetRecycler &recycler)
{
    auto *label = static_cast<MLabel *>(recycler.take("MLabel"));
    if (!label)
        label = new MLabel;
    label->setText(qtTrId("qtn_caln_no_events_today"));
    label->setStyleName(QStringLiteral("CommonInboxTitleGray"));
    return label;
}
} // namespace

NoteCellCreator::NoteCellCreator(NoteListWidget *list) : m_list(list) { }

MWidget *NoteCellCreator::createCell(const QModelIndex &index, MWidgetRecycler &recycler) const
{
    const auto incidence = index.data().value<KCalCore::Incidence::Ptr>();
    if (!incidence)
        return newEmptyDay(recycler);
    const NoteClass &noteClass = classOf(*incidence);
    auto *cell = static_cast<NoteWidget *>(recycler.take(noteClass.name));
    if (!cell) {
        cell = noteClass.make(m_list);
        QObject::connect(cell, &NoteWidget::clicked, m_list, &NoteListWidget::noteClicked);
        if (m_deleteReceiver)
            cell->setDeleteNoteReceiver(m_deleteReceiver, m_deleteSlot, Qt::AutoConnection);
    }
    updateCell(index, cell);
    return cell;
}

void NoteCellCreator::updateCell(const QModelIndex &index, MWidget *cell) const
{
    const auto incidence = index.data().value<KCalCore::Incidence::Ptr>();
    auto *note = qobject_cast<NoteWidget *>(cell);
    if (!incidence || !note)
        return;
    note->setNote(incidence, index.data(NoteWidgetItemModel::StartRole).toDateTime(),
                  index.data(NoteWidgetItemModel::EndRole).toDateTime());
    note->setStyleName(m_itemStyleName);
}

QSizeF NoteCellCreator::cellSize() const
{
    if (!m_cellSize.isValid()) {
        EventNoteWidget prototype(KCalCore::Incidence::Ptr(), nullptr);
        prototype.setStyleName(m_itemStyleName);
        m_cellSize = prototype.effectiveSizeHint(Qt::PreferredSize);
    }
    return m_cellSize;
}
