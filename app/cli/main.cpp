// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "commandline.h"

#include <QCoreApplication>
#include <QTextCodec>

int main(int argc, char **argv)
{
    // File names and words are UTF-8 also where the locale is "C", as in scripts and services.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("daskel"));
    QCoreApplication::setApplicationVersion(QStringLiteral(DASKEL_VERSION));
    return runCommandLine(QCoreApplication::arguments());
}
