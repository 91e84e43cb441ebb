// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "command.h"
#include "console.h"
#include "database.h"
#include "incidencejson.h"

#include <kcalcompat/clock.h>

#include <KCalendarCore/Todo>

#include <QCommandLineParser>
#include <QJsonArray>

#include <limits>

namespace
{
const QString allOption = QStringLiteral("all");
const QString jsonOption = QStringLiteral("json");

void declare(QCommandLineParser &parser)
{
    parser.addOption({allOption, QStringLiteral("List completed ones too.")});
    parser.addOption({jsonOption, QStringLiteral("Write JSON.")});
    NotebookFilter::declare(parser);
}

bool load(const Database &database, bool completedToo)
{
    const auto storage = database.storage();
    return storage->loadUncompletedTodos()
        && (!completedToo
            || storage->loadCompletedTodos(std::numeric_limits<int>::max(), nullptr) >= 0);
}

/// What is open before what is done, then by due date, what has none last.
bool comesBefore(const KCalCore::Todo::Ptr &a, const KCalCore::Todo::Ptr &b)
{
    if (a->isCompleted() != b->isCompleted()) {
        return b->isCompleted();
    }
    if (a->hasDueDate() != b->hasDueDate()) {
        return a->hasDueDate();
    }
    return a->hasDueDate() && a->dtDue() < b->dtDue();
}

bool isOverdue(const KCalCore::Todo &todo, const QDateTime &now)
{
    if (!todo.hasDueDate() || todo.isCompleted()) {
        return false;
    }
    return todo.allDay() ? todo.dtDue().date() < now.date() : todo.dtDue() < now;
}

void print(const KCalCore::Todo::List &todos, const QTimeZone &zone, QTextStream &out)
{
    constexpr int dueWidth = 18;
    const QDateTime now = KCalCompat::Clock::now().toTimeZone(zone);
    for (const auto &todo : todos) {
        const QDateTime due = todo->hasDueDate() ? todo->dtDue() : QDateTime();
        out << (todo->isCompleted() ? "[x] " : "[ ] ")
            << shortText(due, todo->allDay(), zone).leftJustified(dueWidth)
            << titleText(todo->summary()) << (isOverdue(*todo, now) ? " (overdue)" : "") << '\n';
    }
    if (todos.isEmpty()) {
        out << "Nothing to do.\n";
    }
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    const Database database(console);
    if (!database.isOpen()) {
        return Failed;
    }
    const bool completedToo = parser.isSet(allOption);
    if (!load(database, completedToo)) {
        console.message(database.storage()->errorMessage());
        return Failed;
    }
    const NotebookFilter filter(database, parser);
    KCalCore::Todo::List todos;
    const auto known = database.calendar()->rawTodos();
    for (const auto &todo : known) {
        if (filter.shows(todo) && (completedToo || !todo->isCompleted())) {
            todos.append(todo);
        }
    }
    std::stable_sort(todos.begin(), todos.end(), comesBefore);
    if (!parser.isSet(jsonOption)) {
        print(todos, database.calendar()->timeZone(), console.out());
        return Done;
    }
    QJsonArray array;
    for (const auto &todo : qAsConst(todos)) {
        array.append(incidenceDetailsToJson(*database.calendar(), todo));
    }
    console.json(QJsonDocument(array));
    return Done;
}
} // namespace

const Command todosCommand = {"todos", "Lists what is to be done.", {0, 0, ""}, declare, run};
