// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTETITLE_H
#define DASKEL_NOTETITLE_H

#include <kcalcompat/kcalcore.h>

/// What a note is called, in one line whatever was typed or received; a translated word where it
/// has no title.
QString noteTitle(const KCalCore::Incidence &incidence);
/// The same, short enough for a question.
QString shortenedTitle(const KCalCore::Incidence &incidence);

#endif
