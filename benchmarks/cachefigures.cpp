// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bench.h"
#include "rawdatabase.h"

#include <daskel/db_instance.h>
#include <daskel/expandedincidencescache.h>
#include <mkcal/sqlitestorage.h>

#include <algorithm>

namespace
{
using Occurrence = ExpandedIncidencesCache::Occurrence;
using Occurrences = ExpandedIncidencesCache::Occurrences;

constexpr int rounds = 9;
constexpr int occurrencesWanted = 10000;

/// Makes the cache hold a range with so many occurrences around the middle.
Occurrences fillCache()
{
    auto *cache = ExpandedIncidencesCache::instance();
    Occurrences all;
    for (int days = 100; all.size() < occurrencesWanted && days <= 3000; days += 50) {
        const QDate start = SampleData::middle().addDays(-days / 2);
        all = cache->loadExpandedEventsAndTodos(start, start.addDays(days));
    }
    return all;
}

Occurrences searchAndCopy(const Occurrences &sorted, const QDate &date)
{
    const auto first =
        std::partition_point(sorted.begin(), sorted.end(), [&](const Occurrence &occurrence) {
            return occurrence.first.dtStart.date() < date;
        });
    const auto last = std::find_if(first, sorted.end(), [&](const Occurrence &occurrence) {
        return occurrence.first.dtStart.date() > date;
    });
    Occurrences found;
    found.reserve(int(last - first));
    std::copy(first, last, std::back_inserter(found));
    return found;
}
} // namespace

void measureCache(const Bench &bench)
{
    const QString name = QStringLiteral("cache look-up of one day");
    if (!bench.wants(name)) {
        return;
    }
    constexpr int lookUps = 1000; // one takes far less than the clock can tell
    require(mKCal::SqliteStorage::setDefaultFile(bench.sample(10000).databaseName),
            QStringLiteral("the default file was used before"));
    const StatementCounter statements;
    auto *database = DbInstance::instance();
    database->setUser(DbInstance::NoUser);
    database->enableDb();
    const Occurrences all = fillCache();
    auto *cache = ExpandedIncidencesCache::instance();
    const QDate first = SampleData::middle().addDays(-30);
    const int before = statements.count();
    int found = 0;
    const auto each = [&](auto &&lookUp) {
        return microseconds([&] {
                   for (int i = 0; i < lookUps; ++i) {
                       found += lookUp(first.addDays(i % 60)).size();
                   }
               })
            / lookUps;
    };
    const Times times = inTurn(
        rounds,
        [&] {
            return each(
                [&](const QDate &date) { return cache->getExpandedEventsAndTodos(date, date); });
        },
        [&] { return each([&](const QDate &date) { return searchAndCopy(all, date); }); });
    bench.add(
        {name,
         all.size(),
         times,
         {Aim::AtMost, 3},
         {{QStringLiteral("statements"), statements.count() - before},
          {QStringLiteral("occurrences of a day"), double(found) / (2 * (rounds + 1) * lookUps)}}});
    DbInstance::destroy();
}
