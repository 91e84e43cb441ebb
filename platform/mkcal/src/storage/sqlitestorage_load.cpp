// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendar/incidencetimes.h"
#include "storage/sqlitestorage_p.h"

#include <kcalcompat/clock.h>

#include <KCalendarCore/Todo>

#include <algorithm>

namespace mKCal
{
bool SqliteStoragePrivate::loadDays(const DateRange &range)
{
    if (!range.isValid())
        return true;
    const QVector<DateRange> missing = loaded.missingDays(range);
    const ChangeRecord::Pause pause(changes);
    for (const DateRange &gap : missing) {
        loader.countRead();
        if (!readDays(gap, [this](const ComponentRow &row) {
                loader.take(row);
                return true;
            }))
            return false;
        loaded.addDays(gap);
    }
    return true;
}

bool SqliteStoragePrivate::readDays(const DateRange &range, const ComponentReader::Sink &sink)
{
    // The index is entered at the earliest start that a short row in the range may have.
    return tables->reader.read(
               "state = 0 AND span = 0 AND start >= ? AND start < ? AND end > ?",
               {range.firstKey() - ComponentKeys::shortSeconds, range.endKey(), range.firstKey()},
               sink)
        && tables->reader.read("state = 0 AND span = 1 AND start < ? AND end > ?",
                               {range.endKey(), range.firstKey()}, sink);
}

bool SqliteStoragePrivate::loadRecurringDays(const DateRange &range)
{
    if (!range.isValid())
        return true;
    const QVector<DateRange> missing = loaded.missingRecurringDays(range);
    for (const DateRange &gap : missing) {
        if (!loader.loadFamilies(tables->reader, "start < ? AND until > ?",
                                 {gap.endKey(), gap.firstKey()}))
            return false;
        loaded.addRecurringDays(gap);
    }
    return true;
}

bool SqliteStoragePrivate::loadUid(const QString &uid)
{
    return loader.loadRows(tables->reader, "uid = ?", {uid});
}

bool SqliteStorage::load()
{
    StorageCall call(*d);
    if (!d->isOpen())
        return call.ended(false);
    if (d->loaded.hasEverything())
        return call.ended(true);
    if (!d->loader.loadRows(d->tables->reader, "1"))
        return call.ended(false);
    d->loaded.addEverything();
    return call.ended(true);
}

bool SqliteStorage::load(const QString &uid, const KDateTime &recurrenceId)
{
    StorageCall call(*d);
    if (!d->isOpen())
        return call.ended(false);
    // Where the series is, all its exceptions are.
    if (d->loaded.hasEverything() || d->calendar->incidence(uid, recurrenceId)
        || d->calendar->incidence(uid, KDateTime()))
        return call.ended(true);
    return call.ended(d->loadUid(uid));
}

bool SqliteStorage::load(const QDate &date)
{
    return load(date, date);
}

bool SqliteStorage::load(const QDate &start, const QDate &end)
{
    StorageCall call(*d);
    return call.ended(d->isOpen() && d->loadDays({start, end}));
}

bool SqliteStorage::loadRecurringIncidences()
{
    StorageCall call(*d);
    if (!d->isOpen())
        return call.ended(false);
    if (d->loaded.hasAllRecurring())
        return call.ended(true);
    if (!d->loader.loadRecurring(d->tables->reader))
        return call.ended(false);
    d->loaded.addAllRecurring();
    return call.ended(true);
}

bool SqliteStorage::loadRecurringIncidences(const QDate &start, const QDate &end)
{
    StorageCall call(*d);
    return call.ended(d->isOpen() && d->loadRecurringDays({start, end}));
}

bool SqliteStorage::loadUncompletedTodos()
{
    StorageCall call(*d);
    if (!d->isOpen())
        return call.ended(false);
    if (d->loaded.hasUncompletedTodos())
        return call.ended(true);
    if (!d->loader.loadMatching(d->tables->reader, "type = 1 AND completed = 0", {}))
        return call.ended(false);
    d->loaded.addUncompletedTodos();
    return call.ended(true);
}

bool SqliteStorage::loadJournals()
{
    StorageCall call(*d);
    if (!d->isOpen())
        return call.ended(false);
    if (d->loaded.hasJournals())
        return call.ended(true);
    if (!d->loader.loadRows(d->tables->reader, "type = 2"))
        return call.ended(false);
    d->loaded.addJournals();
    return call.ended(true);
}

bool SqliteStorage::loadNotebookIncidences(const QString &notebookUid)
{
    StorageCall call(*d);
    if (!d->isOpen())
        return call.ended(false);
    if (d->loaded.hasNotebook(notebookUid))
        return call.ended(true);
    if (!d->loader.loadRows(d->tables->reader, "notebook = ?", {notebookUid}))
        return call.ended(false);
    d->loaded.addNotebook(notebookUid);
    return call.ended(true);
}

bool SqliteStorage::loadFutureIncidences(int limit, KDateTime *last)
{
    StorageCall call(*d);
    if (last)
        *last = KDateTime();
    if (!d->isOpen())
        return call.ended(false);
    const ZoneClock clock(d->calendar->timeZone());
    const Msecs now = KCalCompat::Clock::now().toMSecsSinceEpoch();
    struct Coming {
        Msecs start;
        ComponentRow row;
    };
    std::vector<Coming> coming;
    for (const char *span : {"0", "1"}) {
        int found = 0;
        Msecs lastStart = 0;
        const bool read =
            d->tables->reader.read(QByteArray("state = 0 AND span = ") + span
                                       + " AND start >= ? AND type < 2 ORDER BY start",
                                   {now / 1000 - 86400}, [&](const ComponentRow &row) {
                                       const Msecs start = spanOf(*row.incidence, clock).start;
                                       if (start < now)
                                           return true;
                                       // Floating ones are ordered by their wall clock, up to a day
                                       // away from the moment.
                                       if (found >= limit && start > lastStart + msecsPerDay)
                                           return false;
                                       lastStart =
                                           found++ < limit ? std::max(lastStart, start) : lastStart;
                                       coming.push_back({start, row});
                                       return true;
                                   });
        d->loader.countRead();
        if (!read)
            return call.ended(false);
    }
    std::stable_sort(coming.begin(), coming.end(),
                     [](const Coming &a, const Coming &b) { return a.start < b.start; });
    coming.resize(std::min(coming.size(), size_t(std::max(0, limit))));
    const ChangeRecord::Pause pause(d->changes);
    for (const Coming &one : coming)
        d->loader.take(one.row);
    if (last && !coming.empty())
        *last = KDateTime(clock.dateTime(coming.back().start));
    return call.ended(true);
}

int SqliteStorage::loadCompletedTodos(int limit, KDateTime *last)
{
    StorageCall call(*d);
    if (!call.ended(d->isOpen()))
        return -1;
    const qint64 before =
        last && last->isValid() ? last->toSecsSinceEpoch() : std::numeric_limits<qint64>::max();
    QVector<QPair<qint64, QString>> page;
    qint64 lastCompleted = 0;
    Statement &query = d->connection.statement(
        "SELECT id, CASE span WHEN 2 THEN uid END, completed FROM Components WHERE state = 0"
        " AND type = 1 AND completed > 0 AND completed < ? ORDER BY completed DESC, uid, recId");
    query.bind(1, before);
    // Those completed in the same second stay together: the next page begins before that second.
    while (query.next()) {
        if (page.size() >= limit && query.integer(2) != lastCompleted)
            break;
        lastCompleted = query.integer(2);
        page.append({query.integer(0), query.text(1)});
    }
    query.reset();
    if (!call.ended(!query.failed() && d->loadIds(page)))
        return -1;
    if (last) {
        *last = page.isEmpty() ? KDateTime()
                               : KDateTime(QDateTime::fromSecsSinceEpoch(lastCompleted, Qt::UTC));
    }
    return page.size();
}

bool SqliteStoragePrivate::loadIds(const QVector<QPair<qint64, QString>> &idsAndFamilies)
{
    loader.countRead();
    for (const auto &[id, family] : idsAndFamilies) {
        const bool read =
            family.isEmpty() ? loader.loadRows(tables->reader, "id = ?", {id}) : loadUid(family);
        if (!read)
            return false;
    }
    return true;
}

bool SqliteStorage::loadCreatedSince(const QDateTime &since)
{
    StorageCall call(*d);
    return call.ended(
        d->isOpen()
        && d->loader.loadMatching(d->tables->reader, "created >= ?", {since.toMSecsSinceEpoch()}));
}

bool SqliteStorage::loadModifiedSince(const QDateTime &since)
{
    StorageCall call(*d);
    return call.ended(d->isOpen()
                      && d->loader.loadMatching(d->tables->reader, "lastModified >= ?",
                                                {since.toMSecsSinceEpoch()}));
}

bool SqliteStorage::loadByAttendee(const QString &email)
{
    StorageCall call(*d);
    return call.ended(d->isOpen()
                      && d->loader.loadMatching(
                          d->tables->reader,
                          "(organizerEmail = ?1 COLLATE NOCASE OR id IN (SELECT comp FROM Attendee"
                          " WHERE email = ?1 COLLATE NOCASE))",
                          {email}));
}
} // namespace mKCal
