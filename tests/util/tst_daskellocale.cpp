// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/daskellocale.h>
#include <touchcore/mcalendar.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QTest>

#include <ctime>

/// The texts of each locale are those of CLDR 42: its patterns and names, put together by hand.
/// That a text comes from what is kept shows in its being shared with an earlier one.
class TestDaskelLocale : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();

    // First, as the process is only once without a connection.
    void forgetsNothingBeforeTheFirstShortTime();
    void formatsTimesOfDay_data();
    void formatsTimesOfDay();
    void choosesTheMarkerByTheHour_data();
    void choosesTheMarkerByTheHour();
    void formatsByPatternAndType();
    void keepsShortTimesByTimeOfDay();
    void keepsTheLast128ShortTimes();
    void forgetsAllWhenSettingsChange();
    void forgetsWhenAskedTo();
    void keepsNoMarkerOfAnInvalidDate();
    void alwaysKnowsTheClock_data();
    void alwaysKnowsTheClock();
    void sharesOneCalendar();
};

namespace
{
const QDate monday(2027, 3, 1);

QDateTime at(int hour, int minute, int second = 0, const QDate &date = monday)
{
    return {date, QTime(hour, minute, second)};
}

void useLocale(const char *name)
{
    MLocale::setDefault(MLocale(QString::fromLatin1(name)));
}

/// Whether both are one text in memory and not only alike.
bool isSame(const QString &one, const QString &other)
{
    return one.constData() == other.constData();
}
} // namespace

void TestDaskelLocale::cleanup()
{
    useLocale("en_US");
    DaskelLocaleClearCache().clearCache();
}

void TestDaskelLocale::forgetsNothingBeforeTheFirstShortTime()
{
    QCOMPARE(DaskelLocale::formatShortTimeWithoutAmPm(at(15, 4)), QStringLiteral("3:04\u202f"));
    QCOMPARE(DaskelLocale::formatOnlyAmPm(at(15, 4)), QStringLiteral("PM"));
    useLocale("fi_FI");
    // An American pattern with a Finnish formatter.
    QCOMPARE(DaskelLocale::formatShortTimeWithoutAmPm(at(15, 4)), QStringLiteral("3:04\u202f"));
    QCOMPARE(DaskelLocale::formatOnlyAmPm(at(15, 4)), QStringLiteral("PM"));

    QCOMPARE(DaskelLocale::formatShortTime(at(15, 4)), QStringLiteral("15.04"));
    useLocale("de_DE");
    QCOMPARE(DaskelLocale::formatShortTime(at(15, 4)), QStringLiteral("15:04"));
    QCOMPARE(DaskelLocale::formatShortTimeWithoutAmPm(at(15, 4)), QStringLiteral("15:04"));
    QCOMPARE(DaskelLocale::formatOnlyAmPm(at(15, 4)), QString());
}

void TestDaskelLocale::formatsTimesOfDay_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("morning");
    QTest::addColumn<QStringList>("afternoon");

    const auto row = [](const char *locale, const QStringList &morning,
                        const QStringList &afternoon) {
        QTest::newRow(locale) << QString::fromLatin1(locale) << morning << afternoon;
    };
    const auto plain = [](const QString &time) { return QStringList({time, time, QString()}); };
    row("en_US",
        {QStringLiteral("9:04\u202fAM"), QStringLiteral("9:04\u202f"), QStringLiteral("AM")},
        {QStringLiteral("3:04\u202fPM"), QStringLiteral("3:04\u202f"), QStringLiteral("PM")});
    row("ar_EG", {QStringLiteral("٩:٠٤ ص"), QStringLiteral("٩:٠٤ "), QStringLiteral("ص")},
        {QStringLiteral("٣:٠٤ م"), QStringLiteral("٣:٠٤ "), QStringLiteral("م")});
    row("en_GB", plain(QStringLiteral("09:04")), plain(QStringLiteral("15:04")));
    row("de_DE", plain(QStringLiteral("09:04")), plain(QStringLiteral("15:04")));
    row("fi_FI", plain(QStringLiteral("9.04")), plain(QStringLiteral("15.04")));
    row("ja_JP", plain(QStringLiteral("9:04")), plain(QStringLiteral("15:04")));
    row("fa_IR", plain(QStringLiteral("۹:۰۴")), plain(QStringLiteral("۱۵:۰۴")));
    // The part of the day belongs to its time: it is no marker for the halves of the day.
    row("zh_TW", plain(QStringLiteral("上午9:04")), plain(QStringLiteral("下午3:04")));
}

