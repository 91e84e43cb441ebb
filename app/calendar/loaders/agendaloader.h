// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef AGENDALOADER_H
#define AGENDALOADER_H

#include "occurrencewindow.h"

#include <daskel/noteloader.h>

#include <QDate>

#include <vector>

/// The agenda: what happens day by day, without end in both directions.
///
/// Days on which nothing happens are left out, and stretches of them are jumped over; today is
/// always there. It reads the calendar of DbInstance. UI thread only.
class AgendaLoader : public AbstractNoteLoader
{
public:
    AgendaLoader();

    /// The day that load() begins at, today until one is set; an invalid one is today again.
    void setAnchor(const QDate &day);
    QDate anchor() const;

    /// Hands over the anchor's day and what follows it.
    void load() override;
    void loadEarlier() override;
    void loadLater() override;

private:
    struct Day {
        QDate date;
        OccurrenceWindow::Occurrences occurrences;
    };

    /// The days of a stretch that are shown, in their order.
    std::vector<Day> shownDays(const QDate &first, const QDate &last);
    void handOver(const Day &day);
    /// Today when it lies between \a first and \a last, where nothing happens.
    void handOverToday(const QDate &first, const QDate &last);

    OccurrenceWindow m_window;
    QDate m_anchor;
    // What was looked through so far.
    QDate m_first;
    QDate m_last;
    bool m_isStartReached = false;
    bool m_isEndReached = false;
};

#endif
