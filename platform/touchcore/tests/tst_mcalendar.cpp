// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localeenvironment.h"

#include <touchcore/mcalendar.h>

#include <QTest>

class TestMCalendar : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { MLocale::setDefault(MLocale(QStringLiteral("en_GB"))); }

    void beginsWeeksAsTheRegionDoes_data();
    void beginsWeeksAsTheRegionDoes();
    void showsTheMomentInItsZone_data();
    void showsTheMomentInItsZone();
    void countsYearsByItsType_data();
    void countsYearsByItsType();
    void isAValue();
};

void TestMCalendar::beginsWeeksAsTheRegionDoes_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("firstDay");

    // CLDR 42, supplemental week data: firstDay by territory.
    QTest::newRow("United States") << QStringLiteral("en_US") << int(Qt::Sunday);
    QTest::newRow("Great Britain") << QStringLiteral("en_GB") << int(Qt::Monday);
    QTest::newRow("Germany") << QStringLiteral("de_DE") << int(Qt::Monday);
    QTest::newRow("Finland") << QStringLiteral("fi_FI") << int(Qt::Monday);
    QTest::newRow("Egypt") << QStringLiteral("ar_EG") << int(Qt::Saturday);
    QTest::newRow("Japan") << QStringLiteral("ja_JP") << int(Qt::Sunday);
    QTest::newRow("Taiwan") << QStringLiteral("zh_TW") << int(Qt::Sunday);
    QTest::newRow("Iran") << QStringLiteral("fa_IR") << int(Qt::Saturday);
    QTest::newRow("the Maldives") << QStringLiteral("dv_MV") << int(Qt::Friday);
    QTest::newRow("no region") << QStringLiteral("C") << int(Qt::Monday);
}

void TestMCalendar::beginsWeeksAsTheRegionDoes()
{
    QFETCH(QString, locale);
    QFETCH(int, firstDay);
    const MCalendar calendar; // made before the locale changes, as one that is shared is
    MLocale::setDefault(MLocale(locale));
    QCOMPARE(calendar.firstDayOfWeek(), firstDay);
    QCOMPARE(calendar.daysInWeek(), 7);
}

void TestMCalendar::showsTheMomentInItsZone_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << QString() << QStringLiteral("1 Mar 2027, 23:30");
    QTest::newRow("further east") << QStringLiteral("Asia/Kathmandu")
                                  << QStringLiteral("2 Mar 2027, 05:15");
    QTest::newRow("further west") << QStringLiteral("America/New_York")
                                  << QStringLiteral("1 Mar 2027, 18:30");
    QTest::newRow("unknown") << QStringLiteral("Mars/Olympus")
                             << QStringLiteral("1 Mar 2027, 23:30");
}

void TestMCalendar::showsTheMomentInItsZone()
{
    QFETCH(QString, zone);
    QFETCH(QString, text);
    MCalendar calendar(MLocale::DefaultCalendar, zone);
    calendar.setDateTime(QDateTime(QDate(2027, 3, 1), QTime(23, 30), Qt::UTC));
    QCOMPARE(calendar.timeZone(), zone);
    QCOMPARE(
        MLocale::getDefault().formatDateTime(calendar, MLocale::DateMedium, MLocale::TimeShort),
        text);
}

void TestMCalendar::countsYearsByItsType_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<MLocale::CalendarType>("type");
    QTest::addColumn<QString>("date");

    // 1 March 2027 by the tables of each calendar.
    const QString english = QStringLiteral("en_GB");
    const auto row = [](const char *name, const QString &locale, MLocale::CalendarType type,
                        const QString &date) { QTest::newRow(name) << locale << type << date; };
    row("the locale's own", english, MLocale::DefaultCalendar, QStringLiteral("2027-03-01"));
    row("Buddhist", english, MLocale::BuddhistCalendar, QStringLiteral("2570-03-01"));
    row("Coptic", english, MLocale::CopticCalendar, QStringLiteral("1743-06-22"));
    row("Ethiopic", english, MLocale::EthiopicCalendar, QStringLiteral("2019-06-22"));
    row("Hebrew", english, MLocale::HebrewCalendar, QStringLiteral("5787-06-22"));
    row("Islamic civil", english, MLocale::IslamicCivilCalendar, QStringLiteral("1448-09-22"));
    row("Japanese", english, MLocale::JapaneseCalendar, QStringLiteral("9-03-01"));
    row("Persian", english, MLocale::PersianCalendar, QStringLiteral("1405-12-10"));
    row("of Iran", QStringLiteral("fa_IR@numbers=latn"), MLocale::DefaultCalendar,
        QStringLiteral("1405-12-10"));
    row("of Thailand", QStringLiteral("th_TH"), MLocale::DefaultCalendar,
        QStringLiteral("2570-03-01"));
    row("not of Iran", QStringLiteral("fa_IR@numbers=latn"), MLocale::GregorianCalendar,
        QStringLiteral("2027-03-01"));
}

void TestMCalendar::countsYearsByItsType()
{
    QFETCH(QString, locale);
    QFETCH(MLocale::CalendarType, type);
    QFETCH(QString, date);
    MCalendar calendar(type);
    calendar.setDateTime(QDateTime(QDate(2027, 3, 1), QTime(12, 0)));
    QCOMPARE(calendar.type(), type);
    QCOMPARE(MLocale(locale).formatDateTime(calendar, QStringLiteral("%Y-%m-%d")), date);
}

void TestMCalendar::isAValue()
{
    MCalendar calendar(MLocale::PersianCalendar, QStringLiteral("Asia/Tehran"));
    QVERIFY(!calendar.dateTime().isValid());
    const QDateTime moment(QDate(2027, 3, 1), QTime(12, 0), Qt::UTC);
    calendar.setDateTime(moment);
    const MCalendar copy = calendar;
    calendar.setDateTime(moment.addDays(1));
    QCOMPARE(copy.dateTime(), moment);
    QCOMPARE(copy.type(), MLocale::PersianCalendar);
    QCOMPARE(copy.timeZone(), QStringLiteral("Asia/Tehran"));
}

int main(int argc, char *argv[])
{
    startIn("en_GB.UTF-8");
    QCoreApplication application(argc, argv);
    TestMCalendar test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mcalendar.moc"
