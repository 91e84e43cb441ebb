// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mbuttonmodel.h>

MButtonModel::MButtonModel(QObject *parent) : MWidgetModel(parent) { }

MButtonModel::~MButtonModel() = default;
