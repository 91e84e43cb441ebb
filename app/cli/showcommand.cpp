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
    static const QStringList Names = {QStringLiteral("summary"),
                                      QStringLiteral("type"),
                                      QStringLiteral("start"),
                                      QStringLiteral("end"),
                                      QStringLiteral("zone"),
                                      QStringLiteral("allDay"),
                                      QStringLiteral("location"),
                                      QStringLiteral("rules"),
                                      QStringLiteral("recurrenceId"),
                                      QStringLiteral("completed"),
                                      QStringLiteral("percentComplete"),
                                      QStringLiteral("alarms"),
                                      QStringLiteral("organizer"),
                                      QStringLiteral("attendees"),
                                      QStringLiteral("categories"),
                                      QStringLiteral("description"),
                                      QStringLiteral("notebook"),
                                      QStringLiteral("uid"),
                                      QStringLiteral("lastModified")};
    for (const QString &name : Names) {
        const QString text = valueText(object.value(name));
        if (!text.isEmpty()) {
            out << name.leftJustified(NameWidth) << text << '\n';
        }
    }
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    if (parser.positionalArguments().size() != 1) {
        console.message(QStringLiteral("give the UID of one item"));
        return WrongUsage;
    }
    const Database database(console);
    if (!database.isOpen()) {
        return Failed;
    }
    const QString uid = parser.positionalArguments().first();
    database.storage()->load(uid);
    const auto calendar = database.calendar();
    const auto incidence = calendar->incidence(uid);
    KCalCore::Incidence::List found;
    if (incidence) {
        found.append(incidence);
        found += calendar->instances(incidence);
    }
    if (found.isEmpty()) {
        console.message(QStringLiteral("there is no item with the UID '%1'").arg(uid));
        return Failed;
    }
    QJsonArray array;
    for (const auto &each : qAsConst(found)) {
        array.append(incidenceDetailsToJson(each, calendar->notebook(each)));
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

const Command showCommand = {"show", "Tells all about one item.", declare, run};
