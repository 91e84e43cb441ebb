// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bench.h"

#include <touchcore/mapplication.h>

/// The figures of what is seen stand in a program of their own: the calendar's are taken without
/// the widgets' libraries.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    MApplication application(argc, argv);
    const QStringList words = application.arguments().mid(1);
    require(!words.isEmpty(), QStringLiteral("usage: toolkit_bench <folder> [filter...]"));
    const Bench bench(words.first(), words.mid(1));
    measureWidgets(bench);
    measureLists(bench);
    measureServices(bench);
    return 0;
}
