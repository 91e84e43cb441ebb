// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DATEDIALOG_H
#define DATEDIALOG_H

#include <QDate>

/// Asks for a day, beginning at \a day; invalid when the person wants none. Waits for the answer.
QDate askForDate(const QDate &day);

#endif
