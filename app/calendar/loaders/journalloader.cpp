// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "journalloader.h"

#include <daskel/db_instance.h>

#include <KCalendarCore/Journal>

#include <algorithm>
#include <tuple>

using KCalCore::Journal;

namespace
{
/// The day it was written for, or on.
QDateTime written(const Journal &journal)
{
    return journal.dtStart().isValid() ? journal.dtStart() : journal.created();
}

bool isNewer(const Journal::Ptr &a, const Journal::Ptr &b)
{
    return std::make_tuple(written(*b), a->uid()) < std::make_tuple(written(*a), b->uid());
}
} // namespace

JournalLoader::JournalLoader() = default;

void JournalLoader::load()
{
    resetIncidenceCount();
    m_journals.clear();
    m_next = 0;
    DbInstance *const db = DbInstance::instance();
    if (!db->isEnabled())
        return;
    db->loadJournals();
    const auto calendar = db->calendar();
    const Journal::List journals = calendar->rawJournals();
    for (const Journal::Ptr &journal : journals) {
        if (calendar->isVisible(journal))
            m_journals.append(journal);
    }
    std::sort(m_journals.begin(), m_journals.end(), isNewer);
    loadLater();
}

void JournalLoader::loadEarlier() { }

void JournalLoader::loadLater()
{
    const int end = qMin(m_next + batchSize(), m_journals.size());
    for (; m_next < end; ++m_next) {
        const Journal::Ptr &journal = m_journals.at(m_next);
        QDateTime start = written(*journal).toLocalTime();
        addIncidence(QString(), &start, &start, journal, false);
    }
}
