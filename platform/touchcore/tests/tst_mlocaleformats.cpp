// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localeenvironment.h"

#include <touchcore/mcalendar.h>
#include <touchcore/mlocale.h>

#include <QTest>
#include <QTimeZone>

/// The texts of each locale are those of CLDR 42: its patterns and names, put together by hand.
class TestMLocaleFormats : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void formatsDates_data();
    void formatsDates();
    void formatsTimes_data();
    void formatsTimes();
    void joinsDateAndTime_data();
    void joinsDateAndTime();
    void usesTheChosenClock_data();
    void usesTheChosenClock();
    void knowsTheUsualClock_data();
    void knowsTheUsualClock();
    void writesFieldsInTheirUsualOrder_data();
    void writesFieldsInTheirUsualOrder();
    void formatsByIcuPattern_data();
    void formatsByIcuPattern();
    void showsTheTimeThatIsSaid_data();
    void showsTheTimeThatIsSaid();
    void namesTheZone_data();
    void namesTheZone();
};

namespace
{
const QDateTime afternoon(QDate(2027, 3, 1), QTime(15, 4, 5)); // a Monday

MCalendar calendarAt(const QDateTime &dateTime)
{
    MCalendar calendar;
    calendar.setDateTime(dateTime);
    return calendar;
}

QString text(const MLocale &locale, MLocale::DateType date, MLocale::TimeType time)
{
    return locale.formatDateTime(calendarAt(afternoon), date, time);
}
} // namespace

void TestMLocaleFormats::formatsDates_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("texts");

    const auto row = [](const char *locale, const QStringList &texts) {
        QTest::newRow(locale) << QString::fromLatin1(locale) << texts;
    };
    row("en_US",
        {QStringLiteral("3/1/27"), QStringLiteral("Mar 1, 2027"), QStringLiteral("March 1, 2027"),
         QStringLiteral("Monday, March 1, 2027")});
    row("en_GB",
        {QStringLiteral("01/03/2027"), QStringLiteral("1 Mar 2027"), QStringLiteral("1 March 2027"),
         QStringLiteral("Monday, 1 March 2027")});
    row("de_DE",
        {QStringLiteral("01.03.27"), QStringLiteral("01.03.2027"), QStringLiteral("1. März 2027"),
         QStringLiteral("Montag, 1. März 2027")});
    row("fi_FI",
        {QStringLiteral("1.3.2027"), QStringLiteral("1.3.2027"),
         QStringLiteral("1. maaliskuuta 2027"), QStringLiteral("maanantai 1. maaliskuuta 2027")});
    row("ar_EG",
        {QStringLiteral("١\u200f/٣\u200f/٢٠٢٧"), QStringLiteral("٠١\u200f/٠٣\u200f/٢٠٢٧"),
         QStringLiteral("١ مارس ٢٠٢٧"), QStringLiteral("الاثنين، ١ مارس ٢٠٢٧")});
    row("ja_JP",
        {QStringLiteral("2027/03/01"), QStringLiteral("2027/03/01"), QStringLiteral("2027年3月1日"),
         QStringLiteral("2027年3月1日月曜日")});
    row("zh_TW",
        {QStringLiteral("2027/3/1"), QStringLiteral("2027年3月1日"), QStringLiteral("2027年3月1日"),
         QStringLiteral("2027年3月1日 星期一")});
    // The date on the calendar of Iran: 10 Esfand 1405.
    row("fa_IR",
        {QStringLiteral("۱۴۰۵/۱۲/۱۰"), QStringLiteral("۱۰ اسفند ۱۴۰۵"),
         QStringLiteral("۱۰ اسفند ۱۴۰۵"), QStringLiteral("۱۴۰۵ اسفند ۱۰, دوشنبه")});
}

