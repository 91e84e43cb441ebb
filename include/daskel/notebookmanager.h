// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTEBOOKMANAGER_H
#define DASKEL_NOTEBOOKMANAGER_H

#include <mkcal/notebook.h>

#include <QObject>

#include <memory>

class NotebookManagerPrivate;

/// The person's notebooks, for lists and pickers: what there is, and adding, changing, deleting.
///
/// One for the process, on the UI thread. The list follows DbInstance::dataUpdated(). Its entries
/// are copies: editing one changes nothing until updateNotebook().
class NotebookManager : public QObject
{
    Q_OBJECT
public:
    /// How a change of a notebook ended; the numbers are fixed.
    enum ModifyError : qint32 {
        NoModifyError = 0,
        ModifyFailed = 1,
        ModifyStorageError10 = 2 ///< SQLite's SQLITE_IOERR was among the errors
    };
    Q_ENUM(ModifyError)

    static NotebookManager *instance();

    /// All notebooks but hidden ones, in the storage's order.
    QList<QSharedPointer<mKCal::Notebook>> notebooks() const;
    /// The stored notebook of that UID, a hidden one too; null when there is none.
    QSharedPointer<mKCal::Notebook> getNotebook(const QString &uid) const;
    QSharedPointer<mKCal::Notebook> getDefaultNotebook() const;

    // Changes: true when the storage accepted; notebooksModified() is emitted either way.

    bool addNotebook(const QSharedPointer<mKCal::Notebook> &notebook);
    bool updateNotebook(const QSharedPointer<mKCal::Notebook> &notebook);
    /// Deletes the notebook with its incidences; another one becomes the default when it was that.
    /// False, without a signal, for null.
    bool deleteNotebook(const QSharedPointer<mKCal::Notebook> &notebook);

    /// Puts an incidence of the calendar into another notebook; unsaved until DbInstance::save().
    /// False, and nothing changed, when there is no such notebook or it does not allow that kind.
    bool setIncidenceNotebook(const QSharedPointer<KCalCore::Incidence> &incidence,
                              const QString &uid);

Q_SIGNALS:
    /// The list was read anew.
    void notebooksChanged();
    /// A change was tried here.
    void notebooksModified(NotebookManager::ModifyError error);

public Q_SLOTS:
    /// Reads the list from the storage when it differs.
    void dataUpdated();

private:
    NotebookManager();
    ~NotebookManager() override;
    Q_DISABLE_COPY(NotebookManager)

    std::unique_ptr<NotebookManagerPrivate> d;
};

#endif
