// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/daskellocale.h>
#include <touchcore/mcalendar.h>

#include <QCache>
#include <QDateTime>
#include <QRegularExpression>
#include <QStringList>

namespace
{
constexpr int keptShortTimes = 128;

/// What formatting found out that holds until the settings change.
struct Kept {
    QCache<QTime, QString> shortTimes{keptShortTimes};
    QStringList markers; ///< AM, PM; empty until they are needed
    QString patternWithoutMarker;
};

Kept &kept()
{
    static Kept kept;
    return kept;
}

QString shortTimePattern()
{
    return DaskelLocale::systemLocale().icuFormatString(MLocale::DateNone, MLocale::TimeShort,
                                                        MLocale::DefaultCalendar);
}

void followSettings()
{
    static bool connected = false;
    if (connected)
        return;
    static DaskelLocaleClearCache clearer;
    MLocale &locale = DaskelLocale::systemLocale();
    locale.connectSettings();
    QObject::connect(&locale, &MLocale::settingsChanged, &clearer,
                     &DaskelLocaleClearCache::clearCache);
    connected = true;
}
} // namespace

MLocale &DaskelLocale::systemLocale()
{
    return MLocale::getDefault();
}

MCalendar &DaskelLocale::sharedCalendar()
{
    static MCalendar calendar(MLocale::DefaultCalendar, QString());
    return calendar;
}

MLocale::TimeFormat24h DaskelLocale::currentTimeFormat()
{
    const MLocale::TimeFormat24h chosen = systemLocale().timeFormat24h();
    return chosen == MLocale::LocaleDefaultTimeFormat24h ? systemLocale().defaultTimeFormat24h()
                                                         : chosen;
}

QString DaskelLocale::formatDateTime(const QDateTime &dateTime, const char *pattern)
{
    sharedCalendar().setDateTime(dateTime);
    return systemLocale().formatDateTime(sharedCalendar(), QString::fromLatin1(pattern));
}

QString DaskelLocale::formatDateTime(const QDateTime &dateTime, MLocale::DateType dateType,
                                     MLocale::TimeType timeType)
{
    sharedCalendar().setDateTime(dateTime);
    return systemLocale().formatDateTime(sharedCalendar(), dateType, timeType);
}

QString DaskelLocale::formatShortTime(const QDateTime &dateTime)
{
    followSettings();
    // The format has no date, so that the time of day says everything.
    const QTime timeOfDay = dateTime.time();
    auto &shortTimes = kept().shortTimes;
    if (const QString *text = shortTimes.object(timeOfDay))
        return *text;
    QString text = formatDateTime(dateTime, MLocale::DateNone, MLocale::TimeShort);
    shortTimes.insert(timeOfDay, new QString(text));
    return text;
}

QString DaskelLocale::formatShortTimeWithoutAmPm(const QDateTime &dateTime)
{
    QString &pattern = kept().patternWithoutMarker;
    if (pattern.isEmpty())
        pattern = shortTimePattern().remove(QLatin1Char('a'), Qt::CaseSensitive);
    return systemLocale().formatDateTimeICU(dateTime, pattern);
}

QString DaskelLocale::formatOnlyAmPm(const QDateTime &dateTime)
{
    constexpr int lastHourBeforeNoon = 11;
    if (!dateTime.date().isValid())
        return {};
    QStringList &markers = kept().markers;
    if (markers.isEmpty()) {
        static const QRegularExpression notMarker(QStringLiteral("[^a]"));
        const QString pattern = shortTimePattern().remove(notMarker);
        for (const QTime &time : {QTime(0, 0), QTime(12, 0)})
            markers << systemLocale().formatDateTimeICU(QDateTime(dateTime.date(), time), pattern);
    }
    return markers.at(dateTime.time().hour() <= lastHourBeforeNoon ? 0 : 1);
}

void DaskelLocaleClearCache::clearCache()
{
    Kept &all = kept();
    all.shortTimes.clear();
    all.markers.clear();
    all.patternWithoutMarker.clear();
}