void TestMLocaleFormats::formatsDates()
{
    QFETCH(QString, locale);
    QFETCH(QStringList, texts);
    const MLocale formats(locale);
    QStringList formatted;
    for (const auto type :
         {MLocale::DateShort, MLocale::DateMedium, MLocale::DateLong, MLocale::DateFull})
        formatted << text(formats, type, MLocale::TimeNone);
    QCOMPARE(formatted, texts);
    QCOMPARE(text(formats, MLocale::DateNone, MLocale::TimeNone), QString());
}

void TestMLocaleFormats::formatsTimes_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("shortTime");
    QTest::addColumn<QString>("mediumTime");

    QTest::newRow("en_US") << QStringLiteral("en_US") << QStringLiteral("3:04\u202fPM")
                           << QStringLiteral("3:04:05\u202fPM");
    QTest::newRow("en_GB") << QStringLiteral("en_GB") << QStringLiteral("15:04")
                           << QStringLiteral("15:04:05");
    QTest::newRow("de_DE") << QStringLiteral("de_DE") << QStringLiteral("15:04")
                           << QStringLiteral("15:04:05");
    QTest::newRow("fi_FI") << QStringLiteral("fi_FI") << QStringLiteral("15.04")
                           << QStringLiteral("15.04.05");
    QTest::newRow("ar_EG") << QStringLiteral("ar_EG") << QStringLiteral("٣:٠٤ م")
                           << QStringLiteral("٣:٠٤:٠٥ م");
    QTest::newRow("ja_JP") << QStringLiteral("ja_JP") << QStringLiteral("15:04")
                           << QStringLiteral("15:04:05");
    QTest::newRow("zh_TW") << QStringLiteral("zh_TW") << QStringLiteral("下午3:04")
                           << QStringLiteral("下午3:04:05");
    QTest::newRow("fa_IR") << QStringLiteral("fa_IR") << QStringLiteral("۱۵:۰۴")
                           << QStringLiteral("۱۵:۰۴:۰۵");
}

void TestMLocaleFormats::formatsTimes()
{
    QFETCH(QString, locale);
    QFETCH(QString, shortTime);
    QFETCH(QString, mediumTime);
    const MLocale formats(locale);
    QCOMPARE(text(formats, MLocale::DateNone, MLocale::TimeShort), shortTime);
    QCOMPARE(text(formats, MLocale::DateNone, MLocale::TimeMedium), mediumTime);
}

void TestMLocaleFormats::joinsDateAndTime_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<MLocale::TimeFormat24h>("clock");
    QTest::addColumn<QString>("expected");

    const auto own = MLocale::LocaleDefaultTimeFormat24h;
    const auto twelve = MLocale::TwelveHourTimeFormat24h;
    const auto twentyFour = MLocale::TwentyFourHourTimeFormat24h;
    const auto row = [](const char *locale, MLocale::TimeFormat24h clock, const QString &expected) {
        QTest::addRow("%s, %d", locale, int(clock))
            << QString::fromLatin1(locale) << clock << expected;
    };
    row("en_US", own, QStringLiteral("3/1/27, 3:04\u202fPM"));
    row("en_US", twentyFour, QStringLiteral("3/1/27, 15:04"));
    row("en_GB", own, QStringLiteral("01/03/2027, 15:04"));
    row("de_DE", twelve, QStringLiteral("01.03.27, 3:04\u202fPM"));
    row("fi_FI", own, QStringLiteral("1.3.2027 15.04"));
    row("fi_FI", twelve, QStringLiteral("1.3.2027 3.04\u202fip."));
    row("ar_EG", own, QStringLiteral("١\u200f/٣\u200f/٢٠٢٧، ٣:٠٤ م"));
    row("ja_JP", own, QStringLiteral("2027/03/01 15:04"));
    row("zh_TW", twentyFour, QStringLiteral("2027/3/1 15:04"));
}

void TestMLocaleFormats::joinsDateAndTime()
{
    QFETCH(QString, locale);
    QFETCH(MLocale::TimeFormat24h, clock);
    QFETCH(QString, expected);
    MLocale formats(locale);
    formats.setTimeFormat24h(clock);
    QCOMPARE(text(formats, MLocale::DateShort, MLocale::TimeShort), expected);
}

