// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "db_instance_p.h"
#include "storageerror_p.h"

#include <mkcal/sqlitestorage.h>

#include <QTimer>

namespace
{
constexpr int firstDeferralMs = 100;
constexpr int furtherDeferralMs = 200;
constexpr int maxDeferrals = 5;
/// How often the pending change of a notebook was put off again, in this process.
int deferrals = 0;
} // namespace

bool DbInstance::save()
{
    return save(false);
}

bool DbInstance::save(bool ignoreOwnSave)
{
    if (!d)
        return false;
    if (!isEnabled()) {
        qWarning("Saving with DB not enabled!!!!");
        return false;
    }
    tryOpenDatabase();
    // Stays set when the save fails: the next notification clears it.
    if (!ignoreOwnSave)
        d->ownSavePending = true;

    const bool ok = d->storage->save();
    if (ok) {
        Q_EMIT dbSaved(DbSaveOk);
    } else {
        qWarning("Error while saving to Db...");
        const bool ioError =
            Daskel::hasStorageError10(d->storage, &mKCal::SqliteStorage::saveErrors);
        Q_EMIT dbSaved(ioError ? DbSaveStorageError10 : DbSaveFailed);
    }
    if (d)
        d->lastSaveFailed = !ok;
    return ok;
}

void DbInstance::updateNotebook(const QSharedPointer<mKCal::Notebook> &notebook)
{
    if (!d)
        return;
    if (d->initRunning.load(std::memory_order_acquire)) {
        d->pendingNotebook = notebook;
        QTimer::singleShot(firstDeferralMs, this, SLOT(updateNotebookAsync()));
        return;
    }
    d->storage->updateNotebook(notebook);
    save(true);
}

void DbInstance::updateNotebookAsync()
{
    if (!d)
        return;
    if (d->initRunning.load(std::memory_order_acquire) && deferrals < maxDeferrals) {
        QTimer::singleShot(furtherDeferralMs, this, SLOT(updateNotebookAsync()));
        ++deferrals;
        return;
    }
    d->storage->updateNotebook(d->pendingNotebook);
    deferrals = 0;
    save(true);
}
