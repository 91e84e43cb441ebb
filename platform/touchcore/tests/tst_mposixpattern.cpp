// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localeenvironment.h"

#include <touchcore/mcalendar.h>
#include <touchcore/mlocale.h>

#include <QTest>

/// The texts of each locale are those of CLDR 42: its patterns and names, put together by hand.
class TestMPosixPattern : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void formatsByConversions_data();
    void formatsByConversions();
    void standsAMonthAlone_data();
    void standsAMonthAlone();
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
} // namespace

void TestMPosixPattern::formatsByConversions_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *pattern, const QString &expected) {
        QTest::newRow(pattern) << QString::fromLatin1(pattern) << expected;
    };
    // In American English, 1 March 2027 at 9:04:05, the 60th day and in the tenth week of the year.
    row("%a %A", QStringLiteral("Mon Monday"));
    row("%b %h %B", QStringLiteral("Mar Mar March"));
    row("%d %e %-d", QStringLiteral("01 1 1"));
    row("%m %-m %y %Y", QStringLiteral("03 3 27 2027"));
    row("%H %k %-H %I %l %-I", QStringLiteral("09 9 9 09 9 9"));
    row("%M %-M %S %-S %p", QStringLiteral("04 4 05 5 AM"));
    row("%j %-j", QStringLiteral("060 60"));
    row("%G-W%V %g", QStringLiteral("2027-W10 27"));
    row("%F %D", QStringLiteral("2027-03-01 03/01/27"));
    row("%R %T", QStringLiteral("09:04 09:04:05"));
    row("%c", QStringLiteral("Mar 1, 2027, 9:04:05\u202fAM"));
    row("%x %X", QStringLiteral("3/1/27 9:04:05\u202fAM"));
    row("%r", QStringLiteral("9:04:05\u202fAM"));
    row("%z %Z", QStringLiteral("+0200 GMT+2"));
    row("%Od %EY %_m %0m %^a", QStringLiteral("01 2027 03 03 Mon"));
    row("%%%n%t%%d", QStringLiteral("%\n\t%d"));
    row("at %H o'clock, 'MM' dd", QStringLiteral("at 09 o'clock, 'MM' dd"));
    // Without a meaning here, or without an end.
    row("%s %u %Q %- %", QStringLiteral("%s %u %Q %- %"));
    row("%-", QStringLiteral("%-"));
    row("", QString());
}

void TestMPosixPattern::formatsByConversions()
{
    QFETCH(QString, pattern);
    QFETCH(QString, expected);
    const MCalendar calendar = calendarAt(QDateTime(QDate(2027, 3, 1), QTime(9, 4, 5)));
    QCOMPARE(MLocale(QStringLiteral("en_US")).formatDateTime(calendar, pattern), expected);
}

void TestMPosixPattern::standsAMonthAlone_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *locale, const char *pattern, const QString &expected) {
        QTest::addRow("%s %s", locale, pattern)
            << QString::fromLatin1(locale) << QString::fromLatin1(pattern) << expected;
    };
    row("en_US", "%d %b", QStringLiteral("01 Mar"));
    row("en_GB", "%d %b", QStringLiteral("01 Mar"));
    row("de_DE", "%d %b", QStringLiteral("01 März"));
    row("de_DE", "%b", QStringLiteral("Mär"));
    row("de_DE", "%a", QStringLiteral("Mo"));
    row("de_DE", "%a %d", QStringLiteral("Mo. 01"));
    row("fi_FI", "%d %b", QStringLiteral("01 maalisk."));
    row("fi_FI", "%e. %B", QStringLiteral("1. maaliskuuta"));
    row("fi_FI", "%B %Y", QStringLiteral("maaliskuu 2027"));
    row("fi_FI", "%A", QStringLiteral("maanantai"));
    row("fi_FI", "%A %H.%M", QStringLiteral("maanantaina 15.04"));
    row("ar_EG", "%d %b", QStringLiteral("٠١ مارس"));
    row("ja_JP", "%d %b", QStringLiteral("01 3月"));
    row("zh_TW", "%A", QStringLiteral("星期一"));
    row("fa_IR", "%e %B %Y", QStringLiteral("۱۰ اسفند ۱۴۰۵"));
}

void TestMPosixPattern::standsAMonthAlone()
{
    QFETCH(QString, locale);
    QFETCH(QString, pattern);
    QFETCH(QString, expected);
    QCOMPARE(MLocale(locale).formatDateTime(calendarAt(afternoon), pattern), expected);
}

int main(int argc, char *argv[])
{
    startIn("C");
    QCoreApplication application(argc, argv);
    TestMPosixPattern test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mposixpattern.moc"
