// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_TABLES_H
#define MKCAL_TABLES_H

#include "sqlite/componentreader.h"
#include "sqlite/componentwriter.h"
#include "sqlite/metatable.h"
#include "sqlite/notebooktable.h"
#include "sqlite/remindertable.h"

namespace mKCal
{
/// The tables of one open database; gone before its connection is closed.
struct Tables {
    explicit Tables(Connection &connection)
        : reader(connection), writer(connection), notebooks(connection), reminders(connection),
          meta(connection)
    {
    }

    ComponentReader reader;
    ComponentWriter writer;
    NotebookTable notebooks;
    ReminderTable reminders;
    MetaTable meta;
};
} // namespace mKCal

#endif
