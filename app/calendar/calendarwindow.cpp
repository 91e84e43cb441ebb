// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendarwindow.h"

#include "pages/agendacontent.h"
#include "pages/emptyview.h"
#include "pages/noteviewpage.h"
#include "pages/plaincontents.h"

#include <daskel/calendarconf.h>
#include <daskel/daskelutility.h>
#include <daskel/notedeletion.h>
#include <daskel/notelistwidget.h>
#include <daskel/pageswitcher.h>
#include <touchcore/mapplicationpage.h>
#include <touchcore/mlayout.h>
#include <touchcore/mlinearlayoutpolicy.h>

namespace
{
/// The bar below the content or, in landscape, before it.
MWidget *framed(MWidget *content, PageBar *bar)
{
    auto *frame = new MWidget;
    auto *layout = new MLayout;
    auto *portrait = new MLinearLayoutPolicy(layout, Qt::Vertical);
    portrait->addItem(content);
    portrait->setStretchFactor(content, 1);
    portrait->addItem(bar);
    auto *landscape = new MLinearLayoutPolicy(layout, Qt::Horizontal);
    landscape->addItem(bar);
    landscape->addItem(content);
    landscape->setStretchFactor(content, 1);
    layout->setPortraitPolicy(portrait);
    layout->setLandscapePolicy(landscape);
    frame->setLayout(layout);
    return frame;
}
} // namespace

CalendarWindow::CalendarWindow()
    : m_deletion(new NoteDeletion(this, this)), m_noteView(new NoteViewPage(m_deletion)),
      m_errorPage(new MApplicationPage), m_error(new EmptyView)
{
    makePage(PageBar::Agenda, new AgendaContent(m_deletion));
    makePage(PageBar::Todos, new TodosContent(m_deletion));
    makePage(PageBar::Journals, new JournalsContent(m_deletion));
    m_errorPage->setHeaderVisible(false);
    m_errorPage->setCentralWidget(m_error);
    connect(m_error, &EmptyView::buttonClicked, this, &CalendarWindow::retryWanted);
    setWindowTitle(qtTrId("qtn_dcal_calendar"));
}

CalendarWindow::~CalendarWindow()
{
    PageSwitcher *switcher = PageSwitcher::instance();
    while (switcher->latestWindow())
        switcher->popPages(1, true);
    for (MApplicationPage *page : m_pages)
        delete page;
    delete m_noteView;
    delete m_errorPage;
}

void CalendarWindow::makePage(PageBar::Page page, NoteListContent *content)
{
    m_contents[page] = content;
    m_bars[page] = new PageBar(page);
    connect(m_bars[page], &PageBar::pageChosen, this,
            [this](int chosen) { showPage(PageBar::Page(chosen)); });
    connect(content, &NoteListContent::noteChosen, this, &CalendarWindow::showNote);
    connect(content, &NoteListContent::importWanted, this, &CalendarWindow::importWanted);
    m_pages[page] = new MApplicationPage;
    m_pages[page]->setHeaderVisible(false);
    m_pages[page]->setCentralWidget(
        framed(daskelUtilityWrapVisibilityNotificationIF(content, nullptr), m_bars[page]));
}

AgendaContent *CalendarWindow::agenda() const
{
    return static_cast<AgendaContent *>(m_contents[PageBar::Agenda]);
}

void CalendarWindow::showPage(PageBar::Page page)
{
    m_current = page;
    PageSwitcher::instance()->showPage(m_pages[page], true, true);
    // The keys are those of the list.
    m_contents[page]->list()->setFocus();
    if (CalendarConf::instance()->lastActiveTab() != page)
        CalendarConf::instance()->setLastActiveTab(page);
}

void CalendarWindow::showNote(const QString &uid, const KDateTime &recurrenceId,
                              const QDateTime &start)
{
    m_noteView->showNote(uid, recurrenceId, start);
    PageSwitcher::instance()->showPage(m_noteView, false, false);
}

void CalendarWindow::showError(const QString &text)
{
    m_error->show(QStringLiteral("error"), text, qtTrId("qtn_dcal_try_again"));
    PageSwitcher::instance()->showPage(m_errorPage, true, true);
}

void CalendarWindow::showCalendar()
{
    const int last = CalendarConf::instance()->lastActiveTab();
    const bool isKnown = last >= 0 && last < PageBar::pageCount;
    showPage(isKnown ? PageBar::Page(last) : PageBar::Agenda);
}

void CalendarWindow::retranslate()
{
    setWindowTitle(qtTrId("qtn_dcal_calendar"));
    for (NoteListContent *content : m_contents)
        content->retranslate();
    for (PageBar *bar : m_bars)
        bar->retranslate();
    m_noteView->retranslate();
}
