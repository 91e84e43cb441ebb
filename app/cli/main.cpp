// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "commandline.h"

#include <kcalcompat/ksystemtimezones.h>

#include <QCoreApplication>
#include <QTextCodec>

#include <cstdio>

namespace
{
/// What the libraries write for a log would stand between the program's own messages, which say
/// the same more plainly.
void leaveOutWarnings(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        std::fprintf(stderr, "daskel: %s\n", qUtf8Printable(text));
    }
}
} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(leaveOutWarnings);
    // File names and words are UTF-8 also where the locale is "C", as in scripts and services.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    KSystemTimeZones().configChanged();
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("daskel"));
    QCoreApplication::setApplicationVersion(QStringLiteral(DASKEL_VERSION));
    return runCommandLine(QCoreApplication::arguments());
}
