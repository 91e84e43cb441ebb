// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef KCALCOMPAT_KSYSTEMTIMEZONES_P_H
#define KCALCOMPAT_KSYSTEMTIMEZONES_P_H

#include <QTimeZone>

namespace KCalCompat
{
/// The zone that the system is set to, kept until the next configChanged(). Invalid when the
/// setting names no zone: then Qt::LocalTime still knows its clock changes, and QTimeZone does not.
QTimeZone systemZone();
} // namespace KCalCompat

#endif
