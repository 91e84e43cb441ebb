// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_ACCESSIBLEFACTORY_H
#define TOUCHCORE_ACCESSIBLEFACTORY_H

/// Makes windows and widgets known to whoever reads the screen for the person. MApplication calls
/// it once; nothing is made until somebody asks.
void installAccessibility();

#endif
