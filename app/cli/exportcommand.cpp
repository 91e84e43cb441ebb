// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "command.h"
#include "console.h"
#include "database.h"

#include <mkcal/calendarexporter.h>

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace
{
const QString notebookOption = QStringLiteral("notebook");

void declare(QCommandLineParser &parser)
{
    parser.addOption(
        {notebookOption, QStringLiteral("Export this notebook alone."), QStringLiteral("UID")});
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
    if (parser.isSet(notebookOption)) {
        const auto notebook = database.findNotebook(parser.value(notebookOption));
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

bool write(mKCal::CalendarExporter &exporter, const KCalCore::Incidence::List &incidences,
           QFileDevice *file, QString *error)
{
    if (!exporter.write(incidences, file)) {
        *error = exporter.errorMessage();
    } else if (!file->flush()) {
        *error = file->errorString();
    }
    return error->isEmpty();
}

bool writeFile(mKCal::CalendarExporter &exporter, const KCalCore::Incidence::List &incidences,
               const QString &fileName, QString *error)
{
    // A device or a pipe is written to; a file is replaced by a whole one, or left as it was.
    const QFileInfo target(fileName);
    if (target.isDir()) {
        *error = QStringLiteral("it is a folder");
        return false;
    }
    if (target.exists() && !target.isFile()) {
        QFile device(fileName);
        if (device.open(QIODevice::WriteOnly)) {
            return write(exporter, incidences, &device, error);
        }
        *error = device.errorString();
        return false;
    }
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly) && write(exporter, incidences, &file, error)
        && file.commit()) {
        return true;
    }
    if (error->isEmpty()) {
        *error = file.errorString();
    }
    return false;
}

bool writeOut(mKCal::CalendarExporter &exporter, const KCalCore::Incidence::List &incidences,
              QString *error)
{
    QFile file;
    if (file.open(stdout, QIODevice::WriteOnly)) {
        return write(exporter, incidences, &file, error);
    }
    *error = file.errorString();
    return false;
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    const QString fileName = parser.positionalArguments().value(0);
    if (!fileName.isNull() && fileName.isEmpty()) {
        console.message(QStringLiteral("the name of the file is empty"));
        return WrongUsage;
    }
    const Database database(console);
    KCalCore::Incidence::List incidences;
    if (!database.isOpen() || !collect(database, parser, &incidences, console)) {
        return Failed;
    }
    mKCal::CalendarExporter exporter;
    // On standard output the calendar itself may be what the terminal shows.
    if (!fileName.isNull()) {
        exporter.setProgress(
            [&console](qint64 done, qint64 total) { console.progress(done, total); });
    }
    QString error;
    const bool isWritten = fileName.isNull() ? writeOut(exporter, incidences, &error)
                                             : writeFile(exporter, incidences, fileName, &error);
    console.endProgress();
    if (isWritten) {
        return Done;
    }
    console.message(fileName.isNull()
                        ? QStringLiteral("cannot write to standard output: %1").arg(error)
                        : QStringLiteral("cannot write '%1': %2").arg(fileName, error));
    return Failed;
}
} // namespace

const Command exportCommand = {
    "export", "Writes the calendar as an iCalendar file.", {0, 1, ""}, declare, run};
