// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "catalogue_p.h"

#include <daskel/catalogue.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <cstdio>
#include <cstring>

/// What the library's texts are in each language and place. The languages of a process are those it
/// was started with, so the program runs itself in other environments and places.
class TestCatalogue : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void namesNotebooksInThePersonsLanguage_data();
    void namesNotebooksInThePersonsLanguage();
    void isFoundWhereItIsInstalled_data();
    void isFoundWhereItIsInstalled();
    void looksNearbyFirst();
    void passesOverADamagedCatalogue();
    void isInstalledOnce();
};

namespace
{
using Environment = QMap<QString, QString>;

const char *const ids[] = {"qtn_caln_personal_caln", "qtn_caln_notes_caln"};

/// The names that @p program, this one or a copy, gives the notebooks in @p environment.
QString namesBy(const QString &program, const Environment &environment)
{
    QProcess child;
    QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : {QStringLiteral("LANGUAGE"), QStringLiteral("LC_ALL"),
                                    QStringLiteral("LC_MESSAGES"), QStringLiteral("LANG")})
        all.remove(variable);
    for (auto it = environment.cbegin(); it != environment.cend(); ++it)
        all.insert(it.key(), it.value());
    child.setProcessEnvironment(all);
    child.start(program, {QStringLiteral("--names")});
    if (!child.waitForFinished() || child.exitCode() != 0)
        return QString::fromUtf8(child.readAllStandardError());
    return QString::fromUtf8(child.readAllStandardOutput());
}

/// The other side of namesBy().
int printNames(int argc, char *argv[])
{
    if (Daskel::installLibraryCatalogue()) {
        std::fputs("installed before the application", stderr);
        return 1;
    }
    const QCoreApplication application(argc, argv);
    if (!Daskel::installLibraryCatalogue()) {
        std::fputs("not installed", stderr);
        return 1;
    }
    std::printf("%s, %s", qUtf8Printable(qtTrId(ids[0])), qUtf8Printable(qtTrId(ids[1])));
    return 0;
}

/// Copies the catalogues of the build tree to @p folder.
void copyCatalogues(const QString &folder)
{
    const QDir built(QCoreApplication::applicationDirPath()
                     + QStringLiteral("/../../share/daskel/translations"));
    QDir().mkpath(folder);
    const QStringList catalogues = built.entryList({QStringLiteral("*.qm")}, QDir::Files);
    for (const QString &catalogue : catalogues)
        QFile::copy(built.filePath(catalogue), QDir(folder).filePath(catalogue));
}
} // namespace

void TestCatalogue::namesNotebooksInThePersonsLanguage_data()
{
    QTest::addColumn<Environment>("environment");
    QTest::addColumn<QString>("names");

    const QString language = QStringLiteral("LANGUAGE");
    const QString lang = QStringLiteral("LANG");
    const QString english = QStringLiteral("Personal, Notes");
    const QString german = QStringLiteral("Persönlich, Notizen");
    const QString finnish = QStringLiteral("Oma, Muistiinpanot");
    QTest::newRow("English") << Environment{{lang, QStringLiteral("en_GB.UTF-8")}} << english;
    QTest::newRow("German") << Environment{{lang, QStringLiteral("de_DE.UTF-8")}} << german;
    QTest::newRow("German of Austria")
        << Environment{{lang, QStringLiteral("de_AT.UTF-8")}} << german;
    QTest::newRow("Finnish") << Environment{{lang, QStringLiteral("fi_FI.UTF-8")}} << finnish;
    QTest::newRow("a language without a catalogue")
        << Environment{{lang, QStringLiteral("sv_SE.UTF-8")}} << english;
    QTest::newRow("no language") << Environment{{lang, QStringLiteral("C")}} << english;
    QTest::newRow("the second language has one")
        << Environment{{language, QStringLiteral("sv:fi:de")},
                       {lang, QStringLiteral("sv_SE.UTF-8")}}
        << finnish;
    QTest::newRow("English before German")
        << Environment{{language, QStringLiteral("en:de")}, {lang, QStringLiteral("de_DE.UTF-8")}}
        << english;
}

