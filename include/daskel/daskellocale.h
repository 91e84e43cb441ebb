// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_DASKELLOCALE_H
#define DASKEL_DASKELLOCALE_H

#include <touchcore/mlocale.h>

#include <QObject>

class MCalendar;
class QDateTime;
class QString;

/// All dates and times that the application shows, in the way the person writes them.
///
/// Lists show the same times of day again and again: the short time, its pattern without the AM/PM
/// marker and the two markers are kept, until the settings of the locale change. On the UI thread
/// only.
class DaskelLocale
{
public:
    /// The locale that the whole program uses, MLocale::getDefault(). Nobody owns it.
    static MLocale &systemLocale();
    /// The calendar that formatDateTime() works on, of the locale's own type and without a zone;
    /// for reading, as each formatDateTime() sets its date and time. It lives until the process
    /// ends.
    static MCalendar &sharedCalendar();

    /// The clock in use: the chosen one, else the one that is usual in the locale. Never
    /// MLocale::LocaleDefaultTimeFormat24h.
    static MLocale::TimeFormat24h currentTimeFormat();

    /// By a pattern in ASCII with the conversions of MLocale::formatDateTime(), such as "%d %b".
    static QString formatDateTime(const QDateTime &dateTime, const char *pattern);
    static QString formatDateTime(const QDateTime &dateTime, MLocale::DateType dateType,
                                  MLocale::TimeType timeType);

    /// The short time of day, such as "10:05 AM" or "10.05". The last 128 times of day are kept.
    /// The first call makes the locale follow the settings of the desktop, and from then on all
    /// that is kept here is forgotten when settings change.
    static QString formatShortTime(const QDateTime &dateTime);
    /// The short time without the marker; a blank that parted the two stays.
    static QString formatShortTimeWithoutAmPm(const QDateTime &dateTime);
    /// The marker of the short time alone, for before noon or for noon and after; empty where the
    /// short time has none.
    static QString formatOnlyAmPm(const QDateTime &dateTime);
};

/// Forgets what DaskelLocale keeps; DaskelLocale connects it to the settings of the locale.
class DaskelLocaleClearCache : public QObject
{
    Q_OBJECT
public Q_SLOTS:
    /// Short times, markers and the pattern without marker are made anew when they are next needed.
    void clearCache();
};

#endif
