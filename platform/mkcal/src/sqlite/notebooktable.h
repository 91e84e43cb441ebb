// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_NOTEBOOKTABLE_H
#define MKCAL_NOTEBOOKTABLE_H

#include <mkcal/notebook.h>

namespace mKCal
{
class Connection;
class Statement;

/// The notebooks in the order in which they were added, with their custom properties. Every call
/// answers false when the database refused.
class NotebookTable
{
public:
    explicit NotebookTable(Connection &connection);

    bool read(Notebook::List *notebooks);
    bool exists(const QString &uid, bool *exists);
    /// As the last one.
    bool insert(const Notebook &notebook);
    bool update(const Notebook &notebook);
    /// Its incidences are not touched.
    bool remove(const QString &uid);

private:
    bool readProperties(const Notebook::Ptr &notebook);
    bool writeProperties(const Notebook &notebook);

    Connection &m_connection;
};
} // namespace mKCal

#endif
