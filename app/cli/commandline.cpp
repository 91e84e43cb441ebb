// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "commandline.h"

#include "command.h"
#include "console.h"

#include <mkcal/sqlitestorage.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

namespace
{
constexpr const Command *commands[] = {
    &importCommand, &exportCommand,    &agendaCommand,   &todosCommand, &showCommand,
    &searchCommand, &notebooksCommand, &notebookCommand, &checkCommand,
};

QCommandLineOption dataOption()
{
    return {QStringLiteral("data"),
            QStringLiteral("Folder of the calendar database (default: the person's own)."),
            QStringLiteral("DIR")};
}

QCommandLineOption helpOption()
{
    return {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this help.")};
}

QString commandList()
{
    QString list = QStringLiteral("Looks into and changes the calendar.\n\nCommands:\n");
    for (const Command *command : commands) {
        list += QStringLiteral("  %1 %2\n")
                    .arg(QLatin1String(command->name), -10)
                    .arg(QLatin1String(command->summary));
    }
    return list
        + QStringLiteral("\n'daskel COMMAND --help' tells about one of them.\n"
                         "Exit code: 0 done, 1 failed, 2 wrong usage, 3 done with items skipped.");
}

const Command *findCommand(const QString &name)
{
    for (const Command *command : commands) {
        if (name == QLatin1String(command->name)) {
            return command;
        }
    }
    return nullptr;
}

/// Says what is wrong and where to read how it is right.
ExitCode usageError(const QString &commandName, const QString &text)
{
    const QString call =
        commandName.isEmpty() ? QStringLiteral("daskel") : QStringLiteral("daskel ") + commandName;
    Console(commandName).message(QStringLiteral("%1; see '%2 --help'").arg(text, call));
    return WrongUsage;
}

/// The parser's own words, as a part of a message: "unknown option 'x'".
QString parserError(const QCommandLineParser &parser)
{
    QString text = parser.errorText();
    text[0] = text.at(0).toLower();
    while (text.endsWith(QLatin1Char('.'))) {
        text.chop(1);
    }
    return text;
}

ExitCode printHelp(const QCommandLineParser &parser, const QString &call, Console &console)
{
    // The parser names the program as it was started, with its whole path.
    const QString program = QCoreApplication::arguments().constFirst();
    QString help = parser.helpText();
    const int position = help.indexOf(program);
    if (position >= 0) {
        help.replace(position, program.size(), call);
    }
    console.out() << help;
    return console.finish() ? Done : Failed;
}

bool chooseDatabase(const QCommandLineParser &parser)
{
    const QString folder = parser.value(QStringLiteral("data"));
    return !folder.isEmpty()
        && mKCal::SqliteStorage::setDefaultFile(
            QDir(folder).absoluteFilePath(QStringLiteral("calendar.db")));
}

ExitCode runCommand(const Command &command, const QStringList &arguments)
{
    const QString name = QLatin1String(command.name);
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(command.summary));
    parser.addOption(helpOption());
    parser.addOption(dataOption());
    command.declare(parser);
    if (!parser.parse(arguments)) {
        return usageError(name, parserError(parser));
    }
    Console console(name);
    if (parser.isSet(QStringLiteral("help"))) {
        return printHelp(parser, QStringLiteral("daskel ") + name, console);
    }
    const QStringList words = parser.positionalArguments();
    if (words.size() < command.arguments.least) {
        return usageError(name, QLatin1String(command.arguments.missing));
    }
    if (words.size() > command.arguments.most) {
        return usageError(name,
                          QStringLiteral("'%1' is too much").arg(words.at(command.arguments.most)));
    }
    if (parser.isSet(QStringLiteral("data")) && !chooseDatabase(parser)) {
        return usageError(name, QStringLiteral("--data needs the name of a folder"));
    }
    const ExitCode result = command.run(parser, console);
    return console.finish() ? result : Failed;
}
} // namespace

int runCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(commandList());
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addOption(helpOption());
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Shows the version."));
    parser.addOption(version);
    parser.addOption(dataOption());
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("What to do."),
                                 QStringLiteral("COMMAND ..."));
    if (!parser.parse(arguments)) {
        return usageError(QString(), parserError(parser));
    }
    Console console((QString()));
    if (parser.isSet(version)) {
        console.out() << QCoreApplication::applicationName() << ' '
                      << QCoreApplication::applicationVersion() << '\n';
        return console.finish() ? Done : Failed;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        return printHelp(parser, QStringLiteral("daskel"), console);
    }
    const QStringList words = parser.positionalArguments();
    if (words.isEmpty()) {
        return usageError(QString(), QStringLiteral("no command given"));
    }
    const Command *command = findCommand(words.first());
    if (!command) {
        return usageError(QString(), QStringLiteral("there is no command '%1'").arg(words.first()));
    }
    // Options may stand before the command or after it: the command's parser reads them all.
    const QStringList before = arguments.mid(0, arguments.size() - words.size());
    return runCommand(*command, before + words.mid(1));
}
