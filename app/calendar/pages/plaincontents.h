// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef PLAINCONTENTS_H
#define PLAINCONTENTS_H

#include "notelistcontent.h"

/// The to-dos in their groups. Every minute something may become overdue.
class TodosContent : public NoteListContent
{
    Q_OBJECT

public:
    explicit TodosContent(NoteDeletion *deletion);

    unsigned int notificationMask() const override;

protected:
    QString title() const override;
    Empty emptyText() const override;
};

/// The notes that are no appointments, the newest first.
class JournalsContent : public NoteListContent
{
    Q_OBJECT

public:
    explicit JournalsContent(NoteDeletion *deletion);

protected:
    QString title() const override;
    Empty emptyText() const override;
};

#endif
