// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/sqlitestorage_p.h"

#include <kcalcompat/clock.h>

#include <algorithm>
#include <sqlite3.h>

namespace mKCal
{
bool SqliteStoragePrivate::readNotebooks()
{
    Notebook::List stored;
    if (!tables->notebooks.read(&stored))
        return false;
    const Notebook::List former = notebooks;
    notebooks.clear();
    for (const Notebook::Ptr &notebook : qAsConst(stored)) {
        // Whoever holds a notebook of ours goes on with the right one.
        Notebook::Ptr kept = notebook;
        for (const Notebook::Ptr &known : former) {
            if (known->uid() == notebook->uid())
                kept = known;
        }
        if (kept != notebook && *kept != *notebook)
            *kept = *notebook;
        notebooks.append(kept);
        tellCalendar(*kept);
    }
    defaultNotebook = tables->meta.defaultNotebook();
    if (notebookIndex(defaultNotebook) < 0)
        defaultNotebook.clear();
    else
        calendar->setDefaultNotebook(defaultNotebook);
    for (const Notebook::Ptr &known : former) {
        if (notebookIndex(known->uid()) < 0)
            forgetNotebook(known->uid());
    }
    return true;
}

void SqliteStoragePrivate::tellCalendar(const Notebook &notebook)
{
    if (calendar->hasValidNotebook(notebook.uid()))
        calendar->updateNotebook(notebook.uid(), notebook.isVisible());
    else
        calendar->addNotebook(notebook.uid(), notebook.isVisible());
}

void SqliteStoragePrivate::forgetNotebook(const QString &uid)
{
    const ChangeRecord::Pause pause(changes);
    const QString refuge = fallbackNotebook();
    const KCalCore::Incidence::List members = calendar->incidences(uid);
    for (const KCalCore::Incidence::Ptr &incidence : members) {
        // The notebook was deleted elsewhere; what is unsaved here is not lost with it.
        if (changes.contains(IncidenceKey::of(*incidence)) && !refuge.isEmpty())
            calendar->setNotebook(incidence, refuge);
    }
    calendar->deleteNotebook(uid);
}

int SqliteStoragePrivate::notebookIndex(const QString &uid) const
{
    for (int i = 0; i < notebooks.size(); ++i) {
        if (notebooks.at(i)->uid() == uid)
            return i;
    }
    return -1;
}

QString SqliteStoragePrivate::fallbackNotebook() const
{
    if (!defaultNotebook.isEmpty())
        return defaultNotebook;
    return notebooks.isEmpty() ? QString() : notebooks.first()->uid();
}

bool SqliteStoragePrivate::refuseNotebook(int code, const QString &reason)
{
    connection.noteError(code, reason);
    return false;
}

bool SqliteStoragePrivate::isKnownNotebook(const Notebook::Ptr &notebook)
{
    if (notebook && notebookIndex(notebook->uid()) >= 0)
        return true;
    return refuseNotebook(
        SQLITE_NOTFOUND,
        QStringLiteral("there is no notebook \"%1\"").arg(notebook ? notebook->uid() : QString()));
}

bool SqliteStoragePrivate::insertNotebook(const Notebook::Ptr &notebook)
{
    if (!notebook || notebook->uid().isEmpty())
        return refuseNotebook(SQLITE_MISUSE, QStringLiteral("a notebook needs a UID"));
    const auto isNew = [this, &notebook] {
        return notebookIndex(notebook->uid()) < 0
            || refuseNotebook(
                   SQLITE_CONSTRAINT,
                   QStringLiteral("the notebook \"%1\" exists already").arg(notebook->uid()));
    };
    // Asked again in the transaction: another process may have added it just now.
    if (!isNew() || !write(Counter::Moves, [&](qint64) {
            return isNew() && tables->notebooks.insert(*notebook);
        }))
        return false;
    notebooks.append(Notebook::Ptr::create(*notebook));
    tellCalendar(*notebook);
    return true;
}

bool SqliteStoragePrivate::updateNotebook(const Notebook::Ptr &notebook, bool *changed)
{
    if (!isKnownNotebook(notebook))
        return false;
    // A caller that changed our own object has changed it all the same.
    const Notebook::Ptr &known = notebooks.at(notebookIndex(notebook->uid()));
    *changed = known == notebook || *known != *notebook;
    if (!*changed)
        return true;
    if (!write(Counter::Moves, [&](qint64) {
            return isKnownNotebook(notebook) && tables->notebooks.update(*notebook);
        }))
        return false;
    const Notebook::Ptr &updated = notebooks.at(notebookIndex(notebook->uid()));
    if (updated != notebook)
        *updated = *notebook;
    tellCalendar(*notebook);
    return true;
}

bool SqliteStoragePrivate::removeNotebook(const QString &uid)
{
    const bool removed = write(Counter::Moves, [&](qint64 change) {
        Statement &dropReminders =
            connection.statement("DELETE FROM Reminders WHERE uid IN"
                                 " (SELECT uid FROM Components WHERE state = 0 AND notebook = ?)");
        dropReminders.bind(1, uid);
        return dropReminders.run()
            && tables->writer.retireNotebook(uid, change,
                                             KCalCompat::Clock::now().toSecsSinceEpoch())
            && tables->notebooks.remove(uid)
            && (defaultNotebook != uid || tables->meta.setDefaultNotebook(QStringLiteral("")));
    });
    if (!removed)
        return false;
    const int index = notebookIndex(uid);
    if (index >= 0)
        notebooks.removeAt(index);
    if (defaultNotebook == uid)
        defaultNotebook.clear();
    dropFromMemory(uid);
    return true;
}

void SqliteStoragePrivate::dropFromMemory(const QString &uid)
{
    const KCalCore::Incidence::List members = calendar->incidences(uid);
    for (const KCalCore::Incidence::Ptr &incidence : members)
        changes.forget(IncidenceKey::of(*incidence));
    const ChangeRecord::Pause pause(changes);
    calendar->deleteNotebook(uid);
}

bool SqliteStoragePrivate::makeDefault(const QString &uid, bool *changed)
{
    *changed = uid != defaultNotebook;
    if (!*changed)
        return true;
    if (!write(Counter::Moves, [&](qint64) { return tables->meta.setDefaultNotebook(uid); }))
        return false;
    defaultNotebook = uid;
    calendar->setDefaultNotebook(uid);
    return true;
}

bool SqliteStorage::addNotebook(const Notebook::Ptr &notebook, bool signal)
{
    StorageCall call(*d);
    const bool added = d->isOpen() && d->insertNotebook(notebook);
    return d->notebookCallEnded(call, added, signal, QStringLiteral("notebook added"));
}

bool SqliteStorage::updateNotebook(const Notebook::Ptr &notebook)
{
    StorageCall call(*d);
    bool changed = false;
    const bool updated = d->isOpen() && d->updateNotebook(notebook, &changed);
    return d->notebookCallEnded(call, updated, changed, QStringLiteral("notebook changed"));
}

bool SqliteStorage::deleteNotebook(const Notebook::Ptr &notebook, bool onlyMemory)
{
    StorageCall call(*d);
    if (!d->isOpen() || !d->isKnownNotebook(notebook))
        return d->notebookCallEnded(call, false, false, QString());
    if (!onlyMemory) {
        const bool deleted = d->removeNotebook(notebook->uid());
        return d->notebookCallEnded(call, deleted, true, QStringLiteral("notebook deleted"));
    }
    d->dropFromMemory(notebook->uid());
    d->tellCalendar(*notebook);
    d->calendar->setDefaultNotebook(d->defaultNotebook);
    d->loaded.clear();
    return d->notebookCallEnded(call, true, false, QString());
}

bool SqliteStorage::setDefaultNotebook(const Notebook::Ptr &notebook)
{
    StorageCall call(*d);
    bool changed = false;
    const bool set =
        d->isOpen() && d->isKnownNotebook(notebook) && d->makeDefault(notebook->uid(), &changed);
    return d->notebookCallEnded(call, set, changed, QStringLiteral("default notebook changed"));
}

bool SqliteStorage::resetDefaultNotebook()
{
    StorageCall call(*d);
    const Notebook::List &notebooks = d->notebooks;
    const auto fitting =
        std::find_if(notebooks.begin(), notebooks.end(), [](const Notebook::Ptr &notebook) {
            return notebook->isVisible() && !notebook->isHidden() && !notebook->isReadOnly();
        });
    bool changed = false;
    const bool reset =
        d->isOpen() && fitting != notebooks.end() && d->makeDefault((*fitting)->uid(), &changed);
    return d->notebookCallEnded(call, reset, changed, QStringLiteral("default notebook changed"));
}

bool SqliteStoragePrivate::notebookCallEnded(StorageCall &call, bool succeeded, bool signal,
                                             const QString &info)
{
    notebookErrors = succeeded ? QList<int>() : connection.errorCodes();
    call.ended(succeeded);
    call.release();
    if (succeeded && signal)
        notify(info);
    return succeeded;
}

Notebook::List SqliteStorage::notebooks()
{
    const StorageCall call(*d);
    return d->notebooks;
}

Notebook::Ptr SqliteStorage::notebook(const QString &uid)
{
    const StorageCall call(*d);
    const int index = d->notebookIndex(uid);
    return index < 0 ? Notebook::Ptr() : d->notebooks.at(index);
}

Notebook::Ptr SqliteStorage::defaultNotebook()
{
    const StorageCall call(*d);
    return notebook(d->defaultNotebook);
}
} // namespace mKCal
