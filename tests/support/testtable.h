// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TESTTABLE_H
#define TESTTABLE_H

#include <QTest>

/// The columns of a test's table: addColumns<QString, int>("text", "length").
template <typename... Types, typename... Names> void addColumns(const Names &...names)
{
    (QTest::addColumn<Types>(names), ...);
}

/// A row of it: addRow("empty", QString(), 0).
template <typename... Values> void addRow(const char *name, const Values &...values)
{
    (QTest::newRow(name) << ... << values);
}

#endif