void TestMLocaleFormats::usesTheChosenClock_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("pattern12");
    QTest::addColumn<QString>("text12");
    QTest::addColumn<QString>("pattern24");
    QTest::addColumn<QString>("text24");

    // The patterns are those that CLDR lists for the fields "hm" and "Hm", except where one of them
    // is the locale's own short time.
    const auto row = [](const char *locale, const QString &pattern12, const QString &text12,
                        const QString &pattern24, const QString &text24) {
        QTest::newRow(locale) << QString::fromLatin1(locale) << pattern12 << text12 << pattern24
                              << text24;
    };
    const QString thin = QStringLiteral("h:mm\u202fa");
    row("en_US", thin, QStringLiteral("3:04\u202fPM"), QStringLiteral("HH:mm"),
        QStringLiteral("15:04"));
    row("en_GB", thin, QStringLiteral("3:04\u202fpm"), QStringLiteral("HH:mm"),
        QStringLiteral("15:04"));
    row("de_DE", thin, QStringLiteral("3:04\u202fPM"), QStringLiteral("HH:mm"),
        QStringLiteral("15:04"));
    row("fi_FI", QStringLiteral("h.mm\u202fa"), QStringLiteral("3.04\u202fip."),
        QStringLiteral("H.mm"), QStringLiteral("15.04"));
    row("ar_EG", QStringLiteral("h:mm a"), QStringLiteral("٣:٠٤ م"), QStringLiteral("HH:mm"),
        QStringLiteral("١٥:٠٤"));
    row("ja_JP", QStringLiteral("aK:mm"), QStringLiteral("午後3:04"), QStringLiteral("H:mm"),
        QStringLiteral("15:04"));
    row("zh_TW", QStringLiteral("Bh:mm"), QStringLiteral("下午3:04"), QStringLiteral("HH:mm"),
        QStringLiteral("15:04"));
    row("fa_IR", QStringLiteral("h:mm a"), QStringLiteral("۳:۰۴ بعدازظهر"), QStringLiteral("H:mm"),
        QStringLiteral("۱۵:۰۴"));
}

void TestMLocaleFormats::usesTheChosenClock()
{
    QFETCH(QString, locale);
    QFETCH(QString, pattern12);
    QFETCH(QString, text12);
    QFETCH(QString, pattern24);
    QFETCH(QString, text24);
    MLocale formats(locale);
    const auto shortTime = [&] {
        return QStringList({formats.icuFormatString(MLocale::DateNone, MLocale::TimeShort),
                            text(formats, MLocale::DateNone, MLocale::TimeShort)});
    };
    formats.setTimeFormat24h(MLocale::TwelveHourTimeFormat24h);
    QCOMPARE(shortTime(), QStringList({pattern12, text12}));
    formats.setTimeFormat24h(MLocale::TwentyFourHourTimeFormat24h);
    QCOMPARE(shortTime(), QStringList({pattern24, text24}));
}

void TestMLocaleFormats::knowsTheUsualClock_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<MLocale::TimeFormat24h>("clock");

    // CLDR 42, supplemental time data: the preferred hour format by territory.
    const auto row = [](const char *locale, MLocale::TimeFormat24h clock) {
        QTest::newRow(locale) << QString::fromLatin1(locale) << clock;
    };
    row("en_US", MLocale::TwelveHourTimeFormat24h);
    row("en_GB", MLocale::TwentyFourHourTimeFormat24h);
    row("de_DE", MLocale::TwentyFourHourTimeFormat24h);
    row("fi_FI", MLocale::TwentyFourHourTimeFormat24h);
    row("ar_EG", MLocale::TwelveHourTimeFormat24h);
    row("ja_JP", MLocale::TwentyFourHourTimeFormat24h);
    row("zh_TW", MLocale::TwelveHourTimeFormat24h);
    row("fa_IR", MLocale::TwentyFourHourTimeFormat24h);
    row("fr_CA", MLocale::TwentyFourHourTimeFormat24h); // its pattern quotes an "h"
    row("de_US", MLocale::TwelveHourTimeFormat24h);
}

