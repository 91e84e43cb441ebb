// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localeenvironment.h"

#include <touchcore/mcalendar.h>
#include <touchcore/mlocale.h>

#include <QSignalSpy>
#include <QTest>

using Variables = QMap<QByteArray, QByteArray>;

/// What a locale is made of, and who is told when it changes.
class TestMLocale : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();

    void readsTheEnvironment_data();
    void readsTheEnvironment();
    void understandsNames_data();
    void understandsNames();
    void tellsOfEachChange();
    void keepsOneDefaultLocale();
    void copiesSettings();
};

namespace
{
QString afternoonTime(const MLocale &locale)
{
    MCalendar calendar;
    calendar.setDateTime(QDateTime(QDate(2027, 3, 1), QTime(15, 4)));
    return locale.formatDateTime(calendar, MLocale::DateNone, MLocale::TimeShort);
}
} // namespace

void TestMLocale::cleanup()
{
    startIn("C");
    MLocale::setDefault(MLocale(QString()));
}

void TestMLocale::readsTheEnvironment_data()
{
    QTest::addColumn<Variables>("variables");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("languages");

    const QString german = QStringLiteral("de_DE");
    const QString finnish = QStringLiteral("fi_FI");
    const QString british = QStringLiteral("en_GB");
    QTest::newRow("nothing") << Variables{} << british << QStringList();
    QTest::newRow("C") << Variables{{"LANG", "C.UTF-8"}} << british << QStringList();
    QTest::newRow("one for all") << Variables{{"LANG", "de_DE.UTF-8"}} << german
                                 << QStringList(german);
    QTest::newRow("times of their own")
        << Variables{{"LANG", "de_DE.UTF-8"}, {"LC_TIME", "fi_FI.UTF-8"}} << finnish
        << QStringList(german);
    QTest::newRow("texts of their own")
        << Variables{{"LANG", "de_DE.UTF-8"}, {"LC_MESSAGES", "fi_FI.UTF-8"}} << german
        << QStringList(finnish);
    QTest::newRow("over all others")
        << Variables{{"LC_ALL", "fi_FI"}, {"LC_TIME", "de_DE"}, {"LC_MESSAGES", "C"}, {"LANG", "C"}}
        << finnish << QStringList(finnish);
    QTest::newRow("empty ones are not set")
        << Variables{{"LC_ALL", ""}, {"LC_TIME", ""}, {"LANG", "de_DE"}} << german
        << QStringList(german);
    QTest::newRow("several languages")
        << Variables{{"LANGUAGE", "sv_SE:fi:de_DE:sv_SE:C"}, {"LANG", "de_DE.UTF-8"}} << german
        << QStringList({QStringLiteral("sv_SE"), QStringLiteral("fi"), german});
    QTest::newRow("several languages, untranslated")
        << Variables{{"LANGUAGE", "fi:de"}, {"LC_MESSAGES", "C"}, {"LANG", "de_DE"}} << german
        << QStringList();
}

void TestMLocale::readsTheEnvironment()
{
    QFETCH(Variables, variables);
    QFETCH(QString, name);
    QFETCH(QStringList, languages);
    setLocaleEnvironment(variables);
    const MLocale locale{QString()};
    QCOMPARE(locale.name(), name);
    QCOMPARE(locale.languages(), languages);
    QCOMPARE(locale.timeFormat24h(), MLocale::LocaleDefaultTimeFormat24h);
}

void TestMLocale::understandsNames_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("name");

    const auto row = [](const char *given, const char *name) {
        QTest::newRow(given) << QString::fromLatin1(given) << QString::fromLatin1(name);
    };
    row("de_DE", "de_DE");
    row("de_DE.UTF-8", "de_DE");
    row("de_DE.UTF-8@euro", "de_DE");
    row("de-DE", "de_DE");
    row("fi", "fi");
    row("sr_RS@latin", "sr_Latn_RS");
    row("sr_RS.UTF-8@latin", "sr_Latn_RS");
    row("sr@latin", "sr_Latn");
    row("be_BY@cyrillic", "be_Cyrl_BY");
    row("ca_ES.UTF-8@valencia", "ca_ES_VALENCIA");
    row("fa_IR@calendar=gregorian", "fa_IR@calendar=gregorian");
    row("C", "en_GB");
    row("C.UTF-8", "en_GB");
    row("POSIX", "en_GB");
}

void TestMLocale::understandsNames()
{
    QFETCH(QString, given);
    QFETCH(QString, name);
    QCOMPARE(MLocale(given).name(), name);
}

void TestMLocale::tellsOfEachChange()
{
    MLocale &locale = MLocale::getDefault();
    QSignalSpy changes(&locale, &MLocale::settingsChanged);
    MLocale::setDefault(MLocale());
    locale.setTimeFormat24h(MLocale::LocaleDefaultTimeFormat24h);
    QCOMPARE(changes.size(), 0);
    MLocale::setDefault(MLocale(QStringLiteral("de_DE")));
    QCOMPARE(changes.size(), 1);
    locale.setTimeFormat24h(MLocale::TwelveHourTimeFormat24h);
    QCOMPARE(changes.size(), 2);
    locale.setTimeFormat24h(MLocale::TwelveHourTimeFormat24h);
    MLocale::setDefault(locale);
    QCOMPARE(changes.size(), 2);
    MLocale::setDefault(MLocale(QStringLiteral("de_DE")));
    QCOMPARE(changes.size(), 3);
    // Other languages alone are news, too.
    setLocaleEnvironment({{"LC_TIME", "de_DE"}, {"LANG", "fi_FI"}});
    MLocale::setDefault(MLocale(QString()));
    QCOMPARE(changes.size(), 4);
}

void TestMLocale::keepsOneDefaultLocale()
{
    const MLocale *before = &MLocale::getDefault();
    QCOMPARE(afternoonTime(*before), QStringLiteral("15:04"));
    {
        MLocale finnish(QStringLiteral("fi_FI"));
        MLocale::setDefault(finnish);
        finnish.setTimeFormat24h(MLocale::TwelveHourTimeFormat24h);
    }
    QCOMPARE(&MLocale::getDefault(), before);
    QCOMPARE(afternoonTime(*before), QStringLiteral("15.04"));
}

void TestMLocale::copiesSettings()
{
    MLocale german(QStringLiteral("de_DE"));
    german.setTimeFormat24h(MLocale::TwelveHourTimeFormat24h);
    german.installTrCatalog(QStringLiteral("app"));
    QSignalSpy changes(&german, &MLocale::settingsChanged);

    MLocale copy(german);
    copy.setTimeFormat24h(MLocale::TwentyFourHourTimeFormat24h);
    QCOMPARE(copy.name(), german.name());
    QCOMPARE(copy.trCatalogs(), QStringList(QStringLiteral("app")));
    QCOMPARE(german.timeFormat24h(), MLocale::TwelveHourTimeFormat24h);
    QVERIFY(changes.isEmpty());

    // What is made later begins as the default locale is by then.
    MLocale::setDefault(german);
    const MLocale later;
    QCOMPARE(later.name(), QStringLiteral("de_DE"));
    QCOMPARE(later.timeFormat24h(), MLocale::TwelveHourTimeFormat24h);
    QCOMPARE(later.trCatalogs(), QStringList());
}

int main(int argc, char *argv[])
{
    startIn("C");
    QCoreApplication application(argc, argv);
    TestMLocale test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mlocale.moc"
