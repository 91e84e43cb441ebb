// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_DATEINDEX_H
#define MKCAL_DATEINDEX_H

#include "incidencetimes.h"

#include <QHash>

#include <array>
#include <functional>
#include <limits>
#include <set>

namespace mKCal
{
/// Finds incidences by time and hands them out ordered by start, end, UID and recurrence
/// identifier.
///
/// What lasts up to two days lies by its start, so that a range reads only its own part; what lasts
/// longer and what recurs lie apart and are read from their beginning. An entry keeps the times it
/// was put in with: the owner puts an incidence in again whenever its times may have changed.
class DateIndex
{
public:
    static constexpr Msecs endless = std::numeric_limits<Msecs>::max();

    struct Entry {
        TimeSpan first; ///< the first occurrence
        Msecs until = 0; ///< the end of the last occurrence, endless for none
        bool isDated = true; ///< false: in no range, handed out after all others
        bool isWallBound = false; ///< on the same date in every zone
        bool recurs = false;
        KCalCore::IncidenceBase::IncidenceType type = KCalCore::IncidenceBase::TypeUnknown;
        QString uid;
        Msecs recurrenceId = 0;
        KCalCore::Incidence::Ptr incidence;

        bool operator<(const Entry &other) const;
    };

    /// A stretch of days: as moments, and for what is bound to the wall the same dates in the zone
    /// that the entries were put in with. Both are equal when that zone is asked in.
    struct Range {
        TimeSpan moments;
        TimeSpan wall;
    };

    using Visitor = std::function<void(const Entry &)>;

    /// Puts an incidence in, in place of its earlier entry.
    void insert(const Entry &entry);
    void remove(const KCalCore::Incidence *incidence);
    void clear();
    int size() const { return m_positions.size(); }
    /// The entry of @p incidence; null when it is not in here.
    const Entry *find(const KCalCore::Incidence *incidence) const;

    void visitAll(const Visitor &visit) const;
    /// Those that overlap @p range, recurring ones when their series is alive in it.
    void visit(const Range &range, const Visitor &visit) const;

private:
    enum Kind { Short, Long, Recurring, Undated, KindCount };
    using Entries = std::set<Entry>;
    using Section = std::pair<Entries::const_iterator, Entries::const_iterator>;
    struct Position {
        Kind kind;
        Entries::const_iterator entry;
    };

    static Kind kindOf(const Entry &entry);
    template <typename Accept>
    static void merge(std::array<Section, 3> sections, const Accept &accept, const Visitor &visit);

    std::array<Entries, KindCount> m_entries;
    QHash<const KCalCore::Incidence *, Position> m_positions;
};
} // namespace mKCal

#endif
