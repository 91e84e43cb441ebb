// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef OCCURRENCEWINDOW_H
#define OCCURRENCEWINDOW_H

#include <daskel/expandedincidencescache.h>

#include <QDate>

/// The occurrences of stretches of days as a person reads them: events and to-dos of the visible
/// notebooks, day by day, what fills a day first.
///
/// It reads through the cache of the process and keeps that small: who has browsed through years
/// has only the part around the view cached, so that a change costs what it cost at the start. What
/// the cache cuts, since it repeats more often than daily, is expanded here.
class OccurrenceWindow
{
public:
    using Occurrences = ExpandedIncidencesCache::Occurrences;

    /// From \a first to \a last, both included, loaded from the storage as needed.
    Occurrences occurrences(const QDate &first, const QDate &last);

private:
    void makeRoom(const QDate &first, const QDate &openEnd);

    QDate m_cachedFrom; ///< invalid before the first request
};

#endif
