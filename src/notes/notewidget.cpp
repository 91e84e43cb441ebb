// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notedetails.h"
#include "notetimes.h"
#include "notetitle.h"
#include "notewidget_p.h"

#include <daskel/db_instance.h>
#include <daskel/notebookmanager.h>
#include <daskel/notelistwidget.h>
#include <kcalcompat/clock.h>
#include <touchcore/mtheme.h>

#include <KCalendarCore/Todo>

#include <QAction>
#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QMetaMethod>

namespace
{
/// How far a finger may stray from the note and still be meant for it, in pixels.
constexpr qreal strayDistance = 30;

NoteWidgetModel::NoteType typeOf(const KCalCore::Incidence &incidence)
{
    switch (incidence.type()) {
    case KCalCore::Incidence::TypeEvent:
        return NoteWidgetModel::EventNote;
    case KCalCore::Incidence::TypeTodo:
        return NoteWidgetModel::TodoNote;
    default:
        return NoteWidgetModel::JournalNote;
    }
}

QColor colorOf(const KCalCore::Incidence::Ptr &incidence)
{
    const QString notebookUid = DbInstance::instance()->calendar()->notebook(incidence);
    const auto notebook = NotebookManager::instance()->getNotebook(notebookUid);
    return notebook ? QColor(notebook->color()) : QColor();
}
} // namespace

NoteWidgetPrivate::NoteWidgetPrivate(NoteWidget *widget, NoteListWidget *noteList)
    : q(widget), list(noteList)
{
}

void NoteWidgetPrivate::fillModel(const KCalCore::Incidence::Ptr &incidence, const QDateTime &start,
                                  const QDateTime &end)
{
    NoteWidgetModel *model = q->model();
    const MModelTransaction transaction(model);
    model->reportNote();
    model->setUid(incidence->uid());
    model->setRecurrenceId(KDateTime(incidence->recurrenceId()));
    model->setHasAlarm(incidence->hasEnabledAlarms());
    model->setColor(colorOf(incidence));
    model->setType(typeOf(*incidence));
    model->setTitle(noteTitle(*incidence));
    model->setLocation(incidence->location());
    model->setStartTime(start);
    model->setEndTime(end);
    model->setAllDay(incidence->allDay());
    model->setDescription(incidence->description());
    model->setLastModified(incidence->lastModified().toLocalTime());
    model->setCreated(incidence->created().toLocalTime());
    const auto todo = incidence.dynamicCast<KCalCore::Todo>();
    model->setDueDate(todo && todo->hasDueDate() ? todo->dtDue() : QDateTime());
    model->setCompleted(todo && todo->isCompleted());
    model->setTentative(incidence->status() == KCalCore::Incidence::StatusTentative);
    model->setReadOnly(incidence->isReadOnly());
}

void NoteWidgetPrivate::rebuildMenu()
{
    for (QAction *action : {markDone, markNotDone, edit, remove}) {
        if (action)
            q->removeAction(action);
    }
    const NoteWidgetModel *model = q->model();
    if (model->type() == NoteWidgetModel::TodoNote && !model->completed())
        offer(markDone, "qtn_caln_mark_compl", &NoteWidget::setCompleted);
    else if (model->type() == NoteWidgetModel::TodoNote)
        offer(markNotDone, "qtn_caln_mark_uncompl", &NoteWidget::setUncompleted);
    if (model->type() == NoteWidgetModel::EventNote && !model->readOnly()) {
        offer(edit, "qtn_comm_edit", &NoteWidget::editActionActivated);
        edit->setVisible(hasEditor);
    }
    offer(remove, "qtn_comm_command_delete", &NoteWidget::deleteActionActivated);
}

void NoteWidgetPrivate::offer(QAction *&action, const char *textId, void (NoteWidget::*slot)())
{
    if (!action) {
        action = new QAction(q);
        QObject::connect(action, &QAction::triggered, q, [this, slot] { (q->*slot)(); });
    }
    action->setText(qtTrId(textId));
    q->addAction(action);
}

