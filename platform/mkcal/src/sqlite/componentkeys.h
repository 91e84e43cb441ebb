// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_COMPONENTKEYS_H
#define MKCAL_COMPONENTKEYS_H

#include <kcalcompat/kcalcore.h>
#include <kcalcompat/kdatetime.h>

#include <limits>

namespace mKCal
{
/// What stands in the column `state` of a row of Components.
enum class ComponentState {
    Live = 0,
    Deleted = 1, ///< a tombstone
    Overwritten = 2, ///< a version that a save replaced without having seen it
};

/// The columns of a row that are computed from the incidence, for looking it up. Seconds since
/// 1970; floating and all-day times by their wall clock read as UTC, so that a range has to be
/// widened by a day on both sides.
struct ComponentKeys {
    /// The value of `until` of what goes on for ever.
    static constexpr qint64 endless = std::numeric_limits<qint64>::max();
    /// `span`: up to two days, longer, recurring (exceptions of a series too).
    enum Span { Short = 0, Long = 1, Recurring = 2 };
    static constexpr qint64 shortSeconds = 2 * 86400;

    int type = 0; ///< IncidenceBase::IncidenceType
    int span = Short;
    bool hasStart = false; ///< false: a to-do without dates; start, end are NULL
    qint64 start = 0; ///< a to-do's without start: when it is due
    qint64 end = 0; ///< exclusive; at least start + 1
    qint64 until = 0; ///< the end of the last occurrence, at least end
    qint64 completed = 0; ///< when a to-do was completed, 1 when that is not known, 0: it is open

    static ComponentKeys of(const KCalCore::Incidence &incidence);
};

/// The column `recId`: "" for a null one, "yyyyMMdd" for a midnight that is all-day or floating,
/// "yyyyMMddThhmmss" for floating, "yyyyMMddThhmmssZ" in UTC for everything else. It stays the same
/// when an exception becomes all-day or stops being so, unless its series is all-day in a zone.
QString recIdText(const QDateTime &recurrenceId, bool allDay);
QString recIdText(const KDateTime &recurrenceId);
QString recIdText(const KCalCore::Incidence &incidence);
} // namespace mKCal

#endif