void TestDaskelLocale::formatsTimesOfDay()
{
    QFETCH(QString, locale);
    QFETCH(QStringList, morning);
    QFETCH(QStringList, afternoon);
    MLocale::setDefault(MLocale(locale));
    const auto texts = [](const QDateTime &dateTime) {
        return QStringList({DaskelLocale::formatShortTime(dateTime),
                            DaskelLocale::formatShortTimeWithoutAmPm(dateTime),
                            DaskelLocale::formatOnlyAmPm(dateTime)});
    };
    QCOMPARE(texts(at(9, 4)), morning);
    QCOMPARE(texts(at(15, 4)), afternoon);
}

void TestDaskelLocale::choosesTheMarkerByTheHour_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QString>("marker");

    QTest::newRow("midnight") << QTime(0, 0) << QStringLiteral("AM");
    QTest::newRow("before noon") << QTime(11, 59, 59, 999) << QStringLiteral("AM");
    QTest::newRow("noon") << QTime(12, 0) << QStringLiteral("PM");
    QTest::newRow("before midnight") << QTime(23, 59) << QStringLiteral("PM");
}

void TestDaskelLocale::choosesTheMarkerByTheHour()
{
    QFETCH(QTime, time);
    QFETCH(QString, marker);
    QCOMPARE(DaskelLocale::formatOnlyAmPm(QDateTime(monday, time)), marker);
    QCOMPARE(DaskelLocale::formatOnlyAmPm(QDateTime(monday, time, Qt::UTC)), marker);
}

void TestDaskelLocale::formatsByPatternAndType()
{
    useLocale("de_DE");
    QCOMPARE(DaskelLocale::formatDateTime(at(15, 4), "%d %b"), QStringLiteral("01 März"));
    QCOMPARE(DaskelLocale::formatDateTime(at(15, 4), MLocale::DateFull, MLocale::TimeNone),
             QStringLiteral("Montag, 1. März 2027"));
    useLocale("fi_FI");
    QCOMPARE(DaskelLocale::formatDateTime(at(15, 4), "%d %b"), QStringLiteral("01 maalisk."));
    QCOMPARE(DaskelLocale::formatDateTime(at(15, 4), MLocale::DateShort, MLocale::TimeShort),
             QStringLiteral("1.3.2027 15.04"));
}

void TestDaskelLocale::keepsShortTimesByTimeOfDay()
{
    const QString ten = DaskelLocale::formatShortTime(at(10, 0));
    QVERIFY(isSame(DaskelLocale::formatShortTime(at(10, 0, 0, monday.addYears(1))), ten));
    QVERIFY(isSame(DaskelLocale::formatShortTime(QDateTime(monday, QTime(10, 0), Qt::UTC)), ten));
    const QString secondLater = DaskelLocale::formatShortTime(at(10, 0, 1));
    QCOMPARE(secondLater, ten);
    QVERIFY(!isSame(secondLater, ten));
}

void TestDaskelLocale::keepsTheLast128ShortTimes()
{
    constexpr int kept = 128;
    QStringList texts;
    for (int i = 0; i < kept; ++i)
        texts << DaskelLocale::formatShortTime(at(i / 60, i % 60));
    // The oldest is used again, so that the second is the least recently used one.
    QVERIFY(isSame(DaskelLocale::formatShortTime(at(0, 0)), texts.at(0)));
    DaskelLocale::formatShortTime(at(kept / 60, kept % 60));
    QVERIFY(isSame(DaskelLocale::formatShortTime(at(0, 0)), texts.at(0)));
    QVERIFY(isSame(DaskelLocale::formatShortTime(at(0, 2)), texts.at(2)));
    const QString again = DaskelLocale::formatShortTime(at(0, 1));
    QCOMPARE(again, texts.at(1));
    QVERIFY(!isSame(again, texts.at(1)));
}

