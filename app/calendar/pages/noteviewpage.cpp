// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "noteviewpage.h"

#include "noteviewcontent.h"

#include <daskel/daskelutility.h>
#include <daskel/notedeletion.h>
#include <daskel/pageswitcher.h>
#include <touchcore/mpannableviewport.h>

#include <QAction>
#include <QGraphicsLinearLayout>

NoteViewPage::NoteViewPage(NoteDeletion *deletion)
    : m_content(new NoteViewContent), m_delete(new QAction(this))
{
    auto *viewport = new MPannableViewport;
    viewport->setWidget(daskelUtilityWrapVisibilityNotificationIF(m_content, nullptr));
    auto *central = new MWidget;
    QGraphicsLinearLayout *layout = nullptr;
    daskelUtilityNewVerticalLayout(layout, central);
    layout->addItem(viewport);
    setCentralWidget(central);
    m_delete->setProperty("iconID", QStringLiteral("delete"));
    addAction(m_delete);
    connect(m_delete, &QAction::triggered, this, [this, deletion] {
        deletion->ask(m_content->uid(), m_content->recurrenceId(), KDateTime(m_content->start()));
    });
    connect(m_content, &NoteViewContent::noteGone, this, [this] {
        if (PageSwitcher::instance()->latestWindow() == this)
            PageSwitcher::instance()->backClicked();
    });
    retranslate();
}

void NoteViewPage::showNote(const QString &uid, const KDateTime &recurrenceId,
                            const QDateTime &start)
{
    m_content->showNote(uid, recurrenceId, start);
    setTitle(m_content->kindText());
}

void NoteViewPage::retranslate()
{
    m_delete->setText(qtTrId("qtn_comm_command_delete"));
    m_content->refresh();
    setTitle(m_content->kindText());
}
