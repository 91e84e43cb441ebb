// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTEWIDGETMODEL_H
#define DASKEL_NOTEWIDGETMODEL_H

#include <kcalcompat/kdatetime.h>
#include <touchcore/mwidgetmodel.h>

#include <QColor>
#include <QDateTime>
#include <QString>

/// What is shown of one occurrence of a note.
class NoteWidgetModel : public MWidgetModel
{
    Q_OBJECT

public:
    /// The numbers are fixed.
    enum NoteType {
        JournalNote = 0,
        EventNote = 1,
        TodoNote = 2,
    };
    Q_ENUM(NoteType)

    M_MODEL_PROPERTY(NoteWidgetModel::NoteType, type, setType, JournalNote)
    M_MODEL_PROPERTY(QString, uid, setUid)
    M_MODEL_PROPERTY(KDateTime, recurrenceId, setRecurrenceId)
    M_MODEL_PROPERTY(QColor, color, setColor)
    M_MODEL_PROPERTY(QDateTime, startTime, setStartTime)
    M_MODEL_PROPERTY(QDateTime, endTime, setEndTime)
    M_MODEL_PROPERTY(bool, allDay, setAllDay, false)
    M_MODEL_PROPERTY(QString, title, setTitle)
    M_MODEL_PROPERTY(QString, location, setLocation)
    M_MODEL_PROPERTY(QString, description, setDescription)
    M_MODEL_PROPERTY(QDateTime, lastModified, setLastModified)
    M_MODEL_PROPERTY(QDateTime, created, setCreated)
    M_MODEL_PROPERTY(bool, hasAlarm, setHasAlarm, false)
    M_MODEL_PROPERTY(bool, selected, setSelected, false)
    M_MODEL_PROPERTY(bool, pressed, setPressed, false)
    M_MODEL_PROPERTY(bool, squeezed, setSqueezed, false)
    M_MODEL_PROPERTY(QDateTime, dueDate, setDueDate)
    M_MODEL_PROPERTY(bool, completed, setCompleted, false)
    M_MODEL_PROPERTY(bool, tentative, setTentative, false)
    M_MODEL_PROPERTY(QString, deleteNoteShortTitle, setDeleteNoteShortTitle)
    M_MODEL_PROPERTY(bool, readOnly, setReadOnly, false)

public:
    /// Tells the view that the note is another one, although the members may be the same: what it
    /// shows also depends on the time, the language, and what stands in the incidence alone.
    void reportNote() { memberModified("uid"); }
};

#endif
