// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_CLI_COMMAND_H
#define DASKEL_CLI_COMMAND_H

#include <limits>

class Console;
class QCommandLineParser;

/// What the program answers to the shell.
enum ExitCode {
    Done = 0,
    Failed = 1,
    WrongUsage = 2,
    DoneWithSkipped = 3, ///< done, but some items could not be taken along
};

/// How many words a command takes beside its options.
struct ArgumentCount {
    static constexpr int any = std::numeric_limits<int>::max();
    int least;
    int most;
    const char *missing; ///< what is said when there are too few
};

/// One subcommand: how it is called and what it does.
struct Command {
    const char *name;
    const char *summary;
    ArgumentCount arguments;
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
