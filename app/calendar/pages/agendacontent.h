// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef AGENDACONTENT_H
#define AGENDACONTENT_H

#include "notelistcontent.h"

#include <QDate>

class AgendaLoader;
class MButton;

/// The agenda: its header names the month in view and, away from today, has the way back; a button
/// beside it jumps to any date.
class AgendaContent : public NoteListContent
{
    Q_OBJECT

public:
    explicit AgendaContent(NoteDeletion *deletion);

    /// Shows the agenda from \a day on, however far that is.
    void jumpTo(const QDate &day);
    void goToToday();

    void notifyUpdate(unsigned int reasons) override;
    void retranslate() override;

protected:
    QString title() const override;
    Empty emptyText() const override;
    bool isEmpty() const override;
    void prepareReload(const QDate &topDay) override;
    void viewChanged() override;
    void goHome() override;

private:
    AgendaLoader *agenda() const;
    /// The header of \a day or of the first day after it that is loaded; invalid when the day lies
    /// outside of what is loaded.
    QModelIndex headerFrom(const QDate &day) const;
    bool isTodayInView() const;
    void chooseDate();

    MButton *m_jumpButton;
    QDate m_shownMonth;
    bool m_isAtToday = true;
    bool m_isJumping = false;
};

#endif
