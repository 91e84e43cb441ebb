// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// The agenda of an iCalendar file by KCalendarCore alone: reads all of it and lists what occurs in
// the range, as the peer that `daskel agenda` is measured beside.

#include <KCalendarCore/FileStorage>
#include <KCalendarCore/MemoryCalendar>
#include <KCalendarCore/OccurrenceIterator>

#include <QCoreApplication>
#include <QTextStream>
#include <QTimeZone>

#include <algorithm>

using namespace KCalendarCore;

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 4) {
        QTextStream(stderr) << "usage: list_calendar FILE FIRST_DATE DAYS\n";
        return 2;
    }
    const MemoryCalendar::Ptr calendar(new MemoryCalendar(QTimeZone::systemTimeZone()));
    FileStorage storage(calendar, words.at(1));
    if (!storage.load()) {
        return 1;
    }
    const QDateTime start = QDate::fromString(words.at(2), Qt::ISODate).startOfDay();
    const QDateTime end = start.date().addDays(words.at(3).toInt()).startOfDay();

    QStringList lines;
    OccurrenceIterator occurrences(*calendar, start, end);
    while (occurrences.hasNext()) {
        occurrences.next();
        lines.append(occurrences.occurrenceStartDate().toLocalTime().toString(
                         QStringLiteral("yyyy-MM-dd  HH:mm  "))
                     + occurrences.incidence()->summary());
    }
    std::sort(lines.begin(), lines.end());
    QTextStream(stdout) << lines.join(QLatin1Char('\n')) << Qt::endl;
    return 0;
}