void TestMLocaleFormats::knowsTheUsualClock()
{
    QFETCH(QString, locale);
    QFETCH(MLocale::TimeFormat24h, clock);
    MLocale formats(locale);
    QCOMPARE(formats.defaultTimeFormat24h(), clock);
    for (const auto chosen :
         {MLocale::TwelveHourTimeFormat24h, MLocale::TwentyFourHourTimeFormat24h}) {
        formats.setTimeFormat24h(chosen);
        QCOMPARE(formats.timeFormat24h(), chosen);
        QCOMPARE(formats.defaultTimeFormat24h(), clock);
    }
}

void TestMLocaleFormats::writesFieldsInTheirUsualOrder_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("month");

    // CLDR lists these for the fields "yMMMM".
    QTest::newRow("en_US") << QStringLiteral("en_US") << QStringLiteral("March 2027");
    QTest::newRow("de_DE") << QStringLiteral("de_DE") << QStringLiteral("März 2027");
    QTest::newRow("fi_FI") << QStringLiteral("fi_FI") << QStringLiteral("maaliskuu 2027");
    QTest::newRow("ar_EG") << QStringLiteral("ar_EG") << QStringLiteral("مارس ٢٠٢٧");
    QTest::newRow("ja_JP") << QStringLiteral("ja_JP") << QStringLiteral("2027年3月");
    QTest::newRow("fa_IR, in its own calendar")
        << QStringLiteral("fa_IR") << QStringLiteral("اسفند ۱۴۰۵");
    QTest::newRow("zh_TW") << QStringLiteral("zh_TW") << QStringLiteral("2027年3月");
}

void TestMLocaleFormats::writesFieldsInTheirUsualOrder()
{
    QFETCH(QString, locale);
    QFETCH(QString, month);
    const MLocale formats(locale);
    const QString pattern = formats.icuPatternFor(QStringLiteral("yMMMM"));
    QCOMPARE(formats.formatDateTimeICU(afternoon, pattern), month);
    QCOMPARE(formats.icuPatternFor(QStringLiteral("yMMMM")), pattern);
    QCOMPARE(formats.icuPatternFor(QString()), QString());
}

void TestMLocaleFormats::formatsByIcuPattern_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *locale, const QString &pattern, const QString &expected) {
        QTest::addRow("%s %s", locale, qUtf8Printable(pattern))
            << QString::fromLatin1(locale) << pattern << expected;
    };
    row("en_US", QStringLiteral("a"), QStringLiteral("PM"));
    row("fi_FI", QStringLiteral("a"), QStringLiteral("ip."));
    row("ja_JP", QStringLiteral("a"), QStringLiteral("午後"));
    row("fi_FI", QStringLiteral("LLLL y"), QStringLiteral("maaliskuu 2027"));
    row("de_DE", QStringLiteral("'um' H 'Uhr'"), QStringLiteral("um 15 Uhr"));
    row("fa_IR", QStringLiteral("y/M/d"), QStringLiteral("۱۴۰۵/۱۲/۱۰"));
    row("en_US", QString(), QString());
    row("en_US", QStringLiteral("'open"), QStringLiteral("open"));
}

void TestMLocaleFormats::formatsByIcuPattern()
{
    QFETCH(QString, locale);
    QFETCH(QString, pattern);
    QFETCH(QString, expected);
    QCOMPARE(MLocale(locale).formatDateTimeICU(afternoon, pattern), expected);
}

