// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localmonth.h"

#include <touchcore/mlocale.h>

#include <QDateTime>
#include <QVector>

namespace
{
/// No month is longer, and none is shorter than 29 days or ends a day early: this many days after
/// its first one is within the next.
const int daysIntoNextMonth = 32;
/// The same for years, which have 353 to 385 days.
const int daysIntoNextYear = 390;

/// The number that the locale's calendar gives a day; its digits may be of any script.
int number(const QDate &date, const QString &pattern)
{
    int value = 0;
    const QString digits = LocalMonth::text(date, pattern);
    for (const QChar digit : digits)
        value = value * 10 + qMax(0, digit.digitValue());
    return qMax(1, value);
}

QDate yearOf(const QDate &date)
{
    return date.addDays(1 - number(date, QStringLiteral("D")));
}
} // namespace

QString LocalMonth::text(const QDate &date, const QString &pattern)
{
    // At noon no change of the clock takes the day away.
    return MLocale::getDefault().formatDateTimeICU(QDateTime(date, QTime(12, 0), Qt::UTC), pattern);
}

QString LocalMonth::title(const QDate &date)
{
    return text(date, MLocale::getDefault().icuPatternFor(QStringLiteral("yMMMM")));
}

QDate LocalMonth::monthOf(const QDate &date)
{
    return date.addDays(1 - number(date, QStringLiteral("d")));
}

QDate LocalMonth::nextMonth(const QDate &month)
{
    return monthOf(month.addDays(daysIntoNextMonth));
}

QDate LocalMonth::previousMonth(const QDate &month)
{
    return monthOf(month.addDays(-1));
}

QVector<QDate> LocalMonth::monthsOfYear(const QDate &date)
{
    QVector<QDate> months{yearOf(date)};
    const QDate nextYear = yearOf(months.first().addDays(daysIntoNextYear));
    for (QDate month = nextMonth(months.first()); month < nextYear; month = nextMonth(month))
        months.append(month);
    return months;
}

QDate LocalMonth::monthInYear(const QDate &month, int years)
{
    const int position = monthsOfYear(month).indexOf(month);
    const QDate year = yearOf(month);
    const QVector<QDate> months =
        monthsOfYear(years > 0 ? year.addDays(daysIntoNextYear) : year.addDays(-1));
    return months.at(qMin(position, months.size() - 1));
}
