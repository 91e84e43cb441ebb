// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/sqlitestorage_p.h"

#include <algorithm>

namespace mKCal
{
namespace
{
// The next day with something is mostly near: each window is longer than the one before.
constexpr int firstWindowDays = 7;
constexpr int windowGrowth = 4;
constexpr int horizonYears = 10;

/// The first day of @p window on which one of @p incidences occurs; invalid when none does.
QDate firstDay(ExtendedCalendar &calendar, KCalCore::Incidence::List incidences,
               const DateRange &window)
{
    // More than one for each: an exception may have taken the first one's place.
    constexpr int occurrences = 20;
    const KDateTime start(window.first.startOfDay(calendar.timeZone()));
    const KDateTime end(window.last.addDays(1).startOfDay(calendar.timeZone()));
    const auto expanded = calendar.expandRecurrences(&incidences, start, end, occurrences);
    if (expanded.isEmpty())
        return {};
    const QDate day = expanded.first().first.dtStart.toTimeZone(calendar.timeZone()).date();
    return std::max(window.first, day);
}

/// The last day of @p window on which one of @p incidences occurs; invalid when none does.
QDate lastDay(ExtendedCalendar &calendar, KCalCore::Incidence::List incidences,
              const DateRange &window)
{
    constexpr int occurrences = 1000;
    const KDateTime start(window.first.startOfDay(calendar.timeZone()));
    const KDateTime end(window.last.addDays(1).startOfDay(calendar.timeZone()));
    bool limitHit = false;
    const auto expanded =
        calendar.expandRecurrences(&incidences, start, end, occurrences, &limitHit);
    if (limitHit && window.first < window.last) {
        // What was cut off is at the end.
        const QDate middle = window.first.addDays(window.first.daysTo(window.last) / 2);
        const QDate later = lastDay(calendar, incidences, {middle.addDays(1), window.last});
        return later.isValid() ? later : lastDay(calendar, incidences, {window.first, middle});
    }
    QDate last;
    for (const auto &occurrence : expanded) {
        // The end is exclusive: what ends at midnight does not reach into that day.
        const QDateTime moment = occurrence.first.dtEnd > occurrence.first.dtStart
            ? occurrence.first.dtEnd.addMSecs(-1)
            : occurrence.first.dtStart;
        last = std::max(last, moment.toTimeZone(calendar.timeZone()).date());
    }
    return std::min(last, window.last);
}

/// A row that holds the text looked for.
struct Match {
    qint64 start = 0;
    IncidenceKey key;
    QPair<qint64, QString> idAndFamily;
};

bool newestFirst(const Match &a, const Match &b)
{
    if (a.start != b.start)
        return a.start > b.start;
    return a.key.uid != b.key.uid ? a.key.uid < b.key.uid : a.key.recId < b.key.recId;
}

/// Whether one of the four columns from @p first on does.
bool holdsText(const Statement &row, int first, const QString &text)
{
    for (int column = first; column < first + 4; ++column) {
        if (row.text(column).contains(text, Qt::CaseInsensitive))
            return true;
    }
    return false;
}
} // namespace

KCalCore::Incidence::List SqliteStorage::search(const QString &text, int limit)
{
    StorageCall call(*d);
    if (!call.ended(d->isOpen()))
        return {};
    // SQLite folds the case of ASCII letters only, so the texts are compared here.
    Statement &query = d->connection.statement(
        "SELECT id, CASE span WHEN 2 THEN uid END, start, uid, recId, summary, description,"
        " location, (SELECT group_concat(value, char(10)) FROM Props"
        " WHERE comp = Components.id AND owner = 0 AND kind = 1)"
        " FROM Components WHERE state = 0");
    QVector<Match> matches;
    while (query.next()) {
        if (!holdsText(query, 5, text))
            continue;
        matches.append(
            {query.integer(2), {query.text(3), query.text(4)}, {query.integer(0), query.text(1)}});
    }
    std::sort(matches.begin(), matches.end(), newestFirst);
    if (limit > 0 && matches.size() > limit)
        matches.resize(limit);
    QVector<QPair<qint64, QString>> ids;
    for (const Match &match : qAsConst(matches))
        ids.append(match.idAndFamily);
    if (!call.ended(!query.failed() && d->loadIds(ids)))
        return {};
    KCalCore::Incidence::List found;
    for (const Match &match : qAsConst(matches)) {
        if (const KCalCore::Incidence::Ptr incidence = findInCalendar(*d->calendar, match.key))
            found.append(incidence);
    }
    return found;
}

bool SqliteStoragePrivate::readShown(const DateRange &range, KCalCore::Incidence::List *found)
{
    const auto collect = [found](const ComponentRow &row) {
        if (row.incidence->type() != KCalCore::IncidenceBase::TypeJournal)
            found->append(row.incidence);
        return true;
    };
    const bool read = readDays(range, collect)
        && tables->reader.read(
            "state = 0 AND uid IN (SELECT uid FROM Components WHERE state = 0 AND span = 2"
            " AND start < ? AND until > ?)",
            {range.endKey(), range.firstKey()}, collect);
    loader.countRead();
    return read;
}

QDate SqliteStorage::nextDateWithIncidence(const QDate &from)
{
    StorageCall call(*d);
    if (!call.ended(d->isOpen()) || !from.isValid())
        return {};
    const QDate horizon = from.addYears(horizonYears);
    int days = firstWindowDays;
    for (DateRange window{from, from.addDays(days - 1)}; window.isValid();) {
        KCalCore::Incidence::List found;
        if (!call.ended(d->readShown(window, &found)))
            return {};
        ExtendedCalendar calendar(d->calendar->timeZone());
        const QDate day = firstDay(calendar, found, window);
        if (day.isValid())
            return day;
        days *= windowGrowth;
        window = {window.last.addDays(1), std::min(horizon, window.last.addDays(days))};
    }
    return {};
}

QDate SqliteStorage::previousDateWithIncidence(const QDate &from)
{
    StorageCall call(*d);
    if (!call.ended(d->isOpen()) || !from.isValid())
        return {};
    const QDate horizon = from.addYears(-horizonYears);
    int days = firstWindowDays;
    for (DateRange window{from.addDays(1 - days), from}; window.isValid();) {
        KCalCore::Incidence::List found;
        if (!call.ended(d->readShown(window, &found)))
            return {};
        ExtendedCalendar calendar(d->calendar->timeZone());
        const QDate day = lastDay(calendar, found, window);
        if (day.isValid())
            return day;
        days *= windowGrowth;
        window = {std::max(horizon, window.first.addDays(-days)), window.first.addDays(-1)};
    }
    return {};
}

bool SqliteStorage::allIncidences(KCalCore::Incidence::List *list, const QString &notebookUid)
{
    StorageCall call(*d);
    if (!d->isOpen())
        return call.ended(false);
    const auto collect = [list](const ComponentRow &row) {
        list->append(row.incidence);
        return true;
    };
    d->loader.countRead();
    return call.ended(notebookUid.isEmpty()
                          ? d->tables->reader.read("state = 0 ORDER BY id", {}, collect)
                          : d->tables->reader.read("state = 0 AND notebook = ? ORDER BY id",
                                                   {notebookUid}, collect));
}

bool SqliteStorage::deletedIncidences(KCalCore::Incidence::List *list, const QDateTime &since,
                                      const QString &notebookUid)
{
    StorageCall call(*d);
    if (!d->isOpen())
        return call.ended(false);
    const qint64 sinceSeconds = since.isValid() ? since.toSecsSinceEpoch() : 0;
    return call.ended(d->tables->reader.read(
        "state = 1 AND stateTime >= ?1 AND (?2 = '' OR notebook = ?2)"
        " ORDER BY stateTime, id",
        {sinceSeconds, notebookUid.isNull() ? QString(QLatin1String("")) : notebookUid},
        [list](const ComponentRow &row) {
            list->append(row.incidence);
            return true;
        }));
}

bool SqliteStorage::overwrittenIncidences(KCalCore::Incidence::List *list, const QString &uid)
{
    StorageCall call(*d);
    if (!d->isOpen())
        return call.ended(false);
    return call.ended(d->tables->reader.read("state = 2 AND uid = ? ORDER BY change, id", {uid},
                                             [list](const ComponentRow &row) {
                                                 list->append(row.incidence);
                                                 return true;
                                             }));
}
} // namespace mKCal
