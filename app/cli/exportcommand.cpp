// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "command.h"
#include "console.h"
#include "database.h"

#include <mkcal/calendarexporter.h>

#include <QCommandLineParser>
#include <QFile>
#include <QSaveFile>

namespace
{
const QString NotebookOption = QStringLiteral("notebook");

void declare(QCommandLineParser &parser)
{
    parser.addOption(
        {NotebookOption, QStringLiteral("Export this notebook alone."), QStringLiteral("UID")});
    NotebookFilter::declare(parser);
    parser.addPositionalArgument(
        QStringLiteral("file"),
        QStringLiteral("File to write, replaced when it exists (default: standard output)."),
        QStringLiteral("[FILE]"));
}

/// The incidences of the named notebook, or of all that the filter shows. False after a message.
bool collect(const Database &database, const QCommandLineParser &parser,
             KCalCore::Incidence::List *incidences, Console &console)
{
    QStringList notebookUids;
    if (parser.isSet(NotebookOption)) {
        const auto notebook = database.findNotebook(parser.value(NotebookOption));
        if (!notebook) {
            return false;
        }
        notebookUids.append(notebook->uid());
    } else {
        const NotebookFilter filter(database, parser);
        for (const auto &notebook : database.storage()->notebooks()) {
            if (filter.showsNotebook(notebook->uid())) {
                notebookUids.append(notebook->uid());
            }
        }
    }
    for (const QString &uid : qAsConst(notebookUids)) {
        if (!database.storage()->allIncidences(incidences, uid)) {
            console.message(database.storage()->errorMessage());
            return false;
        }
    }
    return true;
}

bool writeFile(const KCalCore::Incidence::List &incidences, const QString &fileName,
               Console &console)
{
    QSaveFile file(fileName);
    mKCal::CalendarExporter exporter;
    if (!file.open(QIODevice::WriteOnly)) {
        console.message(QStringLiteral("cannot write '%1': %2").arg(fileName, file.errorString()));
        return false;
    }
    if (!exporter.write(incidences, &file)) {
        console.message(
            QStringLiteral("cannot write '%1': %2").arg(fileName, exporter.errorMessage()));
        return false;
    }
    if (!file.commit()) {
        console.message(QStringLiteral("cannot write '%1': %2").arg(fileName, file.errorString()));
        return false;
    }
    return true;
}

bool writeOut(const KCalCore::Incidence::List &incidences, Console &console)
{
    QFile file;
    mKCal::CalendarExporter exporter;
    if (!file.open(stdout, QIODevice::WriteOnly) || !exporter.write(incidences, &file)
        || !file.flush()) {
        console.message(QStringLiteral("cannot write: %1").arg(exporter.errorMessage()));
        return false;
    }
    return true;
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1) {
        console.message(QStringLiteral("only one file can be written"));
        return WrongUsage;
    }
    const Database database(console);
    KCalCore::Incidence::List incidences;
    if (!database.isOpen() || !collect(database, parser, &incidences, console)) {
        return Failed;
    }
    const bool written = files.isEmpty() ? writeOut(incidences, console)
                                         : writeFile(incidences, files.first(), console);
    return written ? Done : Failed;
}
} // namespace

const Command exportCommand = {"export", "Writes the calendar as an iCalendar file.", declare, run};
