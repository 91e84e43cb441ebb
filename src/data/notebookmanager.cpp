// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storageerror_p.h"

#include <daskel/db_instance.h>
#include <daskel/notebookmanager.h>

#include <algorithm>

using mKCal::Notebook;
using mKCal::SqliteStorage;

class NotebookManagerPrivate
{
public:
    explicit NotebookManagerPrivate(NotebookManager *manager) : q(manager) { }

    static mKCal::ExtendedStorage::Ptr storage() { return DbInstance::instance()->storage(); }

    bool isSameAs(const Notebook::List &stored) const;
    Notebook::List::iterator find(const QString &uid);
    /// Tells how a change ended.
    void report(bool accepted) const;

    Notebook::List notebooks;
    NotebookManager *const q;
};

bool NotebookManagerPrivate::isSameAs(const Notebook::List &stored) const
{
    if (stored.size() != notebooks.size())
        return false;
    for (int i = stored.size() - 1; i >= 0; --i) {
        if (*stored.at(i) != *notebooks.at(i))
            return false;
    }
    return true;
}

Notebook::List::iterator NotebookManagerPrivate::find(const QString &uid)
{
    return std::find_if(notebooks.begin(), notebooks.end(),
                        [&uid](const Notebook::Ptr &notebook) { return notebook->uid() == uid; });
}

void NotebookManagerPrivate::report(bool accepted) const
{
    if (accepted)
        Q_EMIT q->notebooksModified(NotebookManager::NoModifyError);
    else if (Daskel::hasStorageError10(storage(), &SqliteStorage::modifyNotebookErrors))
        Q_EMIT q->notebooksModified(NotebookManager::ModifyStorageError10);
    else
        Q_EMIT q->notebooksModified(NotebookManager::ModifyFailed);
}

NotebookManager::NotebookManager() : d(std::make_unique<NotebookManagerPrivate>(this))
{
    qRegisterMetaType<NotebookManager::ModifyError>();
    connect(DbInstance::instance(), &DbInstance::dataUpdated, this, &NotebookManager::dataUpdated);
    dataUpdated();
}

NotebookManager::~NotebookManager() = default;

NotebookManager *NotebookManager::instance()
{
    static NotebookManager manager;
    return &manager;
}

QList<QSharedPointer<Notebook>> NotebookManager::notebooks() const
{
    return d->notebooks;
}

QSharedPointer<Notebook> NotebookManager::getNotebook(const QString &uid) const
{
    return NotebookManagerPrivate::storage()->notebook(uid);
}

QSharedPointer<Notebook> NotebookManager::getDefaultNotebook() const
{
    return NotebookManagerPrivate::storage()->defaultNotebook();
}

void NotebookManager::dataUpdated()
{
    const Notebook::List stored = NotebookManagerPrivate::storage()->notebooks();
    // All stored notebooks are compared with those that are listed: one hidden notebook makes them
    // differ every time. A list that is read too often is cheap, one that missed a change is wrong.
    if (d->isSameAs(stored))
        return;
    d->notebooks.clear();
    for (const Notebook::Ptr &notebook : stored) {
        if (!notebook->isHidden())
            d->notebooks.append(Notebook::Ptr::create(*notebook));
    }
    Q_EMIT notebooksChanged();
}

bool NotebookManager::addNotebook(const QSharedPointer<Notebook> &notebook)
{
    const bool added = NotebookManagerPrivate::storage()->addNotebook(notebook, true);
    if (added) {
        // The storage tells of the new notebook, so the list may have a copy of it by now.
        const auto listed = d->find(notebook->uid());
        if (listed == d->notebooks.end())
            d->notebooks.append(notebook);
        else
            *listed = notebook;
    }
    d->report(added);
    return added;
}

bool NotebookManager::updateNotebook(const QSharedPointer<Notebook> &notebook)
{
    const bool updated = NotebookManagerPrivate::storage()->updateNotebook(notebook);
    if (updated) {
        const auto listed = d->find(notebook->uid());
        if (listed != d->notebooks.end())
            *listed = notebook;
    }
    d->report(updated);
    return updated;
}

bool NotebookManager::deleteNotebook(const QSharedPointer<Notebook> &notebook)
{
    if (!notebook)
        return false;
    const auto storage = NotebookManagerPrivate::storage();
    const auto defaultNotebook = storage->defaultNotebook();
    const bool wasDefault = defaultNotebook && defaultNotebook->uid() == notebook->uid();

    const bool deleted = storage->deleteNotebook(notebook, false);
    if (deleted) {
        const auto listed = d->find(notebook->uid());
        if (listed != d->notebooks.end())
            d->notebooks.erase(listed);
    }
    d->report(deleted);
    if (deleted && wasDefault)
        storage->resetDefaultNotebook();
    return deleted;
}

bool NotebookManager::setIncidenceNotebook(const QSharedPointer<KCalCore::Incidence> &incidence,
                                           const QString &uid)
{
    const auto notebook = getNotebook(uid);
    if (!notebook || !notebook->incidenceAllowed(incidence))
        return false;
    return DbInstance::instance()->calendar()->setNotebook(incidence, uid);
}
