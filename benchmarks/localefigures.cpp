// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bench.h"

#include <daskel/daskellocale.h>

#include <QDateTime>

namespace
{
constexpr int rounds = 9;
constexpr int texts = 2000; // one takes far less than the clock can tell

/// The times of day that a busy list shows, over and over.
QVector<QDateTime> timesOfDay()
{
    constexpr int count = 96;
    QVector<QDateTime> times;
    times.reserve(count);
    for (int i = 0; i < count; ++i)
        times.append(QDateTime(SampleData::middle(), QTime(i / 4, i % 4 * 15)));
    return times;
}

/// Microseconds for one of the texts that @p format makes.
template <typename Format> double each(const QVector<QDateTime> &times, Format &&format)
{
    return microseconds([&] {
               for (int i = 0; i < texts; ++i)
                   format(times.at(i % times.size()));
           })
        / texts;
}

int lengthOf(const QString &text)
{
    return text.size();
}
} // namespace

void measureLocale(const Bench &bench)
{
    MLocale::setDefault(MLocale(QStringLiteral("en_US")));
    const QVector<QDateTime> times = timesOfDay();
    int letters = 0;
    const auto addFigure = [&](const QString &name, auto &&ours, auto &&floor, const Aim &aim) {
        if (!bench.wants(name))
            return;
        const Times medians = inTurn(
            rounds,
            [&] {
                return each(times, [&](const QDateTime &time) { letters += lengthOf(ours(time)); });
            },
            [&] {
                return each(times,
                            [&](const QDateTime &time) { letters += lengthOf(floor(time)); });
            });
        bench.add({name, times.size(), medians, aim, {{QStringLiteral("letters"), letters}}});
        letters = 0;
    };

    const auto format = [](const QDateTime &time) {
        return DaskelLocale::formatDateTime(time, MLocale::DateNone, MLocale::TimeShort);
    };
    addFigure(QStringLiteral("short time that is kept, to formatting it"),
              &DaskelLocale::formatShortTime, format, {Aim::FasterBy, 20});

    const MLocale &locale = DaskelLocale::systemLocale();
    const QString pattern = locale.icuFormatString(MLocale::DateNone, MLocale::TimeShort);
    addFigure(
        QStringLiteral("formatter that is kept, to a new one"),
        [&](const QDateTime &time) { return locale.formatDateTimeICU(time, pattern); },
        [&](const QDateTime &time) { return MLocale(locale).formatDateTimeICU(time, pattern); },
        {Aim::FasterBy, 10});
}
