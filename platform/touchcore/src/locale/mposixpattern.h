// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MPOSIXPATTERN_H
#define MPOSIXPATTERN_H

#include <touchcore/mlocale.h>

class MLocaleFormats;

/// The pattern in the letters of Unicode TS 35 for one in the conversions of strftime(3), as
/// MLocale::formatDateTime() describes them; \a formats knows the patterns that c, r, x and X stand
/// for in \a type.
QString icuPatternFromPosix(const QString &posix, const MLocaleFormats &formats,
                            MLocale::CalendarType type);

#endif
