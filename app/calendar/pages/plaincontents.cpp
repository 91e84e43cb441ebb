// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "plaincontents.h"

#include "loaders/journalloader.h"
#include "loaders/todoloader.h"

TodosContent::TodosContent(NoteDeletion *deletion)
    : NoteListContent(std::make_unique<TodoLoader>(), true, true, deletion)
{
    NoteListContent::retranslate();
}

unsigned int TodosContent::notificationMask() const
{
    return NoteListContent::notificationMask() | MinuteReason;
}

QString TodosContent::title() const
{
    return qtTrId("qtn_dcal_todos");
}

NoteListContent::Empty TodosContent::emptyText() const
{
    return {QStringLiteral("no-todos"), qtTrId("qtn_dcal_no_todos"), qtTrId("qtn_dcal_import")};
}

JournalsContent::JournalsContent(NoteDeletion *deletion)
    : NoteListContent(std::make_unique<JournalLoader>(), false, false, deletion)
{
    NoteListContent::retranslate();
}

QString JournalsContent::title() const
{
    return qtTrId("qtn_dcal_notes");
}

NoteListContent::Empty JournalsContent::emptyText() const
{
    return {QStringLiteral("no-notes"), qtTrId("qtn_dcal_no_notes"), qtTrId("qtn_dcal_import")};
}
