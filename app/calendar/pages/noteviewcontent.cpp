// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "noteviewcontent.h"

#include "links.h"
#include "notetext.h"

#include <daskel/daskelutility.h>
#include <daskel/db_instance.h>
#include <daskel/mycolorlabel.h>
#include <daskel/notebookmanager.h>
#include <daskel/notewidget.h>
#include <daskel/openlink.h>
#include <touchcore/mapplication.h>
#include <touchcore/mbutton.h>
#include <touchcore/mlabel.h>

#include <KCalendarCore/Alarm>
#include <KCalendarCore/Attachment>
#include <KCalendarCore/Todo>

#include <QGraphicsLinearLayout>
#include <QSaveFile>
#include <QUrl>

using KCalCore::Incidence;

NoteViewContent::NoteViewContent(QGraphicsItem *parent) : MStylableWidget(parent)
{
    setStyleName(QStringLiteral("NoteView"));
    daskelUtilityNewVerticalLayout(m_layout, this);
}

void NoteViewContent::showNote(const QString &uid, const KDateTime &recurrenceId,
                               const QDateTime &start)
{
    m_uid = uid;
    m_recurrenceId = recurrenceId;
    m_start = start;
    refresh();
}

Incidence::Ptr NoteViewContent::incidence() const
{
    return m_uid.isEmpty() ? Incidence::Ptr()
                           : DbInstance::instance()->incidence(m_uid, m_recurrenceId);
}

QString NoteViewContent::kindText() const
{
    const Incidence::Ptr note = incidence();
    if (note && note->type() == Incidence::TypeTodo)
        return qtTrId("qtn_dcal_todo");
    return note && note->type() == Incidence::TypeJournal ? qtTrId("qtn_dcal_note")
                                                          : qtTrId("qtn_dcal_event");
}

unsigned int NoteViewContent::notificationMask() const
{
    return DataReason | ConfigurationReason | DateReason | NotebooksReason;
}

void NoteViewContent::notifyUpdate(unsigned int)
{
    refresh();
}

void NoteViewContent::refresh()
{
    if (m_uid.isEmpty())
        return;
    const Incidence::Ptr note = incidence();
    if (!note) {
        m_uid.clear();
        Q_EMIT noteGone();
        return;
    }
    clear();
    addTitle(note);
    addSection(nullptr, NoteText::repetition(*note));
    if (!note->location().isEmpty()) {
        addSection("qtn_dcal_place", note->location());
        addLink(qtTrId("qtn_dcal_show_map"), Links::mapAddress(*note));
    }
    const auto alarms = note->alarms();
    QStringList reminders;
    for (const auto &alarm : alarms) {
        if (alarm->enabled())
            reminders << NoteText::reminder(*alarm);
    }
    addSection("qtn_dcal_reminders", reminders.join(QLatin1Char('\n')));
    addSection("qtn_dcal_description", Links::plainDescription(*note));
    addPeople(*note);
    addLinks(*note);
    addCompletion(note);
    m_layout->addStretch();
    updateGeometry();
}

void NoteViewContent::clear()
{
    while (m_layout->count() > 0) {
        QGraphicsLayoutItem *item = m_layout->itemAt(0);
        m_layout->removeAt(0);
        if (item->graphicsItem())
            static_cast<QGraphicsWidget *>(item->graphicsItem())->deleteLater();
        else
            delete item;
    }
    // Stretches belong to the layout.
    setLayout(nullptr);
    daskelUtilityNewVerticalLayout(m_layout, this);
}

void NoteViewContent::addTitle(const Incidence::Ptr &note)
{
    const QString title = note->summary().simplified();
    addText(title.isEmpty() ? qtTrId("qtn_caln_no_title") : title, "NoteViewTitle");
    if (note->status() == Incidence::StatusCanceled)
        addText(qtTrId("qtn_caln_cancelled"), "NoteViewWarning");
    else if (note->status() == Incidence::StatusTentative)
        addText(qtTrId("qtn_dcal_tentative"), "NoteViewCaption");
    const auto notebook = NotebookManager::instance()->getNotebook(
        DbInstance::instance()->calendar()->notebook(note));
    if (notebook) {
        auto *row = new MStylableWidget(this);
        auto *layout = new QGraphicsLinearLayout(Qt::Horizontal, row);
        layout->setContentsMargins(0, 0, 0, 0);
        auto *swatch = new MyColorLabel(row);
        swatch->setColor(QColor(notebook->color()));
        auto *name = new MLabel(notebook->name(), row);
        name->setStyleName(QStringLiteral("SupportLabel"));
        layout->addItem(swatch);
        layout->setAlignment(swatch, Qt::AlignVCenter);
        layout->addItem(name);
        row->setStyleName(QStringLiteral("NoteViewNotebook"));
        m_layout->addItem(row);
    }
    addSection(nullptr, NoteText::when(note, m_start));
}

