// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef RELEASEASSERT_H
#define RELEASEASSERT_H

/// Asserts something false, with a visible side effect, as a release build does; returns how often
/// the condition was looked at.
int assertInARelease();

#endif
