// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dates.h"

#include <daskel/daskellocale.h>
#include <kcalcompat/clock.h>

#include <QDateTime>

namespace
{
/// In the order and with the words that are usual in the language, whatever fields \a skeleton
/// (Unicode TS 35) names.
QString text(const QDate &day, const char *skeleton)
{
    const MLocale &locale = DaskelLocale::systemLocale();
    // Noon: a day on which the clock is put forward may begin later than at midnight.
    return locale.formatDateTimeICU(QDateTime(day, QTime(12, 0)),
                                    locale.icuPatternFor(QLatin1String(skeleton)));
}
} // namespace

QDate Dates::today()
{
    return KCalCompat::Clock::now().toLocalTime().date();
}

QString Dates::dayLabel(const QDate &day)
{
    const QDate now = today();
    const QString label = text(day, day.year() == now.year() ? "MMMMEEEEd" : "yMMMMEEEEd");
    return day == now ? qtTrId("qtn_dcal_today_date").arg(label) : label;
}

QString Dates::monthLabel(const QDate &day)
{
    return text(day, "yMMMM");
}

QString Dates::fullDayText(const QDate &day)
{
    return text(day, "yMMMMEEEEd");
}

QString Dates::weekdayName(const QDate &day)
{
    return text(day, "cccc");
}

QString Dates::dateText(const QDate &day)
{
    return text(day, "yMMMMd");
}
