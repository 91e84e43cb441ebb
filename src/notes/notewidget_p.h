// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTEWIDGET_P_H
#define DASKEL_NOTEWIDGET_P_H

#include <daskel/notewidget.h>

#include <QPointer>

class QAction;

class NoteWidgetPrivate
{
public:
    NoteWidgetPrivate(NoteWidget *widget, NoteListWidget *noteList);

    void fillModel(const KCalCore::Incidence::Ptr &incidence, const QDateTime &start,
                   const QDateTime &end);
    void rebuildMenu();
    /// The action, made when it is first needed.
    void offer(QAction *&action, const char *textId, void (NoteWidget::*slot)());

    NoteWidget *q;
    QPointer<NoteListWidget> list;
    QAction *markDone = nullptr;
    QAction *markNotDone = nullptr;
    QAction *edit = nullptr;
    /// Where nobody hears of it, the entry would lead nowhere and is not shown.
    bool hasEditor = false;
    QAction *remove = nullptr;
};

#endif
