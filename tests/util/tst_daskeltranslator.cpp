// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/daskellocale.h>
#include <daskel/daskeltranslator.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

/// The texts of the library in the languages of the default locale, by the catalogues of the build
/// folder.
class TestDaskelTranslator : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void namesNotebooks_data();
    void namesNotebooks();
    void putsTheApplicationsCataloguesAbove();
    void keepsTheSettings();
};

namespace
{
const QString library = QStringLiteral("libdaskel");

QString personal()
{
    return qtTrId("qtn_caln_personal_caln");
}
} // namespace

void TestDaskelTranslator::namesNotebooks_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("name");

    QTest::newRow("German") << QStringLiteral("de_AT") << QStringLiteral("Persönlich");
    QTest::newRow("Finnish") << QStringLiteral("fi_FI") << QStringLiteral("Oma");
    QTest::newRow("a language without a catalogue")
        << QStringLiteral("ja_JP") << QStringLiteral("Personal");
}

void TestDaskelTranslator::namesNotebooks()
{
    QFETCH(QString, locale);
    QFETCH(QString, name);
    MLocale::setDefault(MLocale(locale));
    DaskelTranslator::installLibdaskelTranslationCatalogs(QStringList());
    QCOMPARE(personal(), name);
    // It stays so when the person changes the language.
    MLocale english(DaskelLocale::systemLocale());
    english = MLocale(QStringLiteral("en_GB"));
    english.installTrCatalog(library);
    MLocale::setDefault(english);
    QCOMPARE(personal(), QStringLiteral("Personal"));
}

void TestDaskelTranslator::putsTheApplicationsCataloguesAbove()
{
    const QTemporaryDir folder;
    const QDir built(QCoreApplication::applicationDirPath()
                     + QStringLiteral("/../../share/daskel/translations"));
    QVERIFY(QFile::copy(built.filePath(QStringLiteral("libdaskel_fi.qm")),
                        folder.filePath(QStringLiteral("app_en.qm"))));
    MLocale::addTranslationPath(folder.path());
    MLocale::setDefault(MLocale(QStringLiteral("en_GB")));

    const QString app = QStringLiteral("app");
    const QString other = QStringLiteral("other");
    DaskelTranslator::installLibdaskelTranslationCatalogs({other, QString(), app});
    QCOMPARE(MLocale::getDefault().trCatalogs(), QStringList({library, other, app}));
    QCOMPARE(personal(), QStringLiteral("Oma"));

    DaskelTranslator::installLibdaskelTranslationCatalogs(other);
    QCOMPARE(MLocale::getDefault().trCatalogs(), QStringList({library, other}));
    QCOMPARE(personal(), QStringLiteral("Personal"));
}

void TestDaskelTranslator::keepsTheSettings()
{
    MLocale finnish(QStringLiteral("fi_FI"));
    finnish.setTimeFormat24h(MLocale::TwelveHourTimeFormat24h);
    MLocale::setDefault(finnish);
    QSignalSpy changes(&DaskelLocale::systemLocale(), &MLocale::settingsChanged);
    DaskelTranslator::installLibdaskelTranslationCatalogs(QStringLiteral("app"));
    QCOMPARE(DaskelLocale::systemLocale().name(), QStringLiteral("fi_FI"));
    QCOMPARE(DaskelLocale::currentTimeFormat(), MLocale::TwelveHourTimeFormat24h);
    QVERIFY(changes.isEmpty());
}

QTEST_GUILESS_MAIN(TestDaskelTranslator)

#include "tst_daskeltranslator.moc"
