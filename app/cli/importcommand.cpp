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

/// One line for each: "work.ics:214: skipped (7f3a): it has no start".
void tell(const char *whatBecame, const QVector<mKCal::ImportReport::Skipped> &components,
          Console &console)
{
    for (const auto &component : components) {
        QString place = component.file;
        if (component.line > 0) {
            place += QStringLiteral(":%1").arg(component.line);
        }
        const QString uid =
            component.uid.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(component.uid);
        console.message(QStringLiteral("%1: %2%3: %4")
                            .arg(place, QLatin1String(whatBecame), uid, component.reason));
    }
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    const QStringList files = parser.positionalArguments();
    if (files.contains(QString())) {
        console.message(QStringLiteral("the name of a file is empty"));
        return WrongUsage;
    }
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
    const bool stored = importer.importFiles(files, &report);
    console.endProgress();
    tell("skipped", report.skipped, console);
    if (!stored) {
        console.message(QStringLiteral("nothing was imported: %1").arg(report.error));
        return Failed;
    }
    tell("altered", report.altered, console);
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
