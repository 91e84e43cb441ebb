// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_CLI_COMMAND_H
#define DASKEL_CLI_COMMAND_H

class Console;
class QCommandLineParser;

/// What the program answers to the shell.
enum ExitCode {
    Done = 0,
    Failed = 1,
    WrongUsage = 2,
    DoneWithSkipped = 3, ///< done, but some items could not be taken along
};

/// One subcommand: how it is called and what it does.
struct Command {
    const char *name;
    const char *summary;
    void (*declare)(QCommandLineParser &parser);
    ExitCode (*run)(const QCommandLineParser &parser, Console &console);
};

extern const Command importCommand;
extern const Command exportCommand;
extern const Command agendaCommand;
extern const Command todosCommand;
extern const Command showCommand;
extern const Command searchCommand;
extern const Command notebooksCommand;
extern const Command notebookCommand;
extern const Command checkCommand;

#endif
