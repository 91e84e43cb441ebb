// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mlocaleformats.h"

#include <QTimeZone>

#include <unicode/calendar.h>
#include <unicode/datefmt.h>
#include <unicode/dtptngen.h>
#include <unicode/simpletz.h>

using icu::DateFormat;
using icu::SimpleDateFormat;
using icu::TimeZone;
using icu::UnicodeString;

namespace
{
// In the order of MLocale::DateType and MLocale::TimeType.
constexpr DateFormat::EStyle styles[] = {DateFormat::kNone, DateFormat::kShort, DateFormat::kMedium,
                                         DateFormat::kLong, DateFormat::kFull};

// In the order of MLocale::CalendarType: ICU's names of the types.
constexpr const char *calendars[] = {nullptr,         "gregorian", "buddhist", "chinese",
                                     "coptic",        "ethiopic",  "hebrew",   "islamic",
                                     "islamic-civil", "japanese",  "persian"};

// In the order of MLocale::TimeType: the fields of a time, for the 12- and the 24-hour clock.
struct TimeFields {
    const char16_t *twelveHours;
    const char16_t *twentyFourHours;
};
constexpr TimeFields timeFields[] = {
    {u"", u""}, {u"hm", u"Hm"}, {u"hms", u"Hms"}, {u"hmsz", u"Hmsz"}, {u"hmszzzz", u"Hmszzzz"}};

UnicodeString toIcu(const QString &text)
{
    return {reinterpret_cast<const char16_t *>(text.utf16()), text.size()};
}

QString fromIcu(const UnicodeString &text)
{
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

/// Whether \a pattern has a field of one of \a letters; what is quoted in it is text.
bool hasField(const QString &pattern, QLatin1String letters)
{
    bool quoted = false;
    for (const QChar letter : pattern) {
        if (letter == QLatin1Char('\''))
            quoted = !quoted;
        else if (!quoted && letters.contains(letter))
            return true;
    }
    return false;
}

MLocale::TimeFormat24h clockOf(const QString &timePattern)
{
    return hasField(timePattern, QLatin1String("hK")) ? MLocale::TwelveHourTimeFormat24h
                                                      : MLocale::TwentyFourHourTimeFormat24h;
}

/// The pattern of one of ICU's styles; the result may be null only when ICU has no data at all.
QString stylePattern(MLocale::DateType date, MLocale::TimeType time, const icu::Locale &locale)
{
    const std::unique_ptr<DateFormat> format(
        DateFormat::createDateTimeInstance(styles[date], styles[time], locale));
    UnicodeString pattern;
    if (const auto *simple = dynamic_cast<const SimpleDateFormat *>(format.get()))
        simple->toPattern(pattern);
    return fromIcu(pattern);
}

/// ICU's zone by which \a dateTime has its name and its offset.
TimeZone *zoneOf(const QDateTime &dateTime)
{
    const QByteArray id = dateTime.timeSpec() == Qt::LocalTime ? QTimeZone::systemTimeZoneId()
                                                               : dateTime.timeZone().id();
    std::unique_ptr<TimeZone> zone(
        TimeZone::createTimeZone(UnicodeString::fromUTF8(id.constData())));
    if (*zone == TimeZone::getUnknown())
        zone =
            std::make_unique<icu::SimpleTimeZone>(dateTime.offsetFromUtc() * 1000, UnicodeString());
    return zone.release();
}
} // namespace

MLocaleFormats::MLocaleFormats(const QString &name, MLocale::TimeFormat24h clock)
    : m_locale(name.toLatin1().constData()), m_clock(clock)
{
}

QString MLocaleFormats::pattern(MLocale::DateType date, MLocale::TimeType time,
                                MLocale::CalendarType calendar) const
{
    if (date == MLocale::DateNone && time == MLocale::TimeNone)
        return {};
    const int key = (calendar * int(std::size(styles)) + date) * int(std::size(styles)) + time;
    auto found = m_patterns.find(key);
    if (found == m_patterns.end())
        found = m_patterns.emplace(key, makePattern(date, time, calendar)).first;
    return found->second;
}

QString MLocaleFormats::makePattern(MLocale::DateType date, MLocale::TimeType time,
                                    MLocale::CalendarType calendar) const
{
    QString pattern = stylePattern(date, time, localeOf(calendar));
    if (time != MLocale::TimeNone && m_clock != MLocale::LocaleDefaultTimeFormat24h) {
        // How date and time are joined stays the locale's.
        const QString own = stylePattern(MLocale::DateNone, time, localeOf(calendar));
        pattern.replace(own, timePattern(time, m_clock));
    }
    return pattern;
}

QString MLocaleFormats::timePattern(MLocale::TimeType time, MLocale::TimeFormat24h clock) const
{
    QString own = stylePattern(MLocale::DateNone, time, m_locale);
    if (clockOf(own) == clock)
        return own;
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(m_locale, error));
    if (U_FAILURE(error))
        return own;
    const TimeFields &fields = timeFields[time];
    return fromIcu(generator->getBestPattern(
        clock == MLocale::TwelveHourTimeFormat24h ? fields.twelveHours : fields.twentyFourHours,
        error));
}

