// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_CHANGEMARKER_H
#define MKCAL_CHANGEMARKER_H

#include <QString>

namespace mKCal
{
/// The empty file beside the database that every writer touches after a commit, for other
/// processes to watch: unlike the database and its log, it is touched once for each commit.
class ChangeMarker
{
public:
    explicit ChangeMarker(const QString &databaseName);
    ~ChangeMarker();
    ChangeMarker(const ChangeMarker &) = delete;
    ChangeMarker &operator=(const ChangeMarker &) = delete;

    QString fileName() const { return m_fileName; }
    /// Makes the file (0600) when it is missing and holds it open, so that touching costs no open.
    /// A folder that cannot be written is no failure: then nobody writes either.
    void open();
    void touch();

private:
    QString m_fileName;
    int m_descriptor = -1;
};
} // namespace mKCal

#endif
