// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "catalogue_p.h"
#include "testtable.h"

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
    for (const char *variable : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"})
        all.remove(variable);
    for (auto it = environment.cbegin(); it != environment.cend(); ++it)
        all.insert(it.key(), it.value());
    child.setProcessEnvironment(all);
    child.start(program, {"--names"});
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
    const QDir built(QCoreApplication::applicationDirPath() + "/../../share/daskel/translations");
    QDir().mkpath(folder);
    const QStringList catalogues = built.entryList({"*.qm"}, QDir::Files);
    for (const QString &catalogue : catalogues)
        QFile::copy(built.filePath(catalogue), QDir(folder).filePath(catalogue));
}
} // namespace

void TestCatalogue::namesNotebooksInThePersonsLanguage_data()
{
    addColumns<Environment, QString>("environment", "names");

    const QString language = "LANGUAGE";
    const QString lang = "LANG";
    const QString english = "Personal, Notes";
    const QString german = "Persönlich, Notizen";
    const QString finnish = "Oma, Muistiinpanot";
    addRow("English", Environment{{lang, "en_GB.UTF-8"}}, english);
    addRow("German", Environment{{lang, "de_DE.UTF-8"}}, german);
    addRow("German of Austria", Environment{{lang, "de_AT.UTF-8"}}, german);
    addRow("Finnish", Environment{{lang, "fi_FI.UTF-8"}}, finnish);
    addRow("a language without a catalogue", Environment{{lang, "sv_SE.UTF-8"}}, english);
    addRow("no language", Environment{{lang, "C"}}, english);
    addRow("the second language has one",
           Environment{{language, "sv:fi:de"}, {lang, "sv_SE.UTF-8"}}, finnish);
    addRow("English before German", Environment{{language, "en:de"}, {lang, "de_DE.UTF-8"}},
           english);
}

void TestCatalogue::namesNotebooksInThePersonsLanguage()
{
    QFETCH(Environment, environment);
    QFETCH(QString, names);
    QCOMPARE(namesBy(QCoreApplication::applicationFilePath(), environment), names);
}

void TestCatalogue::isFoundWhereItIsInstalled_data()
{
    addColumns<QString, QString, QString>("program", "catalogues", "names");

    const QString german = "Persönlich, Notizen";
    addRow("below the program's prefix", "prefix/bin", "prefix/share/daskel/translations", german);
    addRow("among the system's data", "elsewhere/bin", "system/daskel/translations", german);
    addRow("among the person's data", "elsewhere/bin", "home/daskel/translations", german);
    addRow("nowhere", "elsewhere/bin", "lost", "Personal, Notes");
}

void TestCatalogue::isFoundWhereItIsInstalled()
{
    QFETCH(QString, program);
    QFETCH(QString, catalogues);
    QFETCH(QString, names);

    const QTemporaryDir root;
    copyCatalogues(root.filePath(catalogues));
    QVERIFY(QDir().mkpath(root.filePath(program)));
    const QString copy = root.filePath(program + "/tst_catalogue");
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), copy));
    const Environment environment{
        {"LANG", "de_DE.UTF-8"},
        {"XDG_DATA_HOME", root.filePath("home")},
        {"XDG_DATA_DIRS", root.filePath("system")},
    };
    QCOMPARE(namesBy(copy, environment), names);
}

void TestCatalogue::looksNearbyFirst()
{
    const QStringList code{"/usr/lib/x86_64-linux-gnu", "/a/bin"};
    const QStringList data{"/home/me/.local/share", "/usr/share"};
    QStringList folders = Daskel::catalogueFolders(code, data);
    QCOMPARE(folders.takeLast(), ":/daskel/translations");
    QCOMPARE(folders,
             QStringList({
                 "/usr/lib/x86_64-linux-gnu/share/daskel/translations",
                 "/usr/lib/share/daskel/translations",
                 "/usr/share/daskel/translations",
                 "/share/daskel/translations",
                 "/a/bin/share/daskel/translations",
                 "/a/share/daskel/translations",
                 "/home/me/.local/share/daskel/translations",
             }));
}

void TestCatalogue::passesOverADamagedCatalogue()
{
    const QTemporaryDir near;
    const QTemporaryDir far;
    QFile damaged(near.filePath("libdaskel_fi.qm"));
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("no catalogue");
    damaged.close();
    copyCatalogues(far.path());

    const auto catalogue = Daskel::loadCatalogue({"fi"}, {near.path(), far.path()});
    QVERIFY(catalogue != nullptr);
    QCOMPARE(catalogue->translate(nullptr, ids[0]), "Oma");
    QVERIFY(Daskel::loadCatalogue({"fi"}, {near.path()}) == nullptr);
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