QString MLocaleFormats::patternFor(const QString &skeleton) const
{
    auto found = m_skeletonPatterns.find(skeleton);
    if (found != m_skeletonPatterns.end())
        return found->second;
    // For other calendars CLDR has few patterns without an era; the usual order of the fields is
    // that of the Gregorian ones.
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(localeOf(MLocale::GregorianCalendar), error));
    QString pattern;
    if (U_SUCCESS(error))
        pattern = fromIcu(generator->getBestPattern(toIcu(skeleton), error));
    return m_skeletonPatterns.emplace(skeleton, pattern).first->second;
}

QString MLocaleFormats::format(const QDateTime &dateTime, const QString &pattern,
                               MLocale::CalendarType calendar) const
{
    // A time that the clock change skips makes the date-time invalid, but can be shown.
    if (!dateTime.date().isValid() || !dateTime.time().isValid() || pattern.isEmpty())
        return {};
    const std::pair<int, QString> key(calendar, pattern);
    auto found = m_formatters.find(key);
    if (found == m_formatters.end())
        found = m_formatters.emplace(key, makeFormatter(pattern, calendar)).first;
    const Formatter &formatter = found->second;
    if (!formatter.format)
        return {};

    // The text shows what the date-time itself says, whatever ICU knows of its zone: the wall clock
    // is handed over as if it were that of GMT.
    qint64 moment = QDateTime(dateTime.date(), dateTime.time(), Qt::UTC).toMSecsSinceEpoch();
    if (formatter.namesZone) {
        moment = dateTime.toMSecsSinceEpoch();
        formatter.format->adoptTimeZone(zoneOf(dateTime));
    }
    UnicodeString text;
    return fromIcu(formatter.format->format(UDate(moment), text));
}

MLocaleFormats::Formatter MLocaleFormats::makeFormatter(const QString &pattern,
                                                        MLocale::CalendarType calendar) const
{
    UErrorCode error = U_ZERO_ERROR;
    Formatter formatter;
    formatter.format =
        std::make_unique<SimpleDateFormat>(toIcu(pattern), localeOf(calendar), error);
    formatter.namesZone = hasField(pattern, QLatin1String("zZOvVxX"));
    if (U_FAILURE(error))
        formatter.format.reset();
    else
        formatter.format->setTimeZone(*TimeZone::getGMT());
    return formatter;
}

MLocale::TimeFormat24h MLocaleFormats::ownClock() const
{
    if (m_ownClock == MLocale::LocaleDefaultTimeFormat24h)
        m_ownClock = clockOf(stylePattern(MLocale::DateNone, MLocale::TimeShort, m_locale));
    return m_ownClock;
}

int MLocaleFormats::firstDayOfWeek() const
{
    if (m_firstDayOfWeek == 0) {
        UErrorCode error = U_ZERO_ERROR;
        const std::unique_ptr<icu::Calendar> calendar(
            icu::Calendar::createInstance(*TimeZone::getGMT(), m_locale, error));
        const int day = calendar ? calendar->getFirstDayOfWeek(error) : UCAL_MONDAY;
        m_firstDayOfWeek = day == UCAL_SUNDAY ? Qt::Sunday : day - UCAL_SUNDAY;
    }
    return m_firstDayOfWeek;
}

icu::Locale MLocaleFormats::localeOf(MLocale::CalendarType calendar) const
{
    icu::Locale locale = m_locale;
    UErrorCode error = U_ZERO_ERROR;
    if (calendars[calendar] != nullptr)
        locale.setKeywordValue("calendar", calendars[calendar], error);
    return locale;
}