void TestMLocaleFormats::showsTheTimeThatIsSaid_data()
{
    QTest::addColumn<QDateTime>("dateTime");
    QTest::addColumn<QString>("expected");

    const QDate summer(2026, 7, 1);
    const QTime noon(12, 0);
    const QString shown = QStringLiteral("1 Jul 2026, 12:00");
    QTest::newRow("local") << QDateTime(summer, noon) << shown;
    QTest::newRow("UTC") << QDateTime(summer, noon, Qt::UTC) << shown;
    QTest::newRow("offset") << QDateTime(summer, noon, Qt::OffsetFromUTC, -3600) << shown;
    QTest::newRow("zone") << QDateTime(summer, noon, QTimeZone("Asia/Tokyo")) << shown;
    // Summer time came back there in 2023: data of zones may be older than that.
    QTest::newRow("zone with new rules")
        << QDateTime(summer, noon, QTimeZone("Africa/Cairo")) << shown;
    // Clocks in Helsinki skip from 3:00 to 4:00.
    QTest::newRow("a time that the clock skips")
        << QDateTime(QDate(2027, 3, 28), QTime(3, 30)) << QStringLiteral("28 Mar 2027, 03:30");
    QTest::newRow("invalid") << QDateTime() << QString();
    QTest::newRow("no time") << QDateTime(summer, QTime(25, 0), Qt::UTC)
                             << QStringLiteral("1 Jul 2026, 00:00");
}

void TestMLocaleFormats::showsTheTimeThatIsSaid()
{
    QFETCH(QDateTime, dateTime);
    QFETCH(QString, expected);
    const MLocale locale(QStringLiteral("en_GB"));
    QCOMPARE(locale.formatDateTime(calendarAt(dateTime), MLocale::DateMedium, MLocale::TimeShort),
             expected);
    const QString pattern = QStringLiteral("d MMM y, HH:mm");
    QCOMPARE(locale.formatDateTimeICU(dateTime, pattern), expected);
}

void TestMLocaleFormats::namesTheZone_data()
{
    QTest::addColumn<QDateTime>("dateTime");
    QTest::addColumn<QString>("longTime");
    QTest::addColumn<QString>("fullTime");

    const QTime time(15, 4, 5);
    const QTimeZone newYork("America/New_York");
    QTest::newRow("winter") << QDateTime(QDate(2027, 3, 1), time, newYork)
                            << QStringLiteral("3:04:05\u202fPM EST")
                            << QStringLiteral("3:04:05\u202fPM Eastern Standard Time");
    QTest::newRow("summer") << QDateTime(QDate(2027, 7, 1), time, newYork)
                            << QStringLiteral("3:04:05\u202fPM EDT")
                            << QStringLiteral("3:04:05\u202fPM Eastern Daylight Time");
    QTest::newRow("UTC") << QDateTime(QDate(2027, 3, 1), time, Qt::UTC)
                         << QStringLiteral("3:04:05\u202fPM UTC")
                         << QStringLiteral("3:04:05\u202fPM Coordinated Universal Time");
    QTest::newRow("offset") << QDateTime(QDate(2027, 3, 1), time, Qt::OffsetFromUTC, 20700)
                            << QStringLiteral("3:04:05\u202fPM GMT+5:45")
                            << QStringLiteral("3:04:05\u202fPM GMT+05:45");
    QTest::newRow("local") << QDateTime(QDate(2027, 3, 1), time)
                           << QStringLiteral("3:04:05\u202fPM GMT+2")
                           << QStringLiteral("3:04:05\u202fPM Eastern European Standard Time");
}

void TestMLocaleFormats::namesTheZone()
{
    QFETCH(QDateTime, dateTime);
    QFETCH(QString, longTime);
    QFETCH(QString, fullTime);
    const MLocale locale(QStringLiteral("en_US"));
    const MCalendar calendar = calendarAt(dateTime);
    QCOMPARE(locale.formatDateTime(calendar, MLocale::DateNone, MLocale::TimeLong), longTime);
    QCOMPARE(locale.formatDateTime(calendar, MLocale::DateNone, MLocale::TimeFull), fullTime);
}

int main(int argc, char *argv[])
{
    startIn("C");
    QCoreApplication application(argc, argv);
    TestMLocaleFormats test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mlocaleformats.moc"