NoteWidget::NoteWidget(const QSharedPointer<KCalCore::Incidence> &incidence, NoteListWidget *list)
    : MWidgetController(new NoteWidgetModel, nullptr),
      d(std::make_unique<NoteWidgetPrivate>(this, list))
{
    MTheme::instance()->registerStylableType("NoteWidget", QStringLiteral("libdaskel"));
    setFocusPolicy(Qt::StrongFocus);
    if (incidence)
        setNote(incidence);
}

NoteWidget::~NoteWidget() = default;

NoteWidgetModel *NoteWidget::model() const
{
    return static_cast<NoteWidgetModel *>(MWidgetController::model());
}

void NoteWidget::setNote(const QSharedPointer<KCalCore::Incidence> &incidence,
                         const QDateTime &start, const QDateTime &end)
{
    d->fillModel(incidence, start, end);
    d->rebuildMenu();
}

void NoteWidget::setNote(const QSharedPointer<KCalCore::Incidence> &incidence)
{
    setNote(incidence, incidence->dtStart().toLocalTime(),
            incidence->dateTime(KCalCore::Incidence::RoleEnd).toLocalTime());
}

QSharedPointer<KCalCore::Incidence> NoteWidget::note() const
{
    return DbInstance::instance()->incidence(model()->uid(), model()->recurrenceId());
}

NoteWidgetModel::NoteType NoteWidget::noteType() const
{
    return model()->type();
}

QDateTime NoteWidget::startTime() const
{
    return model()->startTime();
}

void NoteWidget::setStartTime(const QDateTime &start)
{
    model()->setStartTime(start);
}

QDateTime NoteWidget::endTime() const
{
    return model()->endTime();
}

void NoteWidget::setEndTime(const QDateTime &end)
{
    model()->setEndTime(end);
}

bool NoteWidget::isAllDay() const
{
    return model()->allDay();
}

bool NoteWidget::isCompleted() const
{
    return model()->completed();
}

QColor NoteWidget::color() const
{
    return model()->color();
}

bool NoteWidget::isSqueezed() const
{
    return model()->squeezed();
}

void NoteWidget::setSqueezed(bool isSqueezed)
{
    model()->setSqueezed(isSqueezed);
}

void NoteWidget::setClickReceiver(QObject *receiver, const char *slot)
{
    connect(this, SIGNAL(noteClicked(QString, KDateTime, KDateTime)), receiver, slot);
}

void NoteWidget::setEditNoteReceiver(QObject *receiver, const char *slot)
{
    connect(this, SIGNAL(editNote(QString, KDateTime, KDateTime)), receiver, slot);
}

void NoteWidget::setDeleteNoteReceiver(QObject *receiver, const char *slot, Qt::ConnectionType type)
{
    connect(this, SIGNAL(deleteNote(QString, KDateTime, KDateTime, QString)), receiver, slot, type);
}

QString NoteWidget::accessibleName() const
{
    const NoteDetails details = noteDetails(*this);
    const NoteTimes times = noteTimes(*model(), details, KCalCompat::Clock::now().toLocalTime());
    QStringList said{model()->title(), times.first, times.second, model()->location()};
    if (model()->completed())
        said.append(qtTrId("qtn_caln_completed"));
    else if (times.isOverdue)
        said.append(qtTrId("qtn_caln_overdue"));
    if (details.isCancelled)
        said.append(qtTrId("qtn_caln_cancelled"));
    said.removeAll(QString());
    return said.join(QStringLiteral(", "));
}

void NoteWidget::retranslateUI()
{
    d->rebuildMenu();
    const MModelTransaction transaction(model());
    model()->reportNote();
    if (const auto incidence = note())
        model()->setTitle(noteTitle(*incidence));
}

void NoteWidget::updateData(const QList<const char *> &modifications)
{
    MWidgetController::updateData(modifications);
}

