// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "command.h"
#include "console.h"
#include "database.h"
#include "incidencejson.h"

#include <QCommandLineParser>
#include <QJsonArray>

#include <algorithm>
#include <cstdlib>

namespace
{
const QString jsonOption = QStringLiteral("json");
const QString notebookKey = QStringLiteral("notebook");
const QString endKey = QStringLiteral("end");

void declare(QCommandLineParser &parser)
{
    parser.addOption({jsonOption, QStringLiteral("Write JSON.")});
    parser.addPositionalArgument(QStringLiteral("uid"), QStringLiteral("UID of the item."),
                                 QStringLiteral("UID"));
}

/// "1 h 30 min": what an alarm keeps from the time that it belongs to.
QString durationText(int seconds)
{
    struct Unit {
        int seconds;
        const char *name;
    };
    static constexpr Unit units[] = {{86400, " d"}, {3600, " h"}, {60, " min"}, {1, " s"}};
    QStringList parts;
    int left = std::abs(seconds);
    for (const Unit &unit : units) {
        if (left >= unit.seconds) {
            parts.append(QString::number(left / unit.seconds) + QLatin1String(unit.name));
            left %= unit.seconds;
        }
    }
    return parts.join(QLatin1Char(' '));
}

QString alarmText(const QJsonObject &alarm)
{
    const QString off =
        alarm.value(QStringLiteral("enabled")).toBool() ? QString() : QStringLiteral(" (off)");
    if (alarm.contains(QStringLiteral("time"))) {
        return QStringLiteral("at ") + alarm.value(QStringLiteral("time")).toString() + off;
    }
    const bool countsFromEnd = alarm.contains(QStringLiteral("secondsFromEnd"));
    const QString whose = countsFromEnd ? QStringLiteral("the end") : QStringLiteral("the start");
    const int seconds = alarm
                            .value(countsFromEnd ? QStringLiteral("secondsFromEnd")
                                                 : QStringLiteral("secondsFromStart"))
                            .toInt();
    if (seconds == 0) {
        return QStringLiteral("at %1%2").arg(whose, off);
    }
    return QStringLiteral("%1 %2 %3%4")
        .arg(durationText(seconds),
             seconds < 0 ? QStringLiteral("before") : QStringLiteral("after"), whose, off);
}

QString attendeeText(const QJsonObject &attendee)
{
    const QString name = attendee.value(QStringLiteral("name")).toString();
    const QString email = attendee.value(QStringLiteral("email")).toString();
    return name.isEmpty() || email.isEmpty() ? name + email
                                             : QStringLiteral("%1 <%2>").arg(name, email);
}

/// As people read it; empty for what says nothing.
QString valueText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Array: {
        QStringList texts;
        const QJsonArray array = value.toArray();
        for (const auto &element : array) {
            texts.append(valueText(element));
        }
        return texts.join(QStringLiteral("; "));
    }
    case QJsonValue::Object:
        return value.toObject().contains(QStringLiteral("email")) ? attendeeText(value.toObject())
                                                                  : alarmText(value.toObject());
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("yes") : QStringLiteral("no");
    case QJsonValue::Double:
        return value.toInt() == 0 ? QString() : QString::number(value.toInt());
    default:
        return value.toString();
    }
}

/// For people: the name of the notebook for its UID, and the last day of an all-day event where
/// JSON has the day after it.
QJsonObject readable(QJsonObject object, mKCal::ExtendedStorage &storage)
{
    if (const auto notebook = storage.notebook(object.value(notebookKey).toString())) {
        object.insert(notebookKey, notebook->name());
    }
    const QDate end = QDate::fromString(object.value(endKey).toString(), Qt::ISODate);
    if (object.value(QStringLiteral("allDay")).toBool() && end.isValid()) {
        object.insert(endKey, end.addDays(-1).toString(Qt::ISODate));
    }
    return object;
}

void print(const QJsonObject &object, QTextStream &out)
{
    constexpr int nameWidth = 17;
    // The order in which a person asks, not that of the letters.
    static const char *const names[] = {"summary",      "type",
                                        "start",        "end",
                                        "due",          "zone",
                                        "allDay",       "location",
                                        "rules",        "exclusionRules",
                                        "extraDates",   "excludedDates",
                                        "recurrenceId", "status",
                                        "completed",    "percentComplete",
                                        "priority",     "alarms",
                                        "organizer",    "attendees",
                                        "categories",   "url",
                                        "description",  "notebook",
                                        "uid",          "lastModified"};
    const QString newLine = QLatin1Char('\n') + QString(nameWidth, QLatin1Char(' '));
    for (const char *name : names) {
        const QString text = valueText(object.value(QLatin1String(name))).trimmed();
        if (text.isEmpty()) {
            continue;
        }
        QStringList lines = text.split(QLatin1Char('\n'));
        for (QString &line : lines) {
            line = printable(line.remove(QLatin1Char('\r')));
        }
        out << QString::fromLatin1(name).leftJustified(nameWidth) << lines.join(newLine) << '\n';
    }
}

/// A series before its exceptions; exceptions are also kept without a series, such as the
/// invitation to one meeting of it.
KCalCore::Incidence::List incidencesOf(const QString &uid, const mKCal::ExtendedCalendar &calendar)
{
    KCalCore::Incidence::List found;
    const auto loaded = calendar.rawIncidences();
    for (const auto &incidence : loaded) {
        if (incidence->uid() == uid) {
            found.append(incidence);
        }
    }
    std::stable_sort(found.begin(), found.end(), [](const auto &a, const auto &b) {
        return a->recurrenceId().isValid() && b->recurrenceId().isValid()
            ? a->recurrenceId() < b->recurrenceId()
            : b->recurrenceId().isValid() && !a->recurrenceId().isValid();
    });
    return found;
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    const Database database(console);
    if (!database.isOpen()) {
        return Failed;
    }
    const QString uid = parser.positionalArguments().constFirst();
    if (!database.storage()->load(uid)) {
        console.message(database.storage()->errorMessage());
        return Failed;
    }
    const auto calendar = database.calendar();
    const auto found = incidencesOf(uid, *calendar);
    if (found.isEmpty()) {
        console.message(QStringLiteral("there is no item with the UID '%1'").arg(uid));
        return Failed;
    }
    QJsonArray array;
    for (const auto &incidence : found) {
        array.append(incidenceDetailsToJson(*calendar, incidence));
    }
    if (parser.isSet(jsonOption)) {
        console.json(QJsonDocument(array));
        return Done;
    }
    for (int i = 0; i < array.size(); ++i) {
        console.out() << (i > 0 ? "\n" : "");
        print(readable(array.at(i).toObject(), *database.storage()), console.out());
    }
    return Done;
}
} // namespace

const Command showCommand = {
    "show", "Tells all about one item.", {1, 1, "no UID given"}, declare, run};
