// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bench.h"

#include <kcalcompat/clock.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLoggingCategory>

#include <ctime>

int main(int argc, char *argv[])
{
    qputenv("TZ", "Europe/Helsinki");
    tzset();
    const QCoreApplication application(argc, argv);
    // The cache tells of everything that recurs as often as it lists at most.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    KCalCompat::Clock::setSource(
        [] { return QDateTime(SampleData::middle(), QTime(9, 0), Qt::UTC); });

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Measures the calendar's parts beside their floors; prints each figure as a "
                       "line of JSON."));
    parser.addHelpOption();
    parser.addOption(
        {QStringLiteral("samples"), QStringLiteral("Only make the sample calendars.")});
    parser.addOption({QStringLiteral("task"),
                      QStringLiteral("Only do what is measured in a process of its own: "
                                     "import FILE DATABASE, parse FILE.")});
    parser.addPositionalArgument(QStringLiteral("folder"),
                                 QStringLiteral("Where the sample calendars are kept."));
    parser.addPositionalArgument(QStringLiteral("filter"),
                                 QStringLiteral("Part of the name of a wanted figure."),
                                 QStringLiteral("[filter...]"));
    parser.process(application);
    const QStringList words = parser.positionalArguments();
    if (parser.isSet(QStringLiteral("task"))) {
        return runTask(words) ? 0 : 2;
    }
    if (words.isEmpty()) {
        parser.showHelp(2);
    }

    const Bench bench(words.first(), words.mid(1));
    bench.makeSamples();
    if (!parser.isSet(QStringLiteral("samples"))) {
        measureStorage(bench);
        measureImport(bench);
        measureCalendar(bench);
        measureCache(bench);
        measureLocale(bench);
    }
    return 0;
}
