// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "commandline.h"

#include "command.h"
#include "console.h"

#include <mkcal/sqlitestorage.h>

#include <QCommandLineParser>
#include <QDir>

namespace
{
constexpr const Command *Commands[] = {
    &importCommand, &exportCommand,    &agendaCommand,   &todosCommand, &showCommand,
    &searchCommand, &notebooksCommand, &notebookCommand, &checkCommand,
};

QCommandLineOption dataOption()
{
    return {QStringLiteral("data"),
            QStringLiteral("Folder of the calendar database (default: the person's own)."),
            QStringLiteral("DIR")};
}

QString commandList()
{
    QString list = QStringLiteral("Looks into and changes the calendar.\n\nCommands:\n");
    for (const Command *command : Commands) {
        list += QStringLiteral("  %1 %2\n")
                    .arg(QLatin1String(command->name), -10)
                    .arg(QLatin1String(command->summary));
    }
    return list + QStringLiteral("\n'daskel COMMAND --help' tells about one of them.");
}

const Command *findCommand(const QString &name)
{
    for (const Command *command : Commands) {
        if (name == QLatin1String(command->name)) {
            return command;
        }
    }
    return nullptr;
}

ExitCode usageError(const QString &commandName, const QString &text)
{
    Console(commandName).message(text);
    return WrongUsage;
}

/// False when there is no such folder and none can be made.
bool chooseDatabase(const QString &folder)
{
    return QDir().mkpath(folder)
        && mKCal::SqliteStorage::setDefaultFile(
               QDir(folder).absoluteFilePath(QStringLiteral("calendar.db")));
}

ExitCode runCommand(const Command &command, const QStringList &arguments, QString dataFolder)
{
    const QString name = QLatin1String(command.name);
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(command.summary));
    const QCommandLineOption help = parser.addHelpOption();
    parser.addOption(dataOption());
    command.declare(parser);
    // The parser prints the program's name before the usage: so the help reads "daskel import".
    if (!parser.parse(QStringList(QStringLiteral("daskel ") + name) + arguments)) {
        return usageError(name, parser.errorText());
    }
    Console console(name);
    if (parser.isSet(help)) {
        console.out() << parser.helpText().replace(QCoreApplication::arguments().constFirst(),
                                                   QStringLiteral("daskel ") + name);
        return Done;
    }
    if (parser.isSet(QStringLiteral("data"))) {
        dataFolder = parser.value(QStringLiteral("data"));
    }
    if (!dataFolder.isEmpty() && !chooseDatabase(dataFolder)) {
        console.message(QStringLiteral("cannot make the folder '%1'").arg(dataFolder));
        return Failed;
    }
    return command.run(parser, console);
}
} // namespace

int runCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(commandList());
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOption(dataOption());
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("What to do."),
                                 QStringLiteral("COMMAND ..."));
    if (!parser.parse(arguments)) {
        return usageError(QString(), parser.errorText());
    }
    Console console((QString()));
    if (parser.isSet(version)) {
        console.out() << QCoreApplication::applicationName() << ' '
                      << QCoreApplication::applicationVersion() << Qt::endl;
        return Done;
    }
    if (parser.isSet(help)) {
        console.out() << parser.helpText();
        return Done;
    }
    const QStringList rest = parser.positionalArguments();
    if (rest.isEmpty()) {
        return usageError(QString(),
                          QStringLiteral("no command given; 'daskel --help' lists them"));
    }
    const Command *command = findCommand(rest.first());
    if (!command) {
        return usageError(QString(),
                          QStringLiteral("there is no command '%1'; 'daskel --help' lists them")
                              .arg(rest.first()));
    }
    return runCommand(*command, rest.mid(1), parser.value(QStringLiteral("data")));
}
