// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_RECURRENCEIDENTITY_H
#define MKCAL_RECURRENCEIDENTITY_H

#include <QDateTime>
#include <QTimeZone>

namespace mKCal
{
/// The day that a recurrence identifier of an all-day series names: the date as it is written,
/// unless another program wrote the moment of midnight in @p zone as UTC.
QDate recurrenceDate(const QDateTime &recurrenceId, const QTimeZone &zone);

/// Whether two recurrence identifiers (RFC 5545, 3.8.4.4) name one occurrence: all-day ones by
/// date, others by moment, where milliseconds do not count.
bool isSameOccurrence(const QDateTime &a, const QDateTime &b, bool byDate, const QTimeZone &zone);
} // namespace mKCal

#endif
