// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "command.h"
#include "console.h"
#include "database.h"
#include "incidencejson.h"

#include <KCalendarCore/Todo>

#include <QCommandLineParser>
#include <QJsonArray>

#include <algorithm>

namespace
{
const QString jsonOption = QStringLiteral("json");

void declare(QCommandLineParser &parser)
{
    parser.addOption({jsonOption, QStringLiteral("Write JSON.")});
    NotebookFilter::declare(parser);
    parser.addPositionalArgument(
        QStringLiteral("text"),
        QStringLiteral("What to look for in summaries, places, descriptions and categories."),
        QStringLiteral("TEXT"));
}

void print(const KCalCore::Incidence::Ptr &incidence, const QTimeZone &zone, QTextStream &out)
{
    constexpr int timeWidth = 18;
    constexpr int typeWidth = 9;
    const auto todo = incidence.dynamicCast<KCalCore::Todo>();
    const QDateTime time = todo && todo->hasDueDate() ? todo->dtDue() : incidence->dtStart();
    out << shortText(time, incidence->allDay(), zone).leftJustified(timeWidth)
        << typeName(incidence).leftJustified(typeWidth) << titleText(incidence->summary())
        << QStringLiteral("  · ") << printable(incidence->uid()) << '\n';
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    const QString text = parser.positionalArguments().join(QLatin1Char(' ')).trimmed();
    if (text.isEmpty()) {
        console.message(QStringLiteral("no text given"));
        return WrongUsage;
    }
    const Database database(console);
    if (!database.isOpen()) {
        return Failed;
    }
    const auto calendar = database.calendar();
    const NotebookFilter filter(database, parser);
    const auto matching = database.storage()->search(text);
    if (!database.storage()->errorMessage().isEmpty()) {
        console.message(database.storage()->errorMessage());
        return Failed;
    }
    KCalCore::Incidence::List found;
    std::copy_if(matching.begin(), matching.end(), std::back_inserter(found),
                 [&filter](const auto &incidence) { return filter.shows(incidence); });
    if (parser.isSet(jsonOption)) {
        QJsonArray array;
        for (const auto &incidence : qAsConst(found)) {
            array.append(incidenceDetailsToJson(*calendar, incidence));
        }
        console.json(QJsonDocument(array));
        return Done;
    }
    for (const auto &incidence : qAsConst(found)) {
        print(incidence, calendar->timeZone(), console.out());
    }
    if (found.isEmpty()) {
        console.out() << "Nothing found.\n";
    }
    return Done;
}
} // namespace

const Command searchCommand = {
    "search", "Finds items by their text.", {1, ArgumentCount::any, "no text given"}, declare, run};
