// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtable.h"

#include <mkcal/sqlitestorage.h>

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>

using mKCal::ExtendedCalendar;
using mKCal::SqliteStorage;

namespace
{
const QString useStep = QStringLiteral("use");
const QString openStep = QStringLiteral("open");
const QString setStep = QStringLiteral("set:");

/// What a process answers that takes one step: "use" asks for the file, "open" opens the default
/// storage, "set:NAME" sets the file.
QString answerTo(const QString &step)
{
    if (step.startsWith(setStep)) {
        const bool isSet = SqliteStorage::setDefaultFile(step.mid(setStep.size()));
        return isSet ? QStringLiteral("set") : QStringLiteral("refused");
    }
    if (step == openStep) {
        const auto calendar = ExtendedCalendar::Ptr::create(QTimeZone::utc());
        const auto storage = ExtendedCalendar::defaultStorage(calendar);
        return storage->open() ? storage.dynamicCast<SqliteStorage>()->databaseName()
                               : storage->errorMessage();
    }
    return SqliteStorage::defaultFile();
}
} // namespace

/// The file can be set once in the life of a process, so each row is a process: the program runs
/// itself.
class TestDefaultFile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void steps_data();
    void steps();
};

void TestDefaultFile::steps_data()
{
    addColumns<QStringList, QStringList>("steps", "answers");
    const QString own = QStringLiteral("data/daskel/calendar.db");
    const QString chosen = QStringLiteral("chosen/my.db");
    const QString set = setStep + chosen;
    const QString isSet = QStringLiteral("set");
    const QString refused = QStringLiteral("refused");

    addRow("the person's own", QStringList{useStep, openStep}, QStringList{own, own});
    addRow("set", QStringList{set, useStep, openStep}, QStringList{isSet, chosen, chosen});
    addRow("set twice", QStringList{set, setStep + QStringLiteral("other.db"), useStep},
           QStringList{isSet, refused, chosen});
    addRow("asked for before", QStringList{useStep, set, useStep}, QStringList{own, refused, own});
    addRow("opened before", QStringList{openStep, set, useStep}, QStringList{own, refused, own});
    addRow("no name", QStringList{setStep, set, useStep}, QStringList{refused, isSet, chosen});
}

void TestDefaultFile::steps()
{
    QFETCH(QStringList, steps);
    QFETCH(QStringList, answers);
    const QTemporaryDir home;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(home.path());
    process.start(QCoreApplication::applicationFilePath(), QStringList{"--steps"} + steps);
    QVERIFY(process.waitForFinished());
    const QString said = QString::fromUtf8(process.readAllStandardOutput());
    QCOMPARE(said.trimmed().remove(home.path() + QLatin1Char('/')).split('\n'), answers);
    for (const char *file : {"data/daskel/calendar.db", "chosen/my.db"}) {
        const int opened = steps.indexOf(openStep);
        const bool isExpected = opened >= 0 && answers.at(opened) == QLatin1String(file);
        QCOMPARE(QFile::exists(home.filePath(QLatin1String(file))), isExpected);
    }
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) != QLatin1String("--steps")) {
        TestDefaultFile test;
        return QTest::qExec(&test, argc, argv);
    }
    for (const QString &step : arguments.mid(2)) {
        std::puts(qUtf8Printable(answerTo(step)));
    }
    return 0;
}

#include "tst_defaultfile.moc"
