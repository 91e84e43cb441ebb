// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidenceremoval.h"
#include "notetitle.h"

#include <daskel/db_instance.h>
#include <daskel/notebookmanager.h>
#include <daskel/notedeletion.h>
#include <daskel/pageswitcher.h>
#include <touchcore/mbanner.h>
#include <touchcore/mbutton.h>
#include <touchcore/mmessagebox.h>
#include <touchcore/mwindow.h>

#include <QPointer>

namespace
{
struct Choice {
    NoteDeletion::Extent extent;
    const char *textId;
};
constexpr Choice choices[] = {
    {NoteDeletion::ThisOccurrence, "qtn_caln_delete_this"},
    {NoteDeletion::ThisAndLater, "qtn_caln_delete_later"},
    {NoteDeletion::WholeSeries, "qtn_caln_delete_series"},
};

void addDestructive(MDialog *dialog, const QString &text, int result)
{
    dialog->addButton(text, result)->setStyleName(QStringLiteral("DestructiveButton"));
}

MDialog *newQuestion(const QString &title, bool isRepeating)
{
    const char *textId = isRepeating ? "qtn_caln_delete_repeating" : "qtn_caln_delete_question";
    auto *question = new MMessageBox(qtTrId(textId).arg(title), MMessageBox::NoButton);
    if (isRepeating) {
        for (const Choice &choice : choices)
            addDestructive(question, qtTrId(choice.textId), choice.extent);
    } else {
        addDestructive(question, qtTrId("qtn_comm_command_delete"), NoteDeletion::WholeSeries);
    }
    question->addButton(qtTrId("qtn_comm_cancel"), MDialog::Rejected);
    return question;
}

bool canOnlyBeRead(const KCalCore::Incidence::Ptr &incidence)
{
    const QString notebookUid = DbInstance::instance()->calendar()->notebook(incidence);
    const auto notebook = NotebookManager::instance()->getNotebook(notebookUid);
    return incidence->isReadOnly() || (notebook && notebook->isReadOnly());
}
} // namespace

class NoteDeletionPrivate
{
public:
    /// With an offer to undo, or only to be read.
    void tell(const char *textId, NoteDeletion *undoer = nullptr);

    QPointer<MWindow> window;
    IncidenceRemoval removal;
    QString title; ///< of the note that was asked about or deleted last
    QPointer<MDialog> question;
};

void NoteDeletionPrivate::tell(const char *textId, NoteDeletion *undoer)
{
    if (!window)
        return;
    auto *banner = new MBanner;
    banner->setStyleName(QStringLiteral("InformationBanner"));
    banner->setTitle(qtTrId(textId).arg(title));
    if (undoer) {
        banner->setActionText(qtTrId("qtn_comm_undo"));
        QObject::connect(banner, &MBanner::actionClicked, undoer, &NoteDeletion::undo);
    }
    banner->appear(window, MSceneWindow::DestroyWhenDone);
}

NoteDeletion::NoteDeletion(MWindow *window, QObject *parent)
    : QObject(parent), d(std::make_unique<NoteDeletionPrivate>())
{
    d->window = window;
}

NoteDeletion::~NoteDeletion()
{
    delete d->question;
}

void NoteDeletion::ask(const QString &uid, const KDateTime &recurrenceId, const KDateTime &start,
                       const QString &shortTitle)
{
    const auto incidence = DbInstance::instance()->incidence(uid, recurrenceId);
    if (!incidence || !d->window || d->question)
        return;
    d->title = shortTitle.isEmpty() ? shortenedTitle(*incidence) : shortTitle;
    if (canOnlyBeRead(incidence)) {
        d->tell("qtn_caln_delete_read_only");
        return;
    }
    d->question = newQuestion(d->title, incidence->recurs() || incidence->hasRecurrenceId());
    PageSwitcher::instance()->registerAutokillDialog(d->question);
    connect(d->question, &MDialog::finished, this, [=](int answer) {
        if (answer != MDialog::Rejected)
            remove(uid, recurrenceId, start, Extent(answer));
    });
    d->question->appear(d->window, MSceneWindow::DestroyWhenDone);
}

bool NoteDeletion::remove(const QString &uid, const KDateTime &recurrenceId, const KDateTime &start,
                          Extent extent)
{
    const auto incidence = DbInstance::instance()->incidence(uid, recurrenceId);
    if (!incidence)
        return false;
    d->title = shortenedTitle(*incidence);
    if (canOnlyBeRead(incidence)) {
        d->tell("qtn_caln_delete_read_only");
        return false;
    }
    if (!d->removal.remove(uid, recurrenceId, start, extent)) {
        d->tell("qtn_caln_delete_failed");
        return false;
    }
    if (!DbInstance::instance()->save(false)) {
        d->removal.putBack();
        d->tell("qtn_caln_delete_failed");
        return false;
    }
    d->tell("qtn_caln_deleted", this);
    Q_EMIT deleted();
    return true;
}

bool NoteDeletion::undo()
{
    if (d->removal.isEmpty())
        return false;
    d->removal.putBack();
    if (!DbInstance::instance()->save(false)) {
        d->tell("qtn_caln_undo_failed");
        return false;
    }
    Q_EMIT restored();
    return true;
}
