// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MLOCALEFORMATS_H
#define MLOCALEFORMATS_H

#include <touchcore/mlocale.h>

#include <QDateTime>

#include <map>
#include <memory>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <utility>

/// The formats of one locale with one clock, from ICU. Patterns and formatters are costly to make
/// (20 to 200 µs) and kept; when a setting changes a new object takes the place of the old one.
class MLocaleFormats
{
public:
    /// \a name is ICU's. \a clock is what all times by type use, if it is not the locale's own.
    MLocaleFormats(const QString &name, MLocale::TimeFormat24h clock);

    /// As MLocale::icuFormatString().
    QString pattern(MLocale::DateType date, MLocale::TimeType time,
                    MLocale::CalendarType calendar) const;
    /// As MLocale::icuPatternFor().
    QString patternFor(const QString &skeleton) const;
    /// A time alone, with this clock. \a time is not TimeNone.
    QString timePattern(MLocale::TimeType time, MLocale::TimeFormat24h clock) const;
    /// As MLocale::formatDateTimeICU(), on the type of calendar.
    QString format(const QDateTime &dateTime, const QString &pattern,
                   MLocale::CalendarType calendar) const;

    /// The clock of the locale's own short time.
    MLocale::TimeFormat24h ownClock() const;
    /// 1 is Monday, 7 Sunday.
    int firstDayOfWeek() const;

private:
    struct Formatter {
        std::unique_ptr<icu::SimpleDateFormat> format; ///< null for a pattern that ICU refuses
        bool namesZone = false;
    };

    QString makePattern(MLocale::DateType date, MLocale::TimeType time,
                        MLocale::CalendarType calendar) const;
    Formatter makeFormatter(const QString &pattern, MLocale::CalendarType calendar) const;
    icu::Locale localeOf(MLocale::CalendarType calendar) const;

    const icu::Locale m_locale;
    const MLocale::TimeFormat24h m_clock;
    mutable MLocale::TimeFormat24h m_ownClock = MLocale::LocaleDefaultTimeFormat24h;
    mutable int m_firstDayOfWeek = 0;
    mutable std::map<int, QString> m_patterns;
    mutable std::map<QString, QString> m_skeletonPatterns;
    mutable std::map<std::pair<int, QString>, Formatter> m_formatters;
};

#endif
