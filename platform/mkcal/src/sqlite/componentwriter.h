// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_COMPONENTWRITER_H
#define MKCAL_COMPONENTWRITER_H

#include <kcalcompat/kcalcore.h>

#include <memory>

namespace mKCal
{
class Connection;
class ComponentWriterPrivate;

/// Which row holds a live incidence.
struct StoredComponent {
    qint64 id = 0; ///< 0: there is none
    QString notebook;
    qint64 change = 0; ///< the change counter at its last write
    int flags = 0; ///< which child tables have rows of it
};

/// Writes incidences with everything that belongs to them, in the transaction that its caller has
/// begun. Every call answers false when the database refused; the connection knows why.
class ComponentWriter
{
public:
    explicit ComponentWriter(Connection &connection);
    ~ComponentWriter();

    /// Looks for the live row of that UID and recurrence identifier (see recIdText()).
    bool find(const QString &uid, const QString &recId, StoredComponent *stored);
    /// The notebook that holds live rows of that UID; empty when there are none.
    bool notebookOf(const QString &uid, QString *notebook);

    /// @param change the change counter of this transaction.
    bool insert(const KCalCore::Incidence &incidence, const QString &notebook, qint64 change,
                qint64 *id = nullptr);
    /// Adds a tombstone or an overwritten version that was kept elsewhere.
    /// @param time when it was retired, seconds since 1970, UTC.
    bool insertRetired(const KCalCore::Incidence &incidence, const QString &notebook, qint64 change,
                       bool overwritten, qint64 time);
    /// Replaces what the row @p stored holds.
    bool update(const StoredComponent &stored, const KCalCore::Incidence &incidence,
                const QString &notebook, qint64 change);
    /// Leaves the row with all that belongs to it as a tombstone or an overwritten version.
    /// After the latter the new version is to be inserted as a row of its own.
    /// @param time seconds since 1970, UTC.
    bool retire(const StoredComponent &stored, bool overwritten, qint64 change, qint64 time);
    /// The same as tombstones for every live row of a notebook.
    bool retireNotebook(const QString &notebook, qint64 change, qint64 time);
    /// Moves every live row of that UID.
    bool moveToNotebook(const QString &uid, const QString &notebook, qint64 change);

    /// Removes the tombstones of one incidence: it is back.
    bool removeTombstones(const QString &uid, const QString &recId);
    /// Removes tombstones and overwritten versions from before @p before (seconds UTC); an empty
    /// notebook means all.
    bool purge(qint64 before, const QString &notebook);

private:
    std::unique_ptr<ComponentWriterPrivate> d;
};
} // namespace mKCal

#endif
