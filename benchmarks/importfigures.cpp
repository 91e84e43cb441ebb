// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// An import runs once in its process. Memory that the process had before and gave back is what
// makes reading a large calendar a second time much faster than the first: each side is therefore
// measured in new processes of this program.

#include "bench.h"

#include <mkcal/calendarimporter.h>

#include <KCalendarCore/ICalFormat>
#include <KCalendarCore/MemoryCalendar>

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QTextStream>
#include <QTimeZone>

#include <sys/resource.h>

using namespace mKCal;

namespace
{
const QString importTask = QStringLiteral("import");
const QString parseTask = QStringLiteral("parse");

constexpr const char *processor = "processor"; // µs that it was kept busy
constexpr const char *passed = "passed"; // µs, those that were waited for the disk as well
constexpr const char *memory = "memory"; // KiB at its peak

void timeImport(const QString &iCalendarName, const QString &databaseName, QJsonObject *result)
{
    const OpenedStorage opened(databaseName);
    const Notebook::Ptr notebook(new Notebook);
    notebook->setName(QStringLiteral("Imported"));
    require(opened.storage->addNotebook(notebook), opened.storage->errorMessage());
    ImportReport report;
    const double busy = microseconds([&] {
        CalendarImporter importer(opened.storage);
        importer.setNotebook(notebook->uid());
        const double waited = microsecondsPassed(
            [&] { require(importer.importFiles({iCalendarName}, &report), report.error); });
        result->insert(QLatin1String(passed), waited);
    });
    result->insert(QLatin1String(processor), busy);
    result->insert(QStringLiteral("new"), report.created);
    result->insert(QStringLiteral("skipped"), report.skipped.size());
}

void timeParsing(const QString &iCalendarName, QJsonObject *result)
{
    const KCalCore::MemoryCalendar::Ptr calendar(
        new KCalCore::MemoryCalendar(QTimeZone::systemTimeZone()));
    const double busy = microseconds([&] {
        const double waited = microsecondsPassed([&] {
            QFile file(iCalendarName);
            require(file.open(QIODevice::ReadOnly), file.errorString());
            KCalCore::ICalFormat format;
            require(format.fromRawString(calendar, file.readAll()), iCalendarName);
        });
        result->insert(QLatin1String(passed), waited);
    });
    result->insert(QLatin1String(processor), busy);
}

QJsonObject inNewProcess(const QStringList &task)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), QStringList("--task") + task);
    require(process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit
                && process.exitCode() == 0,
            task.join(QLatin1Char(' ')));
    return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
}
} // namespace

bool runTask(const QStringList &words)
{
    QJsonObject result;
    if (words.size() == 3 && words.first() == importTask) {
        timeImport(words.at(1), words.at(2), &result);
    } else if (words.size() == 2 && words.first() == parseTask) {
        timeParsing(words.at(1), &result);
    } else {
        return false;
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    result.insert(QLatin1String(memory), double(usage.ru_maxrss));
    QTextStream(stdout) << QJsonDocument(result).toJson(QJsonDocument::Compact) << Qt::endl;
    return true;
}

void measureImport(const Bench &bench)
{
    const QString name = QStringLiteral("import of a large file");
    if (!bench.wants(name)) {
        return;
    }
    for (const int count : {10000, 100000}) {
        const QString file = bench.sample(count).iCalendarName;
        QJsonObject ours;
        QJsonObject floor;
        const auto import = [&] {
            const QString database = bench.scratchName(QStringLiteral(".db"));
            ours = inNewProcess({importTask, file, database});
            QFile::remove(database);
            return ours.value(QLatin1String(processor)).toDouble();
        };
        const auto parse = [&] {
            floor = inNewProcess({parseTask, file});
            return floor.value(QLatin1String(processor)).toDouble();
        };
        const Times times = inTurn(count > 10000 ? 3 : 7, import, parse);
        const auto milliseconds = [](const QJsonObject &side) {
            return qRound(side.value(QLatin1String(passed)).toDouble() / 1000);
        };
        bench.add(
            {name,
             count,
             times,
             {Aim::AtMost, 2},
             {{QStringLiteral("bytes"), QFile(file).size()},
              {QStringLiteral("new"), ours.value(QLatin1String("new"))},
              {QStringLiteral("skipped"), ours.value(QLatin1String("skipped"))},
              {QStringLiteral("passed, ms"), milliseconds(ours)},
              {QStringLiteral("passed for the floor, ms"), milliseconds(floor)},
              {QStringLiteral("peak, KiB"), ours.value(QLatin1String(memory))},
              {QStringLiteral("peak of the floor, KiB"), floor.value(QLatin1String(memory))}}});
    }
}
