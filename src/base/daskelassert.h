// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKELASSERT_H
#define DASKELASSERT_H

#include <QtGlobal>

/// Stops a debug build with `ASSERT: "<condition>" in file <source>, line <line>` when @p condition
/// is false; nothing, not even the evaluation of @p condition, in a release build.
///
/// @p source and @p line are literals at the call, such as ("db_instance", 280), so that the text
/// names the same place for good, wherever the code moves.
#if defined(QT_NO_DEBUG) && !defined(QT_FORCE_ASSERTS)
#define DASKEL_ASSERT(condition, source, line) static_cast<void>(false && (condition))
#else
#define DASKEL_ASSERT(condition, source, line)                                                     \
    ((condition) ? static_cast<void>(0) : qt_assert(#condition, source, line))
#endif

#endif
