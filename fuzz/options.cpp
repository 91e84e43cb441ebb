// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <QByteArray>
#include <QLoggingCategory>

// KCalendarCore and the iCalendar library below it keep memory for good; what is ours is watched
// for leaks by the tests.
extern "C" const char *__asan_default_options()
{
    return "detect_leaks=0";
}

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    qputenv("TZ", "Europe/Helsinki");
    // Hostile input is reported, as it should be, a thousand times a second.
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false\n*.debug=false\n"
                                                    "*.info=false"));
    return 0;
}
