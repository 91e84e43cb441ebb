// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_LAYOUTORIENTATION_H
#define TOUCHCORE_LAYOUTORIENTATION_H

#include <touchcore/mnamespace.h>

/// Told by the active window when it is turned, after the theme and before any geometry: every
/// MLayout with a policy for \a orientation puts it in force.
void setLayoutOrientation(M::Orientation orientation);

#endif
