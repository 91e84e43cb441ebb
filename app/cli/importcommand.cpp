// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "command.h"
#include "console.h"
#include "database.h"

#include <mkcal/calendarimporter.h>

#include <QCommandLineParser>

namespace
{
const QString notebookOption = QStringLiteral("notebook");

void declare(QCommandLineParser &parser)
{
    parser.addOption(
        {notebookOption,
         QStringLiteral("Notebook that takes new items (default: the default notebook)."),
         QStringLiteral("UID")});
    parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("iCalendar files."),
                                 QStringLiteral("FILE..."));
}

void tellSkipped(const mKCal::ImportReport &report, Console &console)
{
    for (const auto &skipped : report.skipped) {
        QString place = skipped.file;
        if (skipped.line > 0) {
            place += QStringLiteral(":%1").arg(skipped.line);
        }
        const QString uid =
            skipped.uid.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(skipped.uid);
        console.message(QStringLiteral("%1: skipped%2: %3").arg(place, uid, skipped.reason));
    }
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    const Database database(console);
    if (!database.isOpen()) {
        return Failed;
    }
    mKCal::CalendarImporter importer(database.storage());
    if (parser.isSet(notebookOption)) {
        const auto notebook = database.findNotebook(parser.value(notebookOption));
        if (!notebook) {
            return Failed;
        }
        importer.setNotebook(notebook->uid());
    }
    importer.setProgress([&console](qint64 done, qint64 total) {
        console.progress(done, total);
        return true;
    });
    mKCal::ImportReport report;
    const bool stored = importer.importFiles(parser.positionalArguments(), &report);
    console.endProgress();
    tellSkipped(report, console);
    if (!stored) {
        console.message(QStringLiteral("nothing was imported: %1").arg(report.error));
        return Failed;
    }
    console.out() << QStringLiteral("new %1, changed %2, same %3, skipped %4")
                         .arg(report.created)
                         .arg(report.changed)
                         .arg(report.same)
                         .arg(report.skipped.size())
                  << Qt::endl;
    return report.skipped.isEmpty() ? Done : DoneWithSkipped;
}
} // namespace

const Command importCommand = {"import",
                               "Takes iCalendar files into the calendar.",
                               {1, ArgumentCount::any, "no file given"},
                               declare,
                               run};
