// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Whatever the test is built as, this file is compiled as a release.
#undef QT_FORCE_ASSERTS
#ifndef QT_NO_DEBUG
#define QT_NO_DEBUG
#endif

#include "releaseassert.h"

#include "daskelassert.h"

int assertInARelease()
{
    int looks = 0;
    DASKEL_ASSERT(++looks > 1, "releaseassert", 1);
    return looks;
}
