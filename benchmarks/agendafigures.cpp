// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bench.h"
#include "rawdatabase.h"

#include <daskel/db_instance.h>
#include <daskel/notewidgetitemmodel.h>
#include <kcalcompat/clock.h>
#include <mkcal/sqlitestorage.h>

#include <KCalendarCore/Todo>

#include <QCoreApplication>
#include <QLoggingCategory>

#include <cmath>
#include <ctime>
#include <loaders/agendaloader.h>
#include <malloc.h>

using namespace mKCal;

namespace
{
constexpr int rounds = 5;
constexpr int steps = 10; // one batch alone is too short for the clock
constexpr int batch = 40; // three screens of rows
constexpr int maxExpand = 10000;
constexpr int yearsFlicked = 10;

struct Days {
    QDate first;
    QDate last;
};

/// The calendar as an application opens it, with the rows of its agenda.
class Agenda
{
public:
    Agenda()
    {
        DbInstance::recreate();
        DbInstance::instance()->setUser(DbInstance::CalendarUser);
        DbInstance::instance()->enableDb();
        loader.setBatchSize(batch);
    }
    Q_DISABLE_COPY(Agenda)

    void begin(const QDate &day)
    {
        loader.setAnchor(day);
        model.reload();
    }
    /// Further batches; the days that each showed.
    QVector<Days> goOn(int count)
    {
        QVector<Days> shown;
        for (int i = 0; i < count; ++i) {
            const int before = model.rowCount();
            model.loadLater();
            if (model.rowCount() > before)
                shown.append({dayOf(before), dayOf(model.rowCount() - 1)});
        }
        return shown;
    }
    QDate lastDay() const { return dayOf(model.rowCount() - 1); }
    void flickTo(const QDate &day)
    {
        int rows = -1;
        while (lastDay() < day && model.rowCount() > rows) {
            rows = model.rowCount();
            model.loadLater();
        }
    }
    int incidenceRows() const { return model.noteCount(); }

