// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "command.h"
#include "console.h"

#include <mkcal/sqlitestorage.h>
#include <mkcal/storagecheck.h>

#include <QCommandLineParser>
#include <QFileInfo>

namespace
{
const QString RepairOption = QStringLiteral("repair");

void declare(QCommandLineParser &parser)
{
    parser.addOption({RepairOption,
                      QStringLiteral("Write what can be saved into this new file; the database "
                                     "itself is not changed."),
                      QStringLiteral("FILE")});
}

void print(const mKCal::CheckReport &report, QTextStream &out)
{
    const auto line = [&out](const char *name, int count) {
        out << QString::fromLatin1(name).leftJustified(22) << count << '\n';
    };
    line("format version", report.schemaVersion);
    line("notebooks", report.notebooks);
    line("events", report.events);
    line("to-dos", report.todos);
    line("journals", report.journals);
    line("deleted, kept", report.deleted);
    line("overwritten, kept", report.overwritten);
    line("planned reminders", report.reminders);
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    const QString fileName = mKCal::SqliteStorage::defaultFile();
    if (!QFileInfo::exists(fileName)) {
        console.message(QStringLiteral("there is no database '%1'").arg(fileName));
        return Failed;
    }
    const bool repairs = parser.isSet(RepairOption);
    const mKCal::CheckReport report = repairs
        ? mKCal::repairDatabase(fileName, parser.value(RepairOption))
        : mKCal::checkDatabase(fileName);
    for (const QString &problem : report.problems) {
        console.message(problem);
    }
    if (!report.error.isEmpty()) {
        console.message(report.error);
        return Failed;
    }
    print(report, console.out());
    if (repairs) {
        console.out() << "written to " << parser.value(RepairOption) << '\n';
        return report.problems.isEmpty() ? Done : DoneWithSkipped;
    }
    console.out() << (report.intact ? "The database is in order."
                                    : "The database is damaged: 'daskel check --repair FILE' "
                                      "saves what can be saved into a new file.")
                  << '\n';
    return report.intact ? Done : Failed;
}
} // namespace

const Command checkCommand = {
    "check", "Looks whether the database is in order.", {0, 0, ""}, declare, run};
