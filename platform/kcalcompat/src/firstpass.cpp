// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <kcalcompat/firstpass.h>

#include <QTimeZone>

namespace
{
// No clock that people live by was put back further since there are zones (Casey, 2010).
constexpr qint64 longestRepetition = 3 * 3600 * 1000;
} // namespace

QDateTime KCalCompat::firstPass(const QDateTime &shown)
{
    const bool isZoned = shown.timeSpec() == Qt::TimeZone;
    if (!isZoned && shown.timeSpec() != Qt::LocalTime)
        return shown;
    const QTimeZone zone = isZoned ? shown.timeZone() : QTimeZone();
    // Asked for each date-time that is read: a zone tells its offset faster than a date-time in it.
    const auto offsetAt = [&](qint64 moment) {
        return isZoned ? zone.offsetFromUtc(QDateTime::fromMSecsSinceEpoch(moment, Qt::UTC))
                       : QDateTime::fromMSecsSinceEpoch(moment).offsetFromUtc();
    };
    // QDateTime::toMSecsSinceEpoch() looks the offset up anew at every call.
    const int offset = shown.offsetFromUtc();
    const qint64 moment =
        QDateTime(shown.date(), shown.time(), Qt::UTC).toMSecsSinceEpoch() - offset * 1000LL;
    const int offsetBefore = offsetAt(moment - longestRepetition);
    if (offsetBefore <= offset)
        return shown;
    const qint64 firstMoment = moment - (offsetBefore - offset) * 1000LL;
    const QDateTime first = isZoned ? QDateTime::fromMSecsSinceEpoch(firstMoment, zone)
                                    : QDateTime::fromMSecsSinceEpoch(firstMoment);
    const bool isShownTwice =
        first.offsetFromUtc() == offsetBefore && first.toMSecsSinceEpoch() == firstMoment;
    return isShownTwice ? first : shown;
}
