// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_CLI_AGENDA_H
#define DASKEL_CLI_AGENDA_H

#include <mkcal/extendedcalendar.h>

#include <QDate>
#include <QVector>

class Console;
class Database;
class NotebookFilter;

/// What one day shows of one occurrence.
struct AgendaEntry {
    KCalCore::Incidence::Ptr incidence;
    QString notebook; ///< UID
    QDateTime start; ///< the day's piece, in the agenda's zone
    QDateTime end;
    QDateTime occurrenceStart; ///< the whole occurrence
    QDateTime occurrenceEnd;

    /// Which day of the occurrence this is, from 1, and how many there are.
    int dayNumber() const;
    int dayCount() const;
};

/// The events and to-dos of a range of days, in the order in which they are read.
struct Agenda {
    QDate from;
    QDate to; ///< part of it
    QVector<AgendaEntry> entries;
    QStringList cutShort; ///< titles of what repeats too often to be listed whole
    QString error; ///< why the calendar could not be read; empty when it could
};

/// Reads the range from @p database in its calendar's time zone.
Agenda readAgenda(const Database &database, const NotebookFilter &filter, const QDate &from,
                  const QDate &to);

/// By what its series names the occurrence: RFC 5545, 3.8.4.4; null when it does not recur.
KDateTime occurrenceIdentifier(const mKCal::ExtendedCalendar &calendar, const AgendaEntry &entry);

/// Prints it as people read it, grouped by day.
void printAgenda(const Agenda &agenda, const Database &database, Console &console);

#endif
