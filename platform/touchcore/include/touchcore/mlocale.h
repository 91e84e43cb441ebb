// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MLOCALE_H
#define TOUCHCORE_MLOCALE_H

#include <QObject>
#include <QStringList>

#include <memory>

class MCalendar;
class MLocalePrivate;
class QDateTime;

/// How the person writes dates and times, and in which languages they read.
///
/// The program shows everything through one default locale, which lives as long as the process and
/// never moves: who connects to it stays connected whatever setDefault() makes of it. It begins
/// with what the environment says: dates and times by LC_ALL, LC_TIME or LANG, texts by LANGUAGE,
/// LC_ALL, LC_MESSAGES or LANG, the first that is set. Without any ("C") it is British: plain
/// English, a 24-hour clock, weeks from Monday. Formats are those of CLDR, through ICU.
///
/// A text shows the date and the time that the QDateTime itself says, in whichever zone it is.
/// On the UI thread only.
class MLocale : public QObject
{
    Q_OBJECT

public:
    enum DateType { DateNone, DateShort, DateMedium, DateLong, DateFull };
    Q_ENUM(DateType)
    enum TimeType { TimeNone, TimeShort, TimeMedium, TimeLong, TimeFull };
    Q_ENUM(TimeType)
    /// DefaultCalendar is the one used where the person lives, such as the Persian one in Iran.
    enum CalendarType {
        DefaultCalendar,
        GregorianCalendar,
        BuddhistCalendar,
        ChineseCalendar,
        CopticCalendar,
        EthiopicCalendar,
        HebrewCalendar,
        IslamicCalendar,
        IslamicCivilCalendar,
        JapaneseCalendar,
        PersianCalendar
    };
    Q_ENUM(CalendarType)
    enum TimeFormat24h {
        LocaleDefaultTimeFormat24h = 0,
        TwelveHourTimeFormat24h = 1,
        TwentyFourHourTimeFormat24h = 2
    };
    Q_ENUM(TimeFormat24h)

    /// With the settings of the default locale as they are now, and no catalogues.
    explicit MLocale(QObject *parent = nullptr);
    /// Formats and texts of \a name, such as "de_DE", "sr_RS@latin" or "fa_IR@calendar=gregorian";
    /// an encoding (".UTF-8") is passed over. An empty name means the environment.
    explicit MLocale(const QString &name, QObject *parent = nullptr);
    /// A copy has the settings and the names of the catalogues, but neither parent nor connections.
    MLocale(const MLocale &other);
    MLocale &operator=(const MLocale &other);
    ~MLocale() override;

    /// The locale that the program uses. Nobody owns it.
    static MLocale &getDefault();
    /// Gives the default locale the settings and catalogues of \a locale and makes the texts of
    /// these catalogues known to qtTrId(), if there is a QCoreApplication. The default locale emits
    /// settingsChanged() when it differs afterwards.
    static void setDefault(const MLocale &locale);

    /// The name by which dates and times are formatted, such as "de_DE".
    QString name() const;
    /// The languages of texts, the preferred first; empty when there is no preference.
    QStringList languages() const;

    /// The clock that was chosen: by setTimeFormat24h(), else by the desktop's setting once
    /// connectSettings() was called, else LocaleDefaultTimeFormat24h.
    TimeFormat24h timeFormat24h() const;
    /// Chooses the clock of all times formatted by type, whatever the desktop says;
    /// LocaleDefaultTimeFormat24h takes the choice back. Emits settingsChanged() when it differs.
    void setTimeFormat24h(TimeFormat24h clock);
    /// The clock that is usual where the person lives: the 12- or the 24-hour one.
    TimeFormat24h defaultTimeFormat24h() const;

    /// From now on this locale follows the settings of the desktop: the clock
    /// ("org.gnome.desktop.interface", "clock-format" of org.freedesktop.portal.Settings), which is
    /// asked for at once and answered from the event loop. What the environment says stays for the
    /// life of the process. A second call changes nothing, as does a call before there is a
    /// QCoreApplication or where there is no such service.
    void connectSettings();

    /// The pattern of a date, a time or both, in the letters of Unicode TS 35, with the chosen
    /// clock. Empty for neither.
    QString icuFormatString(DateType dateType, TimeType timeType,
                            CalendarType calendarType = DefaultCalendar) const;
    /// The pattern in which the locale writes the fields of \a skeleton (Unicode TS 35), with the
    /// words and the order usual there: "yMMMM" is a month of a year, "MMMEd" a day of the week and
    /// of the month. Empty when ICU does not know the skeleton.
    QString icuPatternFor(const QString &skeleton) const;

    /// The date-time of \a calendar, in its zone and its type of calendar. Empty for neither date
    /// nor time, or when no date-time was set.
    QString formatDateTime(const MCalendar &calendar, DateType dateType, TimeType timeType) const;
    /// The same by a pattern in the conversions of strftime(3) that have a meaning in every
    /// calendar: a A b B c d D e F g G h H I j k l m M n p r R S t T V x X y Y z Z %. Others stay
    /// as they are. Names and digits are the locale's; e, k and l are not padded; "-" leaves out
    /// the padding of other numbers, and the flags E, O, _ , 0 and ^ have no effect. V and G count
    /// weeks as the locale does. A month without a day and a weekday alone have the form that
    /// stands by itself.
    QString formatDateTime(const MCalendar &calendar, const QString &pattern) const;
    /// \a dateTime by a pattern in the letters of Unicode TS 35, in the locale's own calendar.
    /// Empty when the date-time is invalid or ICU does not know the pattern.
    QString formatDateTimeICU(const QDateTime &dateTime, const QString &pattern) const;

    /// Adds the catalogue \a name to those that setDefault() makes known; on the default locale it
    /// is known at once. A catalogue is the first file "<name>_<language>.qm" found, made by
    /// `lrelease -idbased`, over the English one; what later catalogues say stands above.
    /// An empty name is passed over.
    void installTrCatalog(const QString &name);
    QStringList trCatalogs() const;
    /// Adds a folder for catalogues of the whole program, for what is installed afterwards. A path
    /// that is not absolute, such as "daskel/translations", is looked for below the `share` folders
    /// beside the program and this library and up to three folders above them, then below the data
    /// folders of the person and the system.
    static void addTranslationPath(const QString &path);

Q_SIGNALS:
    /// Texts of dates and times, or the languages, differ from now on.
    void settingsChanged();

private:
    friend class MCalendar;
    explicit MLocale(std::unique_ptr<MLocalePrivate> settings, QObject *parent = nullptr);

    std::unique_ptr<MLocalePrivate> d;
};

#endif
