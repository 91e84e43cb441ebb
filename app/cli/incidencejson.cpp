// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidencejson.h"

#include <KCalendarCore/ICalFormat>
#include <KCalendarCore/Todo>

#include <QJsonArray>

using KCalCore::Incidence;

QString isoText(const QDateTime &time, bool allDay)
{
    if (!time.isValid()) {
        return {};
    }
    if (allDay) {
        return time.date().toString(Qt::ISODate);
    }
    return time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODate);
}

QString typeName(const Incidence::Ptr &incidence)
{
    switch (incidence->type()) {
    case Incidence::TypeTodo:
        return QStringLiteral("todo");
    case Incidence::TypeJournal:
        return QStringLiteral("journal");
    default:
        return QStringLiteral("event");
    }
}

namespace
{
QJsonValue timeOrNull(const QDateTime &time, bool allDay)
{
    return time.isValid() ? QJsonValue(isoText(time, allDay)) : QJsonValue();
}

QJsonArray attendeesToJson(const Incidence::Ptr &incidence)
{
    QJsonArray array;
    const auto attendees = incidence->attendees();
    for (const auto &attendee : attendees) {
        array.append(QJsonObject{{QStringLiteral("name"), attendee.name()},
                                 {QStringLiteral("email"), attendee.email()}});
    }
    return array;
}

QJsonArray alarmsToJson(const Incidence::Ptr &incidence)
{
    QJsonArray array;
    const auto alarms = incidence->alarms();
    for (const auto &alarm : alarms) {
        QJsonObject object{{QStringLiteral("enabled"), alarm->enabled()}};
        if (alarm->hasTime()) {
            object.insert(QStringLiteral("time"), isoText(alarm->time(), false));
        } else {
            object.insert(
                alarm->hasEndOffset() ? QStringLiteral("secondsFromEnd")
                                      : QStringLiteral("secondsFromStart"),
                (alarm->hasEndOffset() ? alarm->endOffset() : alarm->startOffset()).asSeconds());
        }
        array.append(object);
    }
    return array;
}

QJsonArray rulesToJson(const Incidence::Ptr &incidence)
{
    QJsonArray array;
    if (incidence->recurs()) {
        KCalCore::ICalFormat format;
        const auto rules = incidence->recurrence()->rRules();
        for (auto *rule : rules) {
            array.append(format.toString(rule).trimmed());
        }
    }
    return array;
}
} // namespace

QJsonObject incidenceToJson(const Incidence::Ptr &incidence, const QString &notebookUid,
                            const KDateTime &recurrenceId)
{
    return {{QStringLiteral("uid"), incidence->uid()},
            {QStringLiteral("recurrenceId"),
             recurrenceId.isValid()
                 ? QJsonValue(isoText(recurrenceId.dateTime(), incidence->allDay()))
                 : QJsonValue()},
            {QStringLiteral("type"), typeName(incidence)},
            {QStringLiteral("summary"), incidence->summary()},
            {QStringLiteral("location"), incidence->location()},
            {QStringLiteral("notebook"), notebookUid},
            {QStringLiteral("allDay"), incidence->allDay()}};
}

QJsonObject agendaEntryToJson(const AgendaEntry &entry)
{
    QJsonObject object = incidenceToJson(entry.incidence, entry.notebook, entry.recurrenceId);
    const bool allDay = entry.incidence->allDay();
    object.insert(QStringLiteral("start"), isoText(entry.start, allDay));
    object.insert(QStringLiteral("end"), isoText(entry.end, allDay));
    object.insert(QStringLiteral("occurrenceStart"), isoText(entry.occurrenceStart, allDay));
    object.insert(QStringLiteral("occurrenceEnd"), isoText(entry.occurrenceEnd, allDay));
    return object;
}

QJsonObject incidenceDetailsToJson(const Incidence::Ptr &incidence, const QString &notebookUid)
{
    QJsonObject object =
        incidenceToJson(incidence, notebookUid, KDateTime(incidence->recurrenceId()));
    const bool allDay = incidence->allDay();
    object.insert(QStringLiteral("start"), timeOrNull(incidence->dtStart(), allDay));
    object.insert(QStringLiteral("end"),
                  timeOrNull(incidence->dateTime(Incidence::RoleEnd), allDay));
    object.insert(QStringLiteral("zone"), QString::fromUtf8(incidence->dtStart().timeZone().id()));
    if (const auto todo = incidence.dynamicCast<KCalCore::Todo>()) {
        object.insert(QStringLiteral("completed"), todo->isCompleted());
        object.insert(QStringLiteral("percentComplete"), todo->percentComplete());
    }
    object.insert(QStringLiteral("description"), incidence->description());
    object.insert(QStringLiteral("categories"),
                  QJsonArray::fromStringList(incidence->categories()));
    object.insert(QStringLiteral("organizer"), incidence->organizer().fullName());
    object.insert(QStringLiteral("attendees"), attendeesToJson(incidence));
    object.insert(QStringLiteral("alarms"), alarmsToJson(incidence));
    object.insert(QStringLiteral("rules"), rulesToJson(incidence));
    object.insert(QStringLiteral("lastModified"), timeOrNull(incidence->lastModified(), false));
    return object;
}
