// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTETIMES_H
#define DASKEL_NOTETIMES_H

#include <QDateTime>
#include <QString>

class NoteWidgetModel;
struct NoteDetails;

/// When a note is, in two short lines as a list shows them.
struct NoteTimes {
    QString first;
    QString second;
    bool isOverdue = false;
};

/// \a now: for what is due today and what is overdue; local time.
NoteTimes noteTimes(const NoteWidgetModel &model, const NoteDetails &details, const QDateTime &now);
/// A day without its year, such as "13 Mar".
QString dayAndMonth(const QDate &day);
/// How an end stands below a start.
QString endText(const QString &end);

#endif
