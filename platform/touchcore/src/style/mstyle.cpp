// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mstyle.h>

MStyle::MStyle() = default;
MStyle::~MStyle() = default;
