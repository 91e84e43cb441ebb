// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTEWIDGET_H
#define DASKEL_NOTEWIDGET_H

#include <daskel/notewidgetmodel.h>
#include <kcalcompat/kcalcore.h>
#include <touchcore/mwidgetcontroller.h>

#include <QSharedPointer>

class NoteListWidget;
class NoteWidgetPrivate;

/// One occurrence of a note, in a list or alone.
///
/// It copies what it shows from the incidence when it is given one, offers what can be done with it
/// as its object menu, and saves a to-do that is ticked off. What is tapped or chosen is told by
/// UID, recurrence identifier and start. UI thread only.
class NoteWidget : public MWidgetController
{
    Q_OBJECT
    /// What is read aloud of it.
    Q_PROPERTY(QString accessibleName READ accessibleName)

public:
    /// \a list: the list that it belongs to, which then does not reload for a to-do that is ticked
    /// off here; null for none.
    NoteWidget(const QSharedPointer<KCalCore::Incidence> &incidence, NoteListWidget *list);
    ~NoteWidget() override;

    NoteWidgetModel *model() const;

    /// Shows the occurrence from \a start to \a end.
    void setNote(const QSharedPointer<KCalCore::Incidence> &incidence, const QDateTime &start,
                 const QDateTime &end);
    /// With the incidence's own start and end.
    void setNote(const QSharedPointer<KCalCore::Incidence> &incidence);
    /// The incidence as it is stored now; null when it is gone.
    QSharedPointer<KCalCore::Incidence> note() const;

    NoteWidgetModel::NoteType noteType() const;
    QDateTime startTime() const;
    void setStartTime(const QDateTime &start);
    QDateTime endTime() const;
    void setEndTime(const QDateTime &end);
    bool isAllDay() const;
    bool isCompleted() const;
    QColor color() const;
    /// Drawn in the little room of a grid: title alone.
    bool isSqueezed() const;
    void setSqueezed(bool isSqueezed);

    /// Title, times and place, and whether it is done, overdue or cancelled.
    QString accessibleName() const;

    // Connect the signals below to a slot written with SLOT().
    void setClickReceiver(QObject *receiver, const char *slot);
    void setEditNoteReceiver(QObject *receiver, const char *slot);
    void setDeleteNoteReceiver(QObject *receiver, const char *slot, Qt::ConnectionType type);

Q_SIGNALS:
    void noteClicked(QString uid, KDateTime recurrenceId, KDateTime startTime);
    void editNote(QString uid, KDateTime recurrenceId, KDateTime startTime);
    void deleteNote(QString uid, KDateTime recurrenceId, KDateTime startTime, QString prefTitle);
    void clicked();

public Q_SLOTS:
    /// Takes the texts of the menu anew from the catalogues.
    void retranslateUI();
    /// Called with the names of the members of the model that changed; tells the view.
    void updateData(const QList<const char *> &modifications) override;
    void editActionActivated();
    void deleteActionActivated();
    void setCompleted();
    void setUncompleted();
    /// Opens the note: noteClicked().
    void viewActionActivated();

public:
    void setCompleted(bool isCompleted);
    void toggleCompleted();
    /// Writes the to-do's completion into the incidence and saves; a done to-do rings no more.
    void saveCompleted();

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void contextMenuEvent(QGraphicsSceneContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void cancelEvent() override;
    /// The menu offers to edit once somebody is connected to editNote().
    void connectNotify(const QMetaMethod &signal) override;

private:
    std::unique_ptr<NoteWidgetPrivate> d;
};

/// The classes of the kinds of notes, so that themes and recyclers tell them apart.
class EventNoteWidget : public NoteWidget
{
    Q_OBJECT

public:
    EventNoteWidget(const QSharedPointer<KCalCore::Incidence> &incidence, NoteListWidget *list);
};

class TodoNoteWidget : public NoteWidget
{
    Q_OBJECT

public:
    TodoNoteWidget(const QSharedPointer<KCalCore::Incidence> &incidence, NoteListWidget *list);
};

class JournalNoteWidget : public NoteWidget
{
    Q_OBJECT

public:
    JournalNoteWidget(const QSharedPointer<KCalCore::Incidence> &incidence, NoteListWidget *list);
};

#endif
