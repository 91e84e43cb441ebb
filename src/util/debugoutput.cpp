// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/daskelutility.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace
{
/// Standard streams lock themselves: the worker that preloads may write, too.
std::FILE *output = nullptr;

/// A write that fails (the disk is full) is not worth a word: there is nowhere to say it.
void writeMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    std::fprintf(output, "%s\n", qUtf8Printable(message));
    if (type == QtFatalMsg)
        std::abort();
    std::fflush(output);
}
} // namespace

void debugOutputToFile(const QString &fileName)
{
    std::FILE *file = std::fopen(fileName.toLatin1().constData(), "we");
    std::FILE *const before = std::exchange(output, file ? file : stderr);
    if (file) {
        // Line by line: the last words before a fatal end are not left in a buffer.
        std::setvbuf(file, nullptr, _IOLBF, BUFSIZ);
        qInstallMessageHandler(writeMessage);
    }
    if (before && before != stderr)
        std::fclose(before);
}
