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
const QString repairOption = QStringLiteral("repair");

void declare(QCommandLineParser &parser)
{
    parser.addOption({repairOption,
                      QStringLiteral("Write what can be saved into this new file; the database "
                                     "itself is not changed."),
                      QStringLiteral("FILE")});
}

void print(const mKCal::CheckReport &report, QTextStream &out)
{
    const auto line = [&out](const char *name, int count) {
        out << QString::fromLatin1(name).leftJustified(22)
            << (count < 0 ? QStringLiteral("unknown") : QString::number(count)) << '\n';
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

ExitCode check(const QString &fileName, Console &console)
{
    constexpr int mostProblems = 20;
    const mKCal::CheckReport report = mKCal::checkDatabase(fileName);
    for (const QString &problem : report.problems.mid(0, mostProblems)) {
        console.message(problem);
    }
    if (report.problems.size() > mostProblems) {
        console.message(
            QStringLiteral("and %1 problems more").arg(report.problems.size() - mostProblems));
    }
    if (!report.error.isEmpty()) {
        console.message(report.error);
        return Failed;
    }
    print(report, console.out());
    console.out() << (report.intact ? "The database is in order.\n"
                                    : "The database is damaged: 'daskel check --repair FILE' "
                                      "saves what can be saved into a new file.\n");
    return report.intact ? Done : Failed;
}

/// Names every loss: whoever repairs wants to know what to enter again.
ExitCode repair(const QString &fileName, const QString &target, Console &console)
{
    const mKCal::CheckReport report = mKCal::repairDatabase(fileName, target);
    for (const QString &problem : report.problems) {
        console.message(problem);
    }
    if (!report.error.isEmpty()) {
        console.message(report.error);
        return Failed;
    }
    print(report, console.out());
    console.out() << "Written to " << target << ".\n";
    return report.problems.isEmpty() ? Done : DoneWithSkipped;
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    const QString target = parser.value(repairOption);
    if (parser.isSet(repairOption) && target.isEmpty()) {
        console.message(QStringLiteral("--repair needs the name of a new file"));
        return WrongUsage;
    }
    const QFileInfo database(mKCal::SqliteStorage::defaultFile());
    if (!database.isFile()) {
        console.message(QStringLiteral("there is no database file '%1'").arg(database.filePath()));
        return Failed;
    }
    return parser.isSet(repairOption) ? repair(database.filePath(), target, console)
                                      : check(database.filePath(), console);
}
} // namespace

const Command checkCommand = {
    "check", "Looks whether the database is in order.", {0, 0, ""}, declare, run};
