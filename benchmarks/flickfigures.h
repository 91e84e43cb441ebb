// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef FLICKFIGURES_H
#define FLICKFIGURES_H

#include "bench.h"

class CalendarWindow;

/// What a frame costs while the agenda of \a window, which shows \a count incidences, is flicked.
void measureFlicking(const Bench &bench, int count, CalendarWindow *window);

#endif