void NoteWidget::viewActionActivated()
{
    if (!model()->uid().isEmpty())
        Q_EMIT noteClicked(model()->uid(), model()->recurrenceId(), KDateTime(startTime()));
}

void NoteWidget::editActionActivated()
{
    if (model()->uid().isEmpty())
        return;
    Q_EMIT editNote(model()->uid(), model()->recurrenceId(), KDateTime(startTime()));
    Q_EMIT clicked();
}

void NoteWidget::deleteActionActivated()
{
    if (model()->uid().isEmpty())
        return;
    Q_EMIT deleteNote(model()->uid(), model()->recurrenceId(), KDateTime(startTime()),
                      model()->deleteNoteShortTitle());
    Q_EMIT clicked();
}

void NoteWidget::setCompleted()
{
    setCompleted(true);
}

void NoteWidget::setUncompleted()
{
    setCompleted(false);
}

void NoteWidget::setCompleted(bool isCompleted)
{
    model()->setCompleted(isCompleted);
    saveCompleted();
}

void NoteWidget::toggleCompleted()
{
    setCompleted(!isCompleted());
}

void NoteWidget::saveCompleted()
{
    const auto todo = note().dynamicCast<KCalCore::Todo>();
    if (!todo)
        return;
    if (todo->isReadOnly()) {
        // It would take some of the changes and refuse others.
        model()->setCompleted(todo->isCompleted());
        return;
    }
    todo->startUpdates();
    todo->setCompleted(isCompleted());
    todo->setRevision(todo->revision() + 1);
    const KCalCore::Alarm::List alarms = todo->alarms();
    for (const KCalCore::Alarm::Ptr &alarm : alarms)
        alarm->setEnabled(!isCompleted());
    todo->endUpdates();
    // The list shows the change already: it need not reload for it.
    if (d->list)
        d->list->setRefreshDisabled();
    DbInstance::instance()->save(false);
    model()->setHasAlarm(todo->hasEnabledAlarms());
    d->rebuildMenu();
}

void NoteWidget::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    model()->setPressed(true);
    event->accept();
}

void NoteWidget::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    const QRectF reach = mapRectToScene(rect()).adjusted(-strayDistance, -strayDistance,
                                                         strayDistance, strayDistance);
    model()->setPressed(reach.contains(event->scenePos()));
}

void NoteWidget::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    const bool isTap = model()->pressed();
    model()->setPressed(false);
    event->accept();
    if (isTap) {
        viewActionActivated();
        Q_EMIT clicked();
    }
}

void NoteWidget::contextMenuEvent(QGraphicsSceneContextMenuEvent *event)
{
    MWidgetController::contextMenuEvent(event);
    model()->setPressed(false);
}

void NoteWidget::connectNotify(const QMetaMethod &signal)
{
    if (signal != QMetaMethod::fromSignal(&NoteWidget::editNote))
        return;
    d->hasEditor = true;
    if (d->edit)
        d->edit->setVisible(true);
}

void NoteWidget::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        viewActionActivated();
        Q_EMIT clicked();
    } else if (event->key() == Qt::Key_Delete) {
        deleteActionActivated();
    } else {
        MWidgetController::keyPressEvent(event);
    }
}

void NoteWidget::cancelEvent()
{
    model()->setPressed(false);
}

EventNoteWidget::EventNoteWidget(const QSharedPointer<KCalCore::Incidence> &incidence,
                                 NoteListWidget *list)
    : NoteWidget(incidence, list)
{
    setViewType(QStringLiteral("event-note"));
}

TodoNoteWidget::TodoNoteWidget(const QSharedPointer<KCalCore::Incidence> &incidence,
                               NoteListWidget *list)
    : NoteWidget(incidence, list)
{
    setViewType(QStringLiteral("todo-note"));
}

JournalNoteWidget::JournalNoteWidget(const QSharedPointer<KCalCore::Incidence> &incidence,
                                     NoteListWidget *list)
    : NoteWidget(incidence, list)
{
    setViewType(QStringLiteral("journal-note"));
}
