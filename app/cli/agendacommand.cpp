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
const QString fromOption = QStringLiteral("from");
const QString toOption = QStringLiteral("to");
const QString daysOption = QStringLiteral("days");
const QString zoneOption = QStringLiteral("zone");
const QString jsonOption = QStringLiteral("json");
constexpr int defaultDays = 7;
/// Ten years: what repeats daily stays within the limit that one item is listed with.
constexpr int maxDays = 3653;

void declare(QCommandLineParser &parser)
{
    parser.addOption({fromOption, QStringLiteral("First day, such as 2026-05-01 (default: today)."),
                      QStringLiteral("DATE")});
    parser.addOption({toOption, QStringLiteral("Last day, listed too."), QStringLiteral("DATE")});
    parser.addOption({daysOption,
                      QStringLiteral("How many days instead (default: %1).").arg(defaultDays),
                      QStringLiteral("N")});
    parser.addOption({zoneOption,
                      QStringLiteral("Time zone to read the times in, such as Europe/Helsinki "
                                     "(default: the system's)."),
                      QStringLiteral("ZONE")});
    parser.addOption({jsonOption, QStringLiteral("Write JSON.")});
    NotebookFilter::declare(parser);
}

/// Reads the date of an option that is set; false after a message.
bool readDate(const QCommandLineParser &parser, const QString &option, Console &console,
              QDate *date)
{
    if (!parser.isSet(option)) {
        return true;
    }
    *date = QDate::fromString(parser.value(option), Qt::ISODate);
    // Qt reads past separators and tails that are none.
    if (date->isValid() && date->toString(Qt::ISODate) == parser.value(option)) {
        return true;
    }
    console.message(QStringLiteral("--%1: '%2' is not a date such as 2026-05-01")
                        .arg(option, parser.value(option)));
    return false;
}

/// How many days are asked for; 0 after a message.
int readDays(const QCommandLineParser &parser, Console &console)
{
    if (!parser.isSet(daysOption)) {
        return defaultDays;
    }
    bool isNumber = false;
    const int days = parser.value(daysOption).toInt(&isNumber);
    if (isNumber && days >= 1 && days <= maxDays) {
        return days;
    }
    console.message(QStringLiteral("--days: '%1' is not a number from 1 to %2")
                        .arg(parser.value(daysOption))
                        .arg(maxDays));
    return 0;
}

/// The days to list; an invalid first day after a message.
QPair<QDate, QDate> readRange(const QCommandLineParser &parser, Console &console)
{
    if (parser.isSet(toOption) && parser.isSet(daysOption)) {
        console.message(QStringLiteral("--to and --days exclude each other"));
        return {};
    }
    QDate from = KCalCompat::Clock::now().toTimeZone(KSystemTimeZones::local()).date();
    const int days = readDays(parser, console);
    if (days == 0 || !readDate(parser, fromOption, console, &from)) {
        return {};
    }
    // No later day can be written as a date.
    QDate to = qMin(from.addDays(days - 1), QDate(9999, 12, 31));
    if (!readDate(parser, toOption, console, &to)) {
        return {};
    }
    if (to < from || from.daysTo(to) >= maxDays) {
        console.message(
            QStringLiteral("the last day must be the first or one of the %1 days after it")
                .arg(maxDays - 1));
        return {};
    }
    return {from, to};
}

/// What TZ has to say for a zone. It counts a bare offset west of Greenwich, where "UTC+05:45" lies
/// east.
QByteArray tzOf(const QByteArray &name, const QTimeZone &zone)
{
    if (!name.startsWith("UTC") || name.size() == 3) {
        return name;
    }
    const int east = zone.offsetFromUtc(KCalCompat::Clock::now());
    const QTime size = QTime(0, 0).addSecs(qAbs(east));
    return (east < 0 ? "UTC+" : "UTC-") + size.toString(QStringLiteral("hh:mm")).toLatin1();
}

/// Makes the program live in that zone: so its clock times and the hour that comes twice are read
/// as they are there. False after a message.
bool moveTo(const QString &zoneName, Console &console)
{
    const QByteArray name = zoneName.toUtf8();
    const QTimeZone zone = KSystemTimeZones::zone(name);
    if (!zone.isValid()) {
        console.message(QStringLiteral("--zone: there is no time zone '%1'").arg(zoneName));
        return false;
    }
    qputenv("TZ", tzOf(name, zone));
    KSystemTimeZones().configChanged();
    return true;
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    if (parser.isSet(zoneOption) && !moveTo(parser.value(zoneOption), console)) {
        return WrongUsage;
    }
    const auto range = readRange(parser, console);
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
    if (parser.isSet(jsonOption)) {
        QJsonArray array;
        for (const AgendaEntry &entry : agenda.entries) {
            array.append(agendaEntryToJson(*database.calendar(), entry));
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
