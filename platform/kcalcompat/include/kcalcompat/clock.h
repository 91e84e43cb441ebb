// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef KCALCOMPAT_CLOCK_H
#define KCALCOMPAT_CLOCK_H

#include <QDateTime>

#include <functional>

namespace KCalCompat
{
/// What time it is, for everything that asks "today" or "now": one place, so that a test can say.
/// Safe on any thread once set.
class Clock
{
public:
    /// The current moment, in UTC.
    static QDateTime now();
    /// Replaces the system's clock; an empty function restores it. For tests.
    static void setSource(std::function<QDateTime()> source);
};
} // namespace KCalCompat

#endif
