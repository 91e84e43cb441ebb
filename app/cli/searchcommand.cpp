// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "command.h"
#include "console.h"
#include "database.h"
#include "incidencejson.h"

#include <QCommandLineParser>
#include <QJsonArray>

namespace
{
const QString JsonOption = QStringLiteral("json");

void declare(QCommandLineParser &parser)
{
    parser.addOption({JsonOption, QStringLiteral("Write JSON.")});
    NotebookFilter::declare(parser);
    parser.addPositionalArgument(
        QStringLiteral("text"),
        QStringLiteral("What to look for in summaries, places, descriptions and categories."),
        QStringLiteral("TEXT"));
}

void print(const KCalCore::Incidence::Ptr &incidence, const QTimeZone &zone, QTextStream &out)
{
    constexpr int TimeWidth = 18;
    const QDateTime time = incidence->dateTime(KCalCore::Incidence::RoleSort);
    const QDateTime shown = incidence->allDay() ? time : time.toTimeZone(zone);
    out << shown
               .toString(incidence->allDay() ? QStringLiteral("yyyy-MM-dd")
                                             : QStringLiteral("yyyy-MM-dd HH:mm"))
               .leftJustified(TimeWidth)
        << typeName(incidence).leftJustified(9) << incidence->summary().simplified() << "  · "
        << incidence->uid() << '\n';
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    if (parser.positionalArguments().isEmpty()) {
        console.message(QStringLiteral("no text given"));
        return WrongUsage;
    }
    const Database database(console);
    if (!database.isOpen()) {
        return Failed;
    }
    const NotebookFilter filter(database, parser);
    const auto calendar = database.calendar();
    const auto found =
        database.storage()->search(parser.positionalArguments().join(QLatin1Char(' ')));
    if (!database.storage()->errorMessage().isEmpty()) {
        console.message(database.storage()->errorMessage());
        return Failed;
    }
    QJsonArray array;
    for (const auto &incidence : found) {
        if (!filter.shows(incidence)) {
            continue;
        }
        if (parser.isSet(JsonOption)) {
            array.append(incidenceDetailsToJson(incidence, calendar->notebook(incidence)));
        } else {
            print(incidence, calendar->timeZone(), console.out());
        }
    }
    if (parser.isSet(JsonOption)) {
        console.json(QJsonDocument(array));
    }
    return Done;
}
} // namespace

const Command searchCommand = {"search", "Finds items by their text.", declare, run};
