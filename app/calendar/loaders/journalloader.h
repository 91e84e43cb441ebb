// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef JOURNALLOADER_H
#define JOURNALLOADER_H

#include <daskel/noteloader.h>

/// The notes that are no appointments: journals, the newest first, without groups.
///
/// It reads the calendar of DbInstance. UI thread only.
class JournalLoader : public AbstractNoteLoader
{
public:
    JournalLoader();

    void load() override;
    /// There is nothing before the newest.
    void loadEarlier() override;
    void loadLater() override;

private:
    KCalCore::Journal::List m_journals;
    int m_next = 0;
};

#endif
