// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "agenda.h"
#include "command.h"
#include "console.h"
#include "database.h"
#include "incidencejson.h"

#include <kcalcompat/clock.h>
#include <kcalcompat/ksystemtimezones.h>

#include <QCommandLineParser>
#include <QJsonArray>

namespace
{
const QString FromOption = QStringLiteral("from");
const QString ToOption = QStringLiteral("to");
const QString DaysOption = QStringLiteral("days");
const QString ZoneOption = QStringLiteral("zone");
const QString JsonOption = QStringLiteral("json");
constexpr int DefaultDays = 7;
/// Ten years: what repeats daily stays within the limit that one item is listed with.
constexpr int MaxDays = 3653;

void declare(QCommandLineParser &parser)
{
    parser.addOption({FromOption, QStringLiteral("First day, such as 2026-05-01 (default: today)."),
                      QStringLiteral("DATE")});
    parser.addOption({ToOption, QStringLiteral("Last day, listed too."), QStringLiteral("DATE")});
    parser.addOption({DaysOption,
                      QStringLiteral("How many days instead (default: %1).").arg(DefaultDays),
                      QStringLiteral("N")});
    parser.addOption({ZoneOption,
                      QStringLiteral("Time zone to read the times in, such as Europe/Helsinki "
                                     "(default: the system's)."),
                      QStringLiteral("ZONE")});
    parser.addOption({JsonOption, QStringLiteral("Write JSON.")});
    NotebookFilter::declare(parser);
}

/// The days to list; an invalid first day after a message.
QPair<QDate, QDate> readRange(const QCommandLineParser &parser, const QTimeZone &zone,
                              Console &console)
{
    const auto readDate = [&](const QString &option, QDate *date) {
        if (parser.isSet(option)) {
            *date = QDate::fromString(parser.value(option), Qt::ISODate);
            // Qt reads past separators and tails that are none.
            if (!date->isValid() || date->toString(Qt::ISODate) != parser.value(option)) {
                *date = QDate();
                console.message(QStringLiteral("--%1: '%2' is not a date such as 2026-05-01")
                                    .arg(option, parser.value(option)));
            }
        }
        return date->isValid();
    };
    QDate from = KCalCompat::Clock::now().toTimeZone(zone).date();
    if (!readDate(FromOption, &from)) {
        return {};
    }
    // The last day that can be written as a date.
    const QDate lastDay(9999, 12, 31);
    QDate to = qMin(from.addDays(DefaultDays - 1), lastDay);
    if (parser.isSet(ToOption) && parser.isSet(DaysOption)) {
        console.message(QStringLiteral("--to and --days exclude each other"));
        return {};
    }
    if (parser.isSet(DaysOption)) {
        bool isNumber = false;
        const int days = parser.value(DaysOption).toInt(&isNumber);
        if (!isNumber || days < 1 || days > MaxDays) {
            console.message(QStringLiteral("--days: '%1' is not a number from 1 to %2")
                                .arg(parser.value(DaysOption))
                                .arg(MaxDays));
            return {};
        }
        to = qMin(from.addDays(days - 1), lastDay);
    }
    if (!readDate(ToOption, &to)) {
        return {};
    }
    if (to < from || from.daysTo(to) >= MaxDays) {
        console.message(
            QStringLiteral("the last day must be the first or one of the %1 days after it")
                .arg(MaxDays - 1));
        return {};
    }
    return {from, to};
}

/// Makes the program live in that zone: so its clock times and the hour that comes twice are read
/// as they are there. False after a message.
bool moveTo(const QString &zoneName, Console &console)
{
    const QByteArray name = zoneName.toUtf8();
    if (!KSystemTimeZones::zone(name).isValid()) {
        console.message(QStringLiteral("--zone: there is no time zone '%1'").arg(zoneName));
        return false;
    }
    qputenv("TZ", name);
    KSystemTimeZones().configChanged();
    return true;
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    if (parser.isSet(ZoneOption) && !moveTo(parser.value(ZoneOption), console)) {
        return WrongUsage;
    }
    const auto range = readRange(parser, KSystemTimeZones::local(), console);
    if (!range.first.isValid()) {
        return WrongUsage;
    }
    const Database database(console);
    if (!database.isOpen()) {
        return Failed;
    }
    const Agenda agenda =
        readAgenda(database, NotebookFilter(database, parser), range.first, range.second);
    if (!agenda.error.isEmpty()) {
        console.message(agenda.error);
        return Failed;
    }
    if (parser.isSet(JsonOption)) {
        QJsonArray array;
        for (const AgendaEntry &entry : agenda.entries) {
            array.append(agendaEntryToJson(entry));
        }
        console.json(QJsonDocument(array));
    } else {
        printAgenda(agenda, database, console);
    }
    for (const QString &title : agenda.cutShort) {
        console.message(QStringLiteral("'%1' repeats too often to be listed whole").arg(title));
    }
    return agenda.cutShort.isEmpty() ? Done : DoneWithSkipped;
}
} // namespace

const Command agendaCommand = {
    "agenda", "Lists events and due to-dos day by day.", {0, 0, ""}, declare, run};
