// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTEDELETION_H
#define DASKEL_NOTEDELETION_H

#include <kcalcompat/kdatetime.h>

#include <QObject>

#include <memory>

class MWindow;
class NoteDeletionPrivate;

/// Deletes notes as a person wants it: asks once, deletes, and offers for a moment to undo it.
///
/// One for a window, which has to live as long. Undo brings back everything: reminders,
/// participants, the other occurrences, the notebook. Only the last deletion can be undone. UI
/// thread only; DbInstance has to be enabled.
class NoteDeletion : public QObject
{
    Q_OBJECT

public:
    /// How much of a repeating note; a note that does not repeat goes as a whole.
    enum Extent {
        ThisOccurrence = 1,
        ThisAndLater = 2,
        WholeSeries = 3,
    };
    Q_ENUM(Extent)

    explicit NoteDeletion(MWindow *window, QObject *parent = nullptr);
    ~NoteDeletion() override;

    /// Deletes without asking and shows the banner. \a start is that of the occurrence, or of a
    /// day's piece of it. False, with a banner that says so, when the note can only be read or was
    /// not saved as deleted: nothing is changed then. False and nothing said when there is no such
    /// note.
    bool remove(const QString &uid, const KDateTime &recurrenceId, const KDateTime &start,
                Extent extent);

public Q_SLOTS:
    /// Asks, of a repeating note also how much of it, and does as is answered. Fits
    /// NoteWidget::deleteNote(). \a shortTitle: what the note is called in the question; its title
    /// when empty.
    void ask(const QString &uid, const KDateTime &recurrenceId, const KDateTime &start,
             const QString &shortTitle = QString());
    /// Brings back what was deleted last. False when there is nothing, or when it was not saved.
    bool undo();

Q_SIGNALS:
    void deleted();
    void restored();

private:
    std::unique_ptr<NoteDeletionPrivate> d;
};

#endif