void NoteViewContent::addPeople(const Incidence &note)
{
    QStringList people;
    const KCalCore::Person organizer = note.organizer();
    if (!organizer.isEmpty()) {
        people << qtTrId("qtn_dcal_organizer")
                      .arg(organizer.name().isEmpty() ? organizer.email() : organizer.name());
    }
    const auto attendees = note.attendees();
    for (const auto &attendee : attendees) {
        // Who invites comes, and stands there already.
        const bool isOrganizer = !organizer.email().isEmpty()
            && attendee.email().compare(organizer.email(), Qt::CaseInsensitive) == 0;
        if (!isOrganizer)
            people << NoteText::participant(attendee);
    }
    addSection("qtn_dcal_participants", people.join(QLatin1Char('\n')));
}

void NoteViewContent::addLinks(const Incidence &note)
{
    const auto attachments = note.attachments();
    if (attachments.isEmpty() && note.url().isEmpty())
        return;
    addText(qtTrId("qtn_dcal_attachments"), "NoteViewCaption");
    if (!note.url().isEmpty())
        addLink(note.url().toDisplayString(), note.url().toString());
    for (const auto &attachment : attachments) {
        const QString address = attachment.uri();
        const QString name = attachment.label().isEmpty() ? address : attachment.label();
        if (!address.isEmpty())
            addLink(name, address);
        else
            addEnclosed(attachment);
    }
}

void NoteViewContent::addSection(const char *captionId, const QString &text)
{
    if (text.isEmpty())
        return;
    if (captionId)
        addText(qtTrId(captionId), "NoteViewCaption");
    addText(text, "NoteViewText");
}

void NoteViewContent::addText(const QString &text, const char *styleName)
{
    auto *label = new MLabel(text, this);
    label->setStyleName(QLatin1String(styleName));
    label->setWordWrap(true);
    m_layout->addItem(label);
}

void NoteViewContent::addLink(const QString &text, const QString &address)
{
    auto *button = new MButton(text, this);
    button->setStyleName(QStringLiteral("NoteViewLink"));
    m_layout->addItem(button);
    connect(button, &MButton::clicked, this,
            [address] { openLink(QUrl(address), MApplication::activeApplicationWindow()); });
}

/// What lies in the note itself is written out for the program that opens it.
void NoteViewContent::addEnclosed(const KCalCore::Attachment &attachment)
{
    const QString name = Links::fileName(attachment);
    auto *button = new MButton(name, this);
    button->setStyleName(QStringLiteral("NoteViewLink"));
    m_layout->addItem(button);
    connect(button, &MButton::clicked, this, [this, attachment, name] {
        if (!m_enclosed)
            m_enclosed = std::make_unique<QTemporaryDir>();
        const QString fileName = m_enclosed->filePath(name);
        QSaveFile file(fileName);
        if (file.open(QIODevice::WriteOnly) && file.write(attachment.decodedData()) >= 0
            && file.commit())
            openLink(QUrl::fromLocalFile(fileName), MApplication::activeApplicationWindow());
    });
}

/// Ticking off is what one does with a to-do.
void NoteViewContent::addCompletion(const Incidence::Ptr &note)
{
    const auto todo = note.dynamicCast<KCalCore::Todo>();
    if (!todo || todo->isReadOnly())
        return;
    const bool isDone = todo->isCompleted();
    auto *button =
        new MButton(isDone ? qtTrId("qtn_caln_mark_uncompl") : qtTrId("qtn_caln_mark_compl"), this);
    button->setStyleName(QStringLiteral("MainActionButton"));
    m_layout->addItem(button);
    connect(button, &MButton::clicked, this, [this, isDone] {
        if (const Incidence::Ptr shown = incidence()) {
            NoteWidget ticked(shown, nullptr);
            ticked.setCompleted(!isDone);
        }
    });
}
