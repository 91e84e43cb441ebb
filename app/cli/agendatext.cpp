// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "agenda.h"
#include "console.h"
#include "database.h"

#include <kcalcompat/clock.h>

#include <KCalendarCore/Todo>

#include <QLocale>

namespace
{
constexpr int timeWidth = 13;

QString timeText(const QDateTime &time)
{
    return time.time().toString(QStringLiteral("HH:mm"));
}

/// "09:00–10:00"; the first day of a long occurrence says from when, the last one until when.
QString pieceText(const AgendaEntry &entry)
{
    const bool goesOn = entry.end < entry.occurrenceEnd;
    const bool beganEarlier = entry.start > entry.occurrenceStart;
    if (entry.incidence->type() == KCalCore::Incidence::TypeTodo) {
        return entry.incidence->allDay() ? QStringLiteral("due")
                                         : QStringLiteral("due %1").arg(timeText(entry.start));
    }
    if (entry.incidence->allDay() || (goesOn && beganEarlier)) {
        return QStringLiteral("all day");
    }
    if (goesOn) {
        return QStringLiteral("from %1").arg(timeText(entry.start));
    }
    if (beganEarlier) {
        return QStringLiteral("until %1").arg(timeText(entry.end));
    }
    if (entry.start == entry.end) {
        return timeText(entry.start);
    }
    return QStringLiteral("%1–%2").arg(timeText(entry.start), timeText(entry.end));
}

/// The time where the event takes place, when that is another than where the agenda is read.
QString placeTimeText(const AgendaEntry &entry)
{
    const auto todo = entry.incidence.dynamicCast<KCalCore::Todo>();
    const QDateTime own = todo ? todo->dtDue(true) : entry.incidence->dtStart();
    if (entry.incidence->allDay() || own.timeSpec() != Qt::TimeZone
        || entry.start != entry.occurrenceStart) {
        return {};
    }
    const QDateTime there = entry.start.toTimeZone(own.timeZone());
    if (there.offsetFromUtc() == entry.start.offsetFromUtc()) {
        return {};
    }
    return QStringLiteral(" [%1 %2]").arg(timeText(there), QString::fromUtf8(own.timeZone().id()));
}

QString entryTitle(const KCalCore::Incidence::Ptr &incidence)
{
    QString title = titleText(incidence->summary());
    if (const auto todo = incidence.dynamicCast<KCalCore::Todo>()) {
        title.prepend(todo->isCompleted() ? QStringLiteral("[x] ") : QStringLiteral("[ ] "));
    }
    if (incidence->status() == KCalCore::Incidence::StatusTentative) {
        title += QStringLiteral(" (tentative)");
    } else if (incidence->status() == KCalCore::Incidence::StatusCanceled) {
        title += QStringLiteral(" (cancelled)");
    }
    return title;
}

void printEntry(const AgendaEntry &entry, const QString &notebookName, QTextStream &out)
{
    out << QStringLiteral("  ") << pieceText(entry).leftJustified(timeWidth)
        << entryTitle(entry.incidence);
    if (entry.dayCount() > 1) {
        out << QStringLiteral(" (day %1 of %2)").arg(entry.dayNumber()).arg(entry.dayCount());
    }
    const QString location = printable(entry.incidence->location().simplified());
    if (!location.isEmpty()) {
        out << QStringLiteral(", ") << location;
    }
    out << placeTimeText(entry) << QStringLiteral("  · ") << printable(notebookName) << '\n';
}
} // namespace

void printAgenda(const Agenda &agenda, const Database &database, Console &console)
{
    const QDate today = KCalCompat::Clock::now().toTimeZone(database.calendar()->timeZone()).date();
    QTextStream &out = console.out();
    QDate day;
    for (const AgendaEntry &entry : agenda.entries) {
        if (entry.start.date() != day) {
            out << (day.isValid() ? "\n" : "");
            day = entry.start.date();
            out << QLocale::c().toString(day, QStringLiteral("yyyy-MM-dd dddd"))
                << (day == today ? " (today)" : "") << '\n';
        }
        const auto notebook = database.storage()->notebook(entry.notebook);
        printEntry(entry, notebook ? notebook->name() : entry.notebook, out);
    }
    if (agenda.entries.isEmpty()) {
        out << QStringLiteral("Nothing from %1 to %2.\n")
                   .arg(agenda.from.toString(Qt::ISODate), agenda.to.toString(Qt::ISODate));
    }
}
