// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef KCALCOMPAT_FIRSTPASS_H
#define KCALCOMPAT_FIRSTPASS_H

#include <QDateTime>

namespace KCalCompat
{
/// What the wall clock shows at @p shown (valid), at the first moment that it shows it. A clock
/// that is put back shows some times twice, and QDateTime takes the second; a calendar means the
/// first (RFC 5545, section 3.3.5). Unchanged for all other times, for UTC and offsets, and in a
/// change without daylight saving time, of which QDateTime cannot hold the first pass.
QDateTime firstPass(const QDateTime &shown);
} // namespace KCalCompat

#endif
