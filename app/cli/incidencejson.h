// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_CLI_INCIDENCEJSON_H
#define DASKEL_CLI_INCIDENCEJSON_H

#include "agenda.h"

#include <QJsonObject>

/// ISO 8601 with the offset from UTC; all-day as a date.
QString isoText(const QDateTime &time, bool allDay);
/// "2026-05-01 09:30" in @p zone, a clock time as it is, all-day without the time; empty for null.
QString shortText(const QDateTime &time, bool allDay, const QTimeZone &zone);
/// "event", "todo" or "journal".
QString typeName(const KCalCore::Incidence::Ptr &incidence);

/// Which occurrence an exception stands in for, date-only when its series is all-day; null for what
/// is no exception.
KDateTime recurrenceIdentifier(const mKCal::ExtendedCalendar &calendar,
                               const KCalCore::Incidence::Ptr &incidence);

/// uid, recurrenceId (null for what does not recur), type, summary, location, notebook, allDay.
QJsonObject incidenceToJson(const KCalCore::Incidence::Ptr &incidence, const QString &notebookUid,
                            const KDateTime &recurrenceId);
/// The same with start and end of the day's piece and of the whole occurrence; ends are exclusive.
QJsonObject agendaEntryToJson(const mKCal::ExtendedCalendar &calendar, const AgendaEntry &entry);
/// All that a person would want to know of one stored incidence, which is in @p calendar.
QJsonObject incidenceDetailsToJson(const mKCal::ExtendedCalendar &calendar,
                                   const KCalCore::Incidence::Ptr &incidence);

#endif
