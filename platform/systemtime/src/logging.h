// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef SYSTEMTIME_LOGGING_H
#define SYSTEMTIME_LOGGING_H

#include <QLoggingCategory>

namespace Ostra
{
namespace Timed
{
Q_DECLARE_LOGGING_CATEGORY(lcSystemTime)
} // namespace Timed
} // namespace Ostra

#endif
