// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_CLI_COMMANDLINE_H
#define DASKEL_CLI_COMMANDLINE_H

#include <QStringList>

/// Runs the program on its arguments (the program's name first); the result is its exit code.
int runCommandLine(const QStringList &arguments);

#endif
