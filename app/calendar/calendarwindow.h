// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef CALENDARWINDOW_H
#define CALENDARWINDOW_H

#include "pages/pagebar.h"

#include <kcalcompat/kdatetime.h>
#include <touchcore/mwindow.h>

class AgendaContent;
class EmptyView;
class MApplicationPage;
class NoteDeletion;
class NoteListContent;
class NoteViewPage;

/// The window of the calendar: its pages and the way between them.
class CalendarWindow : public MWindow
{
    Q_OBJECT

public:
    CalendarWindow();
    ~CalendarWindow() override;

    void showPage(PageBar::Page page);
    PageBar::Page currentPage() const { return m_current; }
    /// \a start is that of the occurrence, or of a day's piece of it.
    void showNote(const QString &uid, const KDateTime &recurrenceId, const QDateTime &start);
    /// In place of everything else, with a button to try again.
    void showError(const QString &text);
    /// The first page, once the calendar can be read.
    void showCalendar();

    /// Takes the texts anew from the catalogues, after another language was chosen.
    void retranslate();

    AgendaContent *agenda() const;
    NoteListContent *content(PageBar::Page page) const { return m_contents[page]; }
    NoteDeletion *deletion() const { return m_deletion; }
    NoteViewPage *noteView() const { return m_noteView; }

Q_SIGNALS:
    void importWanted();
    void retryWanted();

private:
    void makePage(PageBar::Page page, NoteListContent *content);

    NoteDeletion *m_deletion;
    NoteListContent *m_contents[PageBar::pageCount] = {};
    MApplicationPage *m_pages[PageBar::pageCount] = {};
    PageBar *m_bars[PageBar::pageCount] = {};
    NoteViewPage *m_noteView;
    MApplicationPage *m_errorPage;
    EmptyView *m_error;
    PageBar::Page m_current = PageBar::Agenda;
};

#endif
