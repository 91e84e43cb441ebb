// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_PLACING_H
#define TOUCHCORE_PLACING_H

#include <QRectF>

/// The rectangle of \a size in the middle of \a room, on whole pixels.
QRectF centered(const QSizeF &size, const QRectF &room);

#endif
