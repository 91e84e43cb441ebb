// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_WINDOWLIST_H
#define TOUCHCORE_WINDOWLIST_H

#include <QList>

class MWindow;

/// All windows of the program, the one used last first.
QList<MWindow *> &windowList();

#endif