    AgendaLoader loader;
    NoteWidgetItemModel model{&loader};

private:
    QDate dayOf(int row) const
    {
        return model.index(row, 0).data(NoteWidgetItemModel::StartRole).toDateTime().date();
    }
};

/// What cannot be saved: reading the rows of the days and unrolling them, once.
double bareWork(const QString &databaseName, const QVector<Days> &shown)
{
    const OpenedStorage opened(databaseName);
    opened.storage->loadRecurringIncidences();
    opened.storage->loadUncompletedTodos();
    const KDateTime::Spec zone = KDateTime::Spec::LocalZone();
    return microseconds([&] {
        for (const Days &days : shown) {
            const QDate end = days.last.addDays(1);
            opened.storage->load(days.first, end);
            auto alive = opened.calendar->incidences(days.first, end);
            const auto unrolled =
                opened.calendar->expandRecurrences(&alive, KDateTime(days.first, {0, 0}, zone),
                                                   KDateTime(end, {0, 0}, zone), maxExpand);
            opened.calendar->expandMultiDay(unrolled, days.first, end, maxExpand, true);
        }
    });
}

void measureSteps(const Bench &bench, const Sample &sample)
{
    const QString name = QStringLiteral("a batch more of the agenda, to its bare work");
    if (!bench.wants(name))
        return;
    QVector<Days> shown;
    int rows = 0;
    int statements = 0;
    const auto ours = [&] {
        Agenda agenda;
        agenda.begin(SampleData::middle().addDays(60));
        const int rowsBefore = agenda.incidenceRows();
        const StatementCounter counter;
        const double time = microseconds([&] { shown = agenda.goOn(steps); }) / steps;
        statements = counter.count();
        rows = agenda.incidenceRows() - rowsBefore;
        return time;
    };
    const Times times =
        inTurn(rounds, ours, [&] { return bareWork(sample.databaseName, shown) / steps; });
    bench.add({name,
               sample.count,
               times,
               {Aim::AtMost, 1.5},
               {{QStringLiteral("rows of a batch"), double(rows) / steps},
                {QStringLiteral("days of a batch"),
                 double(shown.first().first.daysTo(shown.last().last) + 1) / steps},
                {QStringLiteral("statements of a batch"), double(statements) / steps}}});
}

/// Ticks the first to-do off, or on again.
double tick()
{
    auto *database = DbInstance::instance();
    const auto todos = database->calendar()->rawTodos();
    require(!todos.isEmpty(), QStringLiteral("a to-do in the sample"));
    const auto &todo = todos.first();
    return microseconds([&] {
        todo->setCompleted(!todo->isCompleted());
        database->save(false);
        QCoreApplication::processEvents();
    });
}

/// What costs as much for who came a long way as for who opened the agenda right there: another
/// batch, and a tick; and the memory of the way.
void measureDistance(const Bench &bench, const Sample &sample)
{
    const QString step =
        QStringLiteral("a batch after %1 years of flicking, to one right there").arg(yearsFlicked);
    const QString ticking =
        QStringLiteral("a tick after %1 years of flicking, to one right there").arg(yearsFlicked);
    if (!bench.wants(step) && !bench.wants(ticking))
        return;
    const QDate start = SampleData::middle().addYears(-yearsFlicked / 2);
    const QDate end = start.addYears(yearsFlicked).addDays(-120);
    Times batches;
    Times ticks;
    const auto measure = [&](Agenda *agenda, double Times::*side) {
        batches.*side = microseconds([&] { agenda->goOn(steps); }) / steps;
        tick();
        ticks.*side = (tick() + tick()) / 2;
    };
    double before = 0;
    {
        Agenda agenda;
        agenda.begin(end);
        before = double(mallinfo2().uordblks);
        measure(&agenda, &Times::floor);
    }
    Agenda agenda;
    agenda.begin(start);
    agenda.flickTo(end);
    const double taken = double(mallinfo2().uordblks) - before;
    const QJsonObject work{{QStringLiteral("rows flicked through"), agenda.incidenceRows()},
                           {QStringLiteral("KiB taken on the way"), std::round(taken / 1024)}};
    measure(&agenda, &Times::ours);
    bench.add({step, sample.count, batches, {Aim::AtMost, 1.5}, work});
    bench.add({ticking, sample.count, ticks, {Aim::AtMost, 1.5}, {}});
}

void measureData(const Bench &bench, const Sample &sample)
{
    const QString name = QStringLiteral("what a row shows, to its look-up and 2 µs");
    if (!bench.wants(name))
        return;
    Agenda agenda;
    agenda.begin(SampleData::middle());
    agenda.goOn(steps);
    QModelIndexList rows;
    QVector<KCalCore::Incidence::Ptr> incidences;
    for (int header = 0; header < agenda.model.rowCount(); ++header) {
        const QModelIndex group = agenda.model.index(header, 0);
        for (int row = 0; row < agenda.model.rowCount(group); ++row) {
            rows.append(agenda.model.index(row, 0, group));
            incidences.append(rows.last().data().value<KCalCore::Incidence::Ptr>());
        }
    }
    constexpr int repetitions = 100;
    int found = 0;
    const auto each = [&](auto &&work) {
        return microseconds([&] {
                   for (int i = 0; i < repetitions; ++i) {
                       for (int row = 0; row < rows.size(); ++row)
                           found += work(row);
                   }
               })
            / repetitions / rows.size();
    };
    constexpr double allowance = 2;
    const Times times = inTurn(
        rounds, [&] { return each([&](int row) { return rows.at(row).data().isValid(); }); },
        [&] {
            return allowance + each([&](int row) {
                       const auto &incidence = incidences.at(row);
                       if (!incidence)
                           return false;
                       return !DbInstance::instance()
                                   ->incidence(incidence->uid(),
                                               KDateTime(incidence->recurrenceId()))
                                   .isNull();
                   });
        });
    bench.add({name,
               sample.count,
               times,
               {Aim::AtMost, 1},
               {{QStringLiteral("rows"), rows.size()}, {QStringLiteral("found"), found}}});
}
} // namespace

/// One database in a process of its own: it stays the default for as long as the process lives.
int main(int argc, char *argv[])
{
    qputenv("TZ", "Europe/Helsinki");
    tzset();
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    KCalCompat::Clock::setSource(
        [] { return QDateTime(SampleData::middle(), QTime(9, 0), Qt::UTC); });
    const QStringList words = QCoreApplication::arguments().mid(1);
    require(words.size() >= 2, QStringLiteral("usage: agenda_bench <folder> <count> [filter...]"));
    const Bench bench(words.first(), words.mid(2));
    const Sample sample = bench.sample(words.at(1).toInt());
    require(SqliteStorage::setDefaultFile(sample.databaseName),
            QStringLiteral("the default file was used before"));
    measureSteps(bench, sample);
    measureDistance(bench, sample);
    measureData(bench, sample);
    DbInstance::destroy();
    return 0;
}
