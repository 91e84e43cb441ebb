// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_BULKWRITER_H
#define MKCAL_BULKWRITER_H

#include <kcalcompat/kcalcore.h>
#include <kcalcompat/kdatetime.h>

namespace mKCal
{
/// Writes many incidences straight into the database in one transaction, past the calendar in
/// memory: for imports and synchronisation. Got from ExtendedStorage::bulkWriter(), owned by the
/// caller, used on the storage's thread, gone before the storage is.
///
/// Nothing is stored until commit() succeeds; destroyed before that, all is rolled back. Meanwhile
/// the storage refuses to save, and other processes wait for their turn: be quick. After a refusal
/// of the database the writer is of no more use.
class BulkWriter
{
public:
    virtual ~BulkWriter() = default;

    /// What is stored under that UID and recurrence identifier (what this writer wrote included);
    /// null when there is nothing.
    virtual KCalCore::Incidence::Ptr find(const QString &uid, const KDateTime &recurrenceId) = 0;
    /// The notebook that holds that UID; empty when none does.
    virtual QString notebook(const QString &uid) = 0;
    /// Stores @p incidence in place of what find() answers. A UID that is already in a notebook
    /// stays in it; a new one goes into @p notebookUid. Its created() and lastModified() are kept,
    /// and set to now where it has none. False on a storage error (then the whole
    /// transaction is void) and for an unknown notebook.
    virtual bool write(const KCalCore::Incidence::Ptr &incidence, const QString &notebookUid) = 0;
    /// Deletes it, a series with its exceptions, leaving tombstones. True when there was nothing.
    virtual bool remove(const QString &uid, const KDateTime &recurrenceId) = 0;
    /// Stores everything, brings the calendar in memory up to date for what was loaded there, and
    /// notifies the observers once. False when the database refused; nothing is stored then.
    virtual bool commit() = 0;
    /// What went wrong, with the file's name; empty when nothing did.
    virtual QString errorMessage() const = 0;
};
} // namespace mKCal

#endif
