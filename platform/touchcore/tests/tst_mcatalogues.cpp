// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localeenvironment.h"

#include <touchcore/mlocale.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// What qtTrId() says as the default locale changes. The catalogues "greeting" (English, German)
/// and "override" (English) lie below share/ beside the program.
class TestMCatalogues : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        MLocale::addTranslationPath(QStringLiteral("touchcore-tests/translations"));
    }
    void cleanup();

    void speaksTheFirstLanguageThatIsThere_data();
    void speaksTheFirstLanguageThatIsThere();
    void speaksThroughTheDefaultLocaleOnly();
    void asksLaterCataloguesFirst();
    void addsToTheDefaultLocaleAtOnce();
    void forgetsCataloguesThatAreReplaced();
    void followsTheLanguage();
    void looksInLaterPathsFirst();
    void passesOverADamagedFile();
    void tellsTheApplication();
};

namespace
{
const QString greeting = QStringLiteral("greeting");

MLocale localeWith(const QString &name, const QStringList &catalogues)
{
    MLocale locale(name);
    for (const QString &catalogue : catalogues)
        locale.installTrCatalog(catalogue);
    return locale;
}

QString greetingText()
{
    return qtTrId("greeting");
}

/// Counts what an application is told of languages.
class LanguageNews : public QObject
{
public:
    LanguageNews() { QCoreApplication::instance()->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == QCoreApplication::instance() && event->type() == QEvent::LanguageChange)
            lastGreeting = greetingText();
        return false;
    }
    QString lastGreeting;
};
} // namespace

void TestMCatalogues::cleanup()
{
    setLocaleEnvironment({});
    MLocale::setDefault(MLocale(QString()));
}

void TestMCatalogues::speaksTheFirstLanguageThatIsThere_data()
{
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<QByteArray>("lang");
    QTest::addColumn<QStringList>("texts");

    const QStringList english{QStringLiteral("Hello"), QStringLiteral("1 day"),
                              QStringLiteral("3 days"), QStringLiteral("Only here"),
                              QStringLiteral("missing")};
    const QStringList german{QStringLiteral("Hallo"), QStringLiteral("1 Tag"),
                             QStringLiteral("3 Tage"), QStringLiteral("Only here"),
                             QStringLiteral("missing")};
    const auto row = [](const char *name, const char *language, const char *lang,
                        const QStringList &texts) {
        QTest::newRow(name) << QByteArray(language) << QByteArray(lang) << texts;
    };
    row("German", "", "de_DE.UTF-8", german);
    row("German of Austria", "", "de_AT.UTF-8", german);
    row("English", "", "en_US.UTF-8", english);
    row("a language without a catalogue", "", "fi_FI.UTF-8", english);
    row("its second choice", "fi:de", "fi_FI.UTF-8", german);
    row("English before German", "en_GB:de", "de_DE.UTF-8", english);
    row("none", "", "C", english);
}

void TestMCatalogues::speaksTheFirstLanguageThatIsThere()
{
    QFETCH(QByteArray, language);
    QFETCH(QByteArray, lang);
    QFETCH(QStringList, texts);
    setLocaleEnvironment({{"LANGUAGE", language}, {"LANG", lang}});
    MLocale::setDefault(localeWith(QString(), {greeting}));
    QCOMPARE(QStringList({greetingText(), qtTrId("days", 1), qtTrId("days", 3),
                          qtTrId("only_english"), qtTrId("missing")}),
             texts);
}

void TestMCatalogues::speaksThroughTheDefaultLocaleOnly()
{
    const MLocale other = localeWith(QStringLiteral("de_DE"), {greeting});
    QCOMPARE(greetingText(), greeting);
    MLocale::setDefault(other);
    QCOMPARE(greetingText(), QStringLiteral("Hallo"));
}

void TestMCatalogues::asksLaterCataloguesFirst()
{
    const QString override = QStringLiteral("override");
    MLocale::setDefault(localeWith(QStringLiteral("en_GB"), {greeting, override}));
    QCOMPARE(greetingText(), QStringLiteral("Good day"));
    MLocale::setDefault(localeWith(QStringLiteral("en_GB"), {override, greeting}));
    QCOMPARE(greetingText(), QStringLiteral("Hello"));
    // English is what is left, not what a later catalogue puts above another's German.
    MLocale::setDefault(localeWith(QStringLiteral("de_DE"), {greeting, QString(), override}));
    QCOMPARE(MLocale::getDefault().trCatalogs(), QStringList({greeting, override}));
    QCOMPARE(greetingText(), QStringLiteral("Hallo"));
}

void TestMCatalogues::addsToTheDefaultLocaleAtOnce()
{
    MLocale::getDefault().installTrCatalog(greeting);
    QCOMPARE(greetingText(), QStringLiteral("Hello"));
}

void TestMCatalogues::forgetsCataloguesThatAreReplaced()
{
    MLocale::setDefault(localeWith(QStringLiteral("de_DE"), {greeting}));
    // A new locale reads as the default one does, but brings no catalogue along.
    const MLocale fresh;
    QCOMPARE(fresh.languages(), QStringList(QStringLiteral("de_DE")));
    QCOMPARE(fresh.trCatalogs(), QStringList());
    MLocale::setDefault(fresh);
    QCOMPARE(greetingText(), greeting);
}

void TestMCatalogues::followsTheLanguage()
{
    MLocale::setDefault(localeWith(QStringLiteral("de_DE"), {greeting}));
    MLocale english(MLocale::getDefault());
    english = localeWith(QStringLiteral("en_US"), english.trCatalogs());
    MLocale::setDefault(english);
    QCOMPARE(greetingText(), QStringLiteral("Hello"));
}

void TestMCatalogues::looksInLaterPathsFirst()
{
    const QTemporaryDir folder;
    const QDir built(QCoreApplication::applicationDirPath()
                     + QStringLiteral("/share/touchcore-tests/translations"));
    QVERIFY(QFile::copy(built.filePath(QStringLiteral("override_en.qm")),
                        folder.filePath(QStringLiteral("greeting_en.qm"))));
    MLocale::addTranslationPath(folder.path());
    MLocale::setDefault(localeWith(QStringLiteral("en_GB"), {greeting}));
    QCOMPARE(greetingText(), QStringLiteral("Good day"));
}

void TestMCatalogues::passesOverADamagedFile()
{
    const QTemporaryDir folder;
    QFile damaged(folder.filePath(QStringLiteral("greeting_de.qm")));
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("no catalogue");
    damaged.close();
    MLocale::addTranslationPath(folder.path());
    MLocale::setDefault(localeWith(QStringLiteral("de_DE"), {greeting}));
    QCOMPARE(greetingText(), QStringLiteral("Hallo"));
}

void TestMCatalogues::tellsTheApplication()
{
    LanguageNews news;
    MLocale::setDefault(localeWith(QStringLiteral("de_DE"), {greeting}));
    QCOMPARE(news.lastGreeting, QStringLiteral("Hallo"));
}

int main(int argc, char *argv[])
{
    startIn("C");
    QCoreApplication application(argc, argv);
    TestMCatalogues test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mcatalogues.moc"
