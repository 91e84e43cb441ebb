// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_COMPONENTREADER_H
#define MKCAL_COMPONENTREADER_H

#include "sqlite/componentkeys.h"
#include "sqlite/statement.h"

#include <kcalcompat/kcalcore.h>

#include <functional>
#include <memory>

namespace mKCal
{
class ComponentReaderPrivate;
class Connection;

/// A row of Components and what was built from it.
struct ComponentRow {
    qint64 id = 0;
    QString notebook;
    qint64 change = 0; ///< the change counter at its last write
    ComponentState state = ComponentState::Live;
    qint64 stateTime = 0; ///< when it left the live ones, seconds since 1970, UTC
    KCalCore::Incidence::Ptr incidence; ///< without dirty fields
    int faults = 0; ///< how many of its values could not be read as they stand
};

/// Builds incidences from rows. Rows that hold nonsense are read as far as possible: values out of
/// range are left at their default, what cannot be read at all is skipped, with a warning each.
class ComponentReader
{
public:
    /// Gets each row, in the order of the query; answers whether to go on.
    using Sink = std::function<bool(const ComponentRow &)>;

    explicit ComponentReader(Connection &connection);
    ~ComponentReader();

    /// Reads the rows of Components for which @p condition holds: what stands after WHERE (the
    /// `state` included), ORDER BY and LIMIT may follow, with parameters for @p values. Its text
    /// must be one of a few, since the statement is kept. False on a database error. A read inside
    /// the sink needs another reader.
    bool read(const QByteArray &condition, const SqlValues &values, const Sink &sink);

    /// From now on a child table that cannot be read costs the component its rows there and counts
    /// as a fault; otherwise the whole read fails.
    void tolerateDamage();

    /// How many rows and values could not be read as they stand, since the reader was made.
    int faults() const;

private:
    std::unique_ptr<ComponentReaderPrivate> d;
};
} // namespace mKCal

#endif
