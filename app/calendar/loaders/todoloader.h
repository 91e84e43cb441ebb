// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TODOLOADER_H
#define TODOLOADER_H

#include <daskel/noteloader.h>

#include <KCalendarCore/Todo>

#include <QDateTime>

#include <vector>

/// The to-dos, grouped by when they are to be done: overdue, today, this week, later, without a
/// date, done. Of those done, the last few are there, unless the person hides them.
///
/// It reads the calendar of DbInstance. UI thread only.
class TodoLoader : public AbstractNoteLoader
{
public:
    /// The kinds of the group headers.
    enum Group { Overdue, Today, ThisWeek, Later, WithoutDate, Done };

    TodoLoader();

    /// Hands over whole groups until there is a batch.
    void load() override;
    /// There is nothing before the overdue ones.
    void loadEarlier() override;
    void loadLater() override;

    /// What the header of a group says.
    static QString groupLabel(Group group);

private:
    struct Entry {
        QDateTime due; ///< of a to-do that repeats, when it is to be done next
        KCalCore::Todo::Ptr todo;
    };
    using Entries = std::vector<Entry>;

    static bool isDueBefore(const Entry &a, const Entry &b);
    static bool isDoneAfter(const Entry &a, const Entry &b);
    void sortIntoGroups();
    void handOver(Group group);

    Entries m_groups[Done + 1];
    int m_nextGroup = Done + 1;
};

#endif