void TestDaskelLocale::forgetsAllWhenSettingsChange()
{
    const auto texts = [] {
        return QStringList({DaskelLocale::formatShortTime(at(15, 4)),
                            DaskelLocale::formatShortTimeWithoutAmPm(at(15, 4)),
                            DaskelLocale::formatOnlyAmPm(at(15, 4))});
    };
    const QStringList american{QStringLiteral("3:04\u202fPM"), QStringLiteral("3:04\u202f"),
                               QStringLiteral("PM")};
    QCOMPARE(texts(), american);
    useLocale("ar_EG");
    QCOMPARE(texts(),
             QStringList({QStringLiteral("٣:٠٤ م"), QStringLiteral("٣:٠٤ "), QStringLiteral("م")}));
    DaskelLocale::systemLocale().setTimeFormat24h(MLocale::TwentyFourHourTimeFormat24h);
    QCOMPARE(texts(), QStringList({QStringLiteral("١٥:٠٤"), QStringLiteral("١٥:٠٤"), QString()}));
    useLocale("en_US");
    QCOMPARE(texts(), american);
}

void TestDaskelLocale::forgetsWhenAskedTo()
{
    const QString before = DaskelLocale::formatShortTime(at(10, 0));
    DaskelLocaleClearCache().clearCache();
    const QString after = DaskelLocale::formatShortTime(at(10, 0));
    QCOMPARE(after, before);
    QVERIFY(!isSame(after, before));
}

void TestDaskelLocale::keepsNoMarkerOfAnInvalidDate()
{
    QCOMPARE(DaskelLocale::formatOnlyAmPm(QDateTime()), QString());
    QCOMPARE(DaskelLocale::formatShortTime(QDateTime()), QString());
    QCOMPARE(DaskelLocale::formatShortTimeWithoutAmPm(QDateTime()), QString());
    QCOMPARE(DaskelLocale::formatOnlyAmPm(at(9, 0)), QStringLiteral("AM"));
}

void TestDaskelLocale::alwaysKnowsTheClock_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<MLocale::TimeFormat24h>("chosen");
    QTest::addColumn<MLocale::TimeFormat24h>("current");

    const auto own = MLocale::LocaleDefaultTimeFormat24h;
    const auto twelve = MLocale::TwelveHourTimeFormat24h;
    const auto twentyFour = MLocale::TwentyFourHourTimeFormat24h;
    QTest::newRow("American") << QStringLiteral("en_US") << own << twelve;
    QTest::newRow("German") << QStringLiteral("de_DE") << own << twentyFour;
    QTest::newRow("American with 24 hours") << QStringLiteral("en_US") << twentyFour << twentyFour;
    QTest::newRow("German with 12 hours") << QStringLiteral("de_DE") << twelve << twelve;
}

void TestDaskelLocale::alwaysKnowsTheClock()
{
    QFETCH(QString, locale);
    QFETCH(MLocale::TimeFormat24h, chosen);
    QFETCH(MLocale::TimeFormat24h, current);
    MLocale settings(locale);
    settings.setTimeFormat24h(chosen);
    MLocale::setDefault(settings);
    QCOMPARE(DaskelLocale::currentTimeFormat(), current);
}

void TestDaskelLocale::sharesOneCalendar()
{
    MCalendar &calendar = DaskelLocale::sharedCalendar();
    QCOMPARE(calendar.type(), MLocale::DefaultCalendar);
    QCOMPARE(calendar.timeZone(), QString());
    const QDateTime moment = at(15, 4);
    DaskelLocale::formatDateTime(moment, "%d");
    QCOMPARE(calendar.dateTime(), moment);
    DaskelLocale::formatDateTime(moment.addDays(1), MLocale::DateShort, MLocale::TimeNone);
    QCOMPARE(&DaskelLocale::sharedCalendar(), &calendar);
    QCOMPARE(calendar.dateTime(), moment.addDays(1));
    QCOMPARE(calendar.firstDayOfWeek(), int(Qt::Sunday));
    useLocale("de_DE");
    QCOMPARE(calendar.firstDayOfWeek(), int(Qt::Monday));
    QCOMPARE(&DaskelLocale::systemLocale(), &MLocale::getDefault());
}

int main(int argc, char *argv[])
{
    for (const char *name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LC_TIME"})
        qunsetenv(name);
    qputenv("LANG", "en_US.UTF-8");
    qputenv("TZ", "Europe/Helsinki");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"); // the desktop here has no say
    tzset();
    QCoreApplication application(argc, argv);
    TestDaskelLocale test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_daskellocale.moc"
