// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "commandline.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("daskel"));
    QCoreApplication::setApplicationVersion(QStringLiteral(DASKEL_VERSION));
    return runCommandLine(QCoreApplication::arguments());
}