void TestCatalogue::namesNotebooksInThePersonsLanguage()
{
    QFETCH(Environment, environment);
    QFETCH(QString, names);
    QCOMPARE(namesBy(QCoreApplication::applicationFilePath(), environment), names);
}

void TestCatalogue::isFoundWhereItIsInstalled_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("catalogues");
    QTest::addColumn<QString>("names");

    const QString german = QStringLiteral("Persönlich, Notizen");
    QTest::newRow("below the program's prefix")
        << QStringLiteral("prefix/bin") << QStringLiteral("prefix/share/daskel/translations")
        << german;
    QTest::newRow("among the system's data")
        << QStringLiteral("elsewhere/bin") << QStringLiteral("system/daskel/translations")
        << german;
    QTest::newRow("among the person's data")
        << QStringLiteral("elsewhere/bin") << QStringLiteral("home/daskel/translations") << german;
    QTest::newRow("nowhere") << QStringLiteral("elsewhere/bin") << QStringLiteral("lost")
                             << QStringLiteral("Personal, Notes");
}

void TestCatalogue::isFoundWhereItIsInstalled()
{
    QFETCH(QString, program);
    QFETCH(QString, catalogues);
    QFETCH(QString, names);

    const QTemporaryDir root;
    copyCatalogues(root.filePath(catalogues));
    QVERIFY(QDir().mkpath(root.filePath(program)));
    const QString copy = root.filePath(program + QStringLiteral("/tst_catalogue"));
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), copy));
    const Environment environment{
        {QStringLiteral("LANG"), QStringLiteral("de_DE.UTF-8")},
        {QStringLiteral("XDG_DATA_HOME"), root.filePath(QStringLiteral("home"))},
        {QStringLiteral("XDG_DATA_DIRS"), root.filePath(QStringLiteral("system"))},
    };
    QCOMPARE(namesBy(copy, environment), names);
}

void TestCatalogue::looksNearbyFirst()
{
    const QStringList code{QStringLiteral("/usr/lib/x86_64-linux-gnu"), QStringLiteral("/a/bin")};
    const QStringList data{QStringLiteral("/home/me/.local/share"), QStringLiteral("/usr/share")};
    QStringList folders = Daskel::catalogueFolders(code, data);
    QCOMPARE(folders.takeLast(), QStringLiteral(":/daskel/translations"));
    QCOMPARE(folders,
             QStringList({
                 QStringLiteral("/usr/lib/x86_64-linux-gnu/share/daskel/translations"),
                 QStringLiteral("/usr/lib/share/daskel/translations"),
                 QStringLiteral("/usr/share/daskel/translations"),
                 QStringLiteral("/share/daskel/translations"),
                 QStringLiteral("/a/bin/share/daskel/translations"),
                 QStringLiteral("/a/share/daskel/translations"),
                 QStringLiteral("/home/me/.local/share/daskel/translations"),
             }));
}

void TestCatalogue::passesOverADamagedCatalogue()
{
    const QTemporaryDir near;
    const QTemporaryDir far;
    QFile damaged(near.filePath(QStringLiteral("libdaskel_fi.qm")));
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("no catalogue");
    damaged.close();
    copyCatalogues(far.path());

    const auto catalogue = Daskel::loadCatalogue({QStringLiteral("fi")}, {near.path(), far.path()});
    QVERIFY(catalogue != nullptr);
    QCOMPARE(catalogue->translate(nullptr, ids[0]), QStringLiteral("Oma"));
    QVERIFY(Daskel::loadCatalogue({QStringLiteral("fi")}, {near.path()}) == nullptr);
}

void TestCatalogue::isInstalledOnce()
{
    QVERIFY(Daskel::installLibraryCatalogue());
    const auto installed = QCoreApplication::instance()->findChildren<QTranslator *>();
    QVERIFY(!installed.isEmpty());
    QVERIFY(Daskel::installLibraryCatalogue());
    QCOMPARE(QCoreApplication::instance()->findChildren<QTranslator *>(), installed);
}

int main(int argc, char *argv[])
{
    if (argc == 2 && std::strcmp(argv[1], "--names") == 0)
        return printNames(argc, argv);
    QCoreApplication application(argc, argv);
    TestCatalogue test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_catalogue.moc"
