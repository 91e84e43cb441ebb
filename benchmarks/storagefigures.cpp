// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bench.h"
#include "rawdatabase.h"
#include "recipe.h"

#include <mkcal/incidencecomparison.h>

#include <QFile>

#include <functional>

using namespace mKCal;

namespace
{
constexpr int rounds = 15;
constexpr int saves = 300;
constexpr int rangeDays = 60;

const QDate rangeStart = SampleData::middle();
const QDate rangeEnd = rangeStart.addDays(rangeDays - 1);

/// What a load is asked for: of the storage, and of bare SQL.
struct Load {
    std::function<bool(ExtendedStorage &)> ours;
    QByteArray condition;
    QVector<qint64> values;
};

/// Everything that the floor of a load needs: the rows and the values of what it brings.
struct Loaded {
    QVector<Recipe> recipes;
    int statements = 0;
};

Load rangeLoad()
{
    // Floating times are found by their wall clock: a day more on both sides.
    const auto seconds = [](const QDate &date) {
        return date.startOfDay(Qt::UTC).toSecsSinceEpoch();
    };
    const qint64 first = seconds(rangeStart.addDays(-1));
    const qint64 end = seconds(rangeEnd.addDays(2));
    return {[](ExtendedStorage &storage) { return storage.load(rangeStart, rangeEnd); },
            "state = 0 AND span = 0 AND start >= ? AND start < ? AND end > ? UNION ALL"
            " SELECT id, flags, * FROM Components"
            " WHERE state = 0 AND span = 1 AND start < ? AND end > ?",
            {first - 2 * 86400, end, first, end, first}};
}

Load recurringLoad()
{
    return {[](ExtendedStorage &storage) { return storage.loadRecurringIncidences(); },
            "state = 0 AND span = 2",
            {}};
}

/// The floor is only a floor when it builds the very same incidences.
Loaded inspect(const Load &load, const Sample &sample)
{
    Loaded loaded;
    const StatementCounter statements;
    const OpenedStorage opened(sample.databaseName);
    const int before = statements.count();
    require(load.ours(*opened.storage), opened.storage->errorMessage());
    loaded.statements = statements.count() - before;
    const auto incidences = opened.calendar->rawIncidences();
    for (const auto &incidence : incidences) {
        loaded.recipes.append(Recipe::of(*incidence));
        const QStringList differing = differences(*incidence, *loaded.recipes.last().build());
        require(differing.isEmpty(), incidence->uid() + differing.join(QLatin1String(", ")));
    }
    return loaded;
}

double timeOurs(const Load &load, const Sample &sample)
{
    const OpenedStorage opened(sample.databaseName);
    return microseconds([&] { load.ours(*opened.storage); });
}

double timeFloor(const Load &load, const Sample &sample, const Loaded &loaded, int *rows)
{
    RawDatabase database(sample.databaseName);
    KCalCore::Incidence::List built;
    built.reserve(loaded.recipes.size());
    return microseconds([&] {
        *rows = database.readAll(load.condition, load.values);
        for (const Recipe &recipe : loaded.recipes) {
            built.append(recipe.build());
        }
    });
}

void measureLoad(const Bench &bench, const QString &name, const Load &load)
{
    if (!bench.wants(name)) {
        return;
    }
    for (const int count : {10000, 100000}) {
        const Sample sample = bench.sample(count);
        const Loaded loaded = inspect(load, sample);
        int rows = 0;
        const Times times = inTurn(
            rounds, [&] { return timeOurs(load, sample); },
            [&] { return timeFloor(load, sample, loaded, &rows); });
        bench.add({name,
                   count,
                   times,
                   {Aim::AtMost, 1.3},
                   {{QStringLiteral("incidences"), loaded.recipes.size()},
                    {QStringLiteral("rows with child rows"), rows},
                    {QStringLiteral("statements"), loaded.statements}}});
    }
}

void measureGrowth(const Bench &bench)
{
    const QString name = QStringLiteral("load 60 days, equal rows, beside 10,000");
    if (!bench.wants(name)) {
        return;
    }
    const Load load = rangeLoad();
    const Sample small = bench.sample(10000);
    const Sample large = bench.sampleOfEqualRows();
    const Times times = inTurn(
        rounds, [&] { return timeOurs(load, large); }, [&] { return timeOurs(load, small); });
    const auto inSmall = inspect(load, small).recipes.size();
    const auto inLarge = inspect(load, large).recipes.size();
    bench.add({name,
               large.count,
               times,
               {Aim::AtMost, 1.5},
               {{QStringLiteral("incidences"), inLarge},
                {QStringLiteral("incidences beside"), inSmall}}});
}

/// Every save changes another incidence of the range, on a copy of the database for each side.
void measureSave(const Bench &bench)
{
    const QString name = QStringLiteral("save one changed incidence");
    if (!bench.wants(name)) {
        return;
    }
    for (const int count : {10000, 100000}) {
        const QString oursName = bench.scratchName(QStringLiteral(".db"));
        const QString floorName = bench.scratchName(QStringLiteral(".db"));
        for (const QString &copy : {oursName, floorName}) {
            require(QFile::copy(bench.sample(count).databaseName, copy), copy);
        }
        const OpenedStorage opened(oursName);
        require(opened.storage->load(rangeStart, rangeEnd), opened.storage->errorMessage());
        const auto incidences = opened.calendar->rawIncidences();
        RawDatabase raw(floorName);
        int step = 0;
        const auto ours = [&] {
            const auto &incidence = incidences.at(++step % incidences.size());
            incidence->setSummary(QStringLiteral("changed %1").arg(step), false);
            return microsecondsPassed(
                [&] { require(opened.storage->save(), opened.storage->errorMessage()); });
        };
        const auto floor = [&] {
            const qint64 id = raw.idOf(incidences.at(step % incidences.size())->uid().toUtf8());
            const QByteArray summary = "changed " + QByteArray::number(step);
            return microsecondsPassed([&] { raw.updateSummary(id, summary); });
        };
        bench.add({name,
                   count,
                   inTurn(saves, ours, floor),
                   {Aim::AtMost, 1.5},
                   {{QStringLiteral("saves"), saves}}});
    }
}
} // namespace

void measureStorage(const Bench &bench)
{
    measureLoad(bench, QStringLiteral("load 60 days"), rangeLoad());
    measureGrowth(bench);
    measureLoad(bench, QStringLiteral("load all recurring"), recurringLoad());
    measureSave(bench);
}
