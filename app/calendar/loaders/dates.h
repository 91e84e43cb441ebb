// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DATES_H
#define DATES_H

#include <QDate>
#include <QString>

/// Days as the application names them, in the person's language. UI thread only.
namespace Dates
{
/// In the zone of the system.
QDate today();
/// "Saturday 21 November", with the year when it is not this one; today says so.
QString dayLabel(const QDate &day);
/// "November 2026"
QString monthLabel(const QDate &day);
/// "Saturday 21 November 2026"
QString fullDayText(const QDate &day);
/// "Saturday"
QString weekdayName(const QDate &day);
/// "21 November 2026"
QString dateText(const QDate &day);
} // namespace Dates

#endif
