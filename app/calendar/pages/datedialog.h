// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DATEDIALOG_H
#define DATEDIALOG_H

#include <QDate>

#include <functional>

/// Asks for a day, beginning at \a day, and returns; \a answer is called with the one that was
/// chosen, if any.
void askForDate(const QDate &day, const std::function<void(const QDate &)> &answer);

#endif
