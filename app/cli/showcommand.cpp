// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "command.h"
#include "console.h"
#include "database.h"
#include "incidencejson.h"

#include <QCommandLineParser>
#include <QJsonArray>

#include <algorithm>

namespace
{
const QString JsonOption = QStringLiteral("json");

void declare(QCommandLineParser &parser)
{
    parser.addOption({JsonOption, QStringLiteral("Write JSON.")});
    parser.addPositionalArgument(QStringLiteral("uid"), QStringLiteral("UID of the item."),
                                 QStringLiteral("UID"));
}

QString valueText(const QJsonValue &value)
{
    if (value.isArray()) {
        QStringList texts;
        const QJsonArray array = value.toArray();
        for (const auto &element : array) {
            texts.append(valueText(element));
        }
        return texts.join(QStringLiteral("; "));
    }
    if (value.isObject()) {
        QStringList texts;
        const QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            texts.append(it.key() + QLatin1Char(' ') + valueText(it.value()));
        }
        return texts.join(QStringLiteral(", "));
    }
    if (value.isBool()) {
        return value.toBool() ? QStringLiteral("yes") : QStringLiteral("no");
    }
    return value.toVariant().toString();
}

void print(const QJsonObject &object, QTextStream &out)
{
    constexpr int NameWidth = 17;
    // The order in which a person asks, not that of the letters.
    static const char *const Names[] = {"summary",      "type",
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
    const QString newLine = QLatin1Char('\n') + QString(NameWidth, QLatin1Char(' '));
    for (const char *name : Names) {
        const QString text = valueText(object.value(QLatin1String(name))).trimmed();
        if (text.isEmpty()) {
            continue;
        }
        QStringList lines = text.split(QLatin1Char('\n'));
        for (QString &line : lines) {
            line = printable(line.remove(QLatin1Char('\r')));
        }
        out << QString::fromLatin1(name).leftJustified(NameWidth) << lines.join(newLine) << '\n';
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
    if (parser.isSet(JsonOption)) {
        console.json(QJsonDocument(array));
        return Done;
    }
    for (int i = 0; i < array.size(); ++i) {
        console.out() << (i > 0 ? "\n" : "");
        print(array.at(i).toObject(), console.out());
    }
    return Done;
}
} // namespace

const Command showCommand = {
    "show", "Tells all about one item.", {1, 1, "no UID given"}, declare, run};
