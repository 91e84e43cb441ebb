// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_LOCALMONTH_H
#define TOUCHCORE_LOCALMONTH_H

#include <QDate>

/// The months and years of the calendar that the default locale counts in, which need not be the
/// Gregorian one. Each is named by its first day.
namespace LocalMonth
{
/// \a date by a pattern of Unicode TS 35.
QString text(const QDate &date, const QString &pattern);
/// The month with its year, such as "November 2026".
QString title(const QDate &date);

QDate monthOf(const QDate &date);
QDate nextMonth(const QDate &month);
QDate previousMonth(const QDate &month);
/// The first days of all months of the year of \a date: 12 or 13.
QVector<QDate> monthsOfYear(const QDate &date);
/// The same month a year later, or earlier for -1; the last one of the year when it has fewer.
QDate monthInYear(const QDate &month, int years);
} // namespace LocalMonth

#endif
