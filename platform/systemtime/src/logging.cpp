// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "logging.h"

namespace Ostra
{
namespace Timed
{
Q_LOGGING_CATEGORY(lcSystemTime, "daskel.systemtime")
} // namespace Timed
} // namespace Ostra
