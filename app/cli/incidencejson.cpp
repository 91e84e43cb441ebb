// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidencejson.h"

#include <KCalendarCore/ICalFormat>
#include <KCalendarCore/Todo>

#include <QJsonArray>
#include <QUrl>

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

QString shortText(const QDateTime &time, bool allDay, const QTimeZone &zone)
{
    if (allDay) {
        return time.date().toString(Qt::ISODate);
    }
    const QDateTime shown = time.timeSpec() == Qt::LocalTime ? time : time.toTimeZone(zone);
    return shown.toString(QStringLiteral("yyyy-MM-dd HH:mm"));
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

QJsonArray rulesToJson(const KCalCore::RecurrenceRule::List &rules)
{
    QJsonArray array;
    KCalCore::ICalFormat format;
    for (auto *rule : rules) {
        array.append(format.toString(rule).trimmed());
    }
    return array;
}

QJsonArray datesToJson(const KCalCore::DateList &dates, const QList<QDateTime> &dateTimes)
{
    QJsonArray array;
    for (const QDate &date : dates) {
        array.append(date.toString(Qt::ISODate));
    }
    for (const QDateTime &dateTime : dateTimes) {
        array.append(isoText(dateTime, false));
    }
    return array;
}

QString statusName(Incidence::Status status)
{
    switch (status) {
    case Incidence::StatusTentative:
        return QStringLiteral("tentative");
    case Incidence::StatusConfirmed:
        return QStringLiteral("confirmed");
    case Incidence::StatusCompleted:
        return QStringLiteral("completed");
    case Incidence::StatusNeedsAction:
        return QStringLiteral("needs action");
    case Incidence::StatusCanceled:
        return QStringLiteral("cancelled");
    case Incidence::StatusInProcess:
        return QStringLiteral("in process");
    case Incidence::StatusDraft:
        return QStringLiteral("draft");
    case Incidence::StatusFinal:
        return QStringLiteral("final");
    default:
        return {};
    }
}

/// Null for what is the same in every zone.
QJsonValue zoneToJson(const QDateTime &time, bool allDay)
{
    return allDay || !time.isValid() || time.timeSpec() == Qt::LocalTime
        ? QJsonValue()
        : QJsonValue(QString::fromUtf8(time.timeZone().id()));
}

void insertTimes(const Incidence::Ptr &incidence, QJsonObject *object)
{
    const bool allDay = incidence->allDay();
    if (const auto todo = incidence.dynamicCast<KCalCore::Todo>()) {
        const QDateTime start = todo->hasStartDate() ? todo->dtStart() : QDateTime();
        const QDateTime due = todo->hasDueDate() ? todo->dtDue() : QDateTime();
        object->insert(QStringLiteral("start"), timeOrNull(start, allDay));
        object->insert(QStringLiteral("due"), timeOrNull(due, allDay));
        object->insert(QStringLiteral("zone"), zoneToJson(due.isValid() ? due : start, allDay));
        object->insert(QStringLiteral("completed"), todo->isCompleted());
        object->insert(QStringLiteral("percentComplete"), todo->percentComplete());
        return;
    }
    const QDateTime start = incidence->dtStart();
    object->insert(QStringLiteral("start"), timeOrNull(start, allDay));
    object->insert(QStringLiteral("end"),
                   timeOrNull(incidence->dateTime(Incidence::RoleEnd), allDay));
    object->insert(QStringLiteral("zone"), zoneToJson(start, allDay));
}

void insertRecurrence(const Incidence::Ptr &incidence, QJsonObject *object)
{
    if (!incidence->recurs()) {
        return;
    }
    const auto *recurrence = incidence->recurrence();
    object->insert(QStringLiteral("rules"), rulesToJson(recurrence->rRules()));
    object->insert(QStringLiteral("exclusionRules"), rulesToJson(recurrence->exRules()));
    object->insert(QStringLiteral("extraDates"),
                   datesToJson(recurrence->rDates(), recurrence->rDateTimes()));
    object->insert(QStringLiteral("excludedDates"),
                   datesToJson(recurrence->exDates(), recurrence->exDateTimes()));
}
} // namespace

KDateTime recurrenceIdentifier(const mKCal::ExtendedCalendar &calendar,
                               const Incidence::Ptr &incidence)
{
    if (!incidence->hasRecurrenceId()) {
        return {};
    }
    const auto series = calendar.incidence(incidence->uid());
    const bool isDate = series ? series->allDay() : incidence->allDay();
    const QDateTime identifier = incidence->recurrenceId();
    return isDate ? KDateTime(identifier.date(), KDateTime::Spec::ClockTime())
                  : KDateTime(identifier);
}

QJsonObject incidenceToJson(const Incidence::Ptr &incidence, const QString &notebookUid,
                            const KDateTime &recurrenceId)
{
    return {{QStringLiteral("uid"), incidence->uid()},
            {QStringLiteral("recurrenceId"),
             recurrenceId.isValid()
                 ? QJsonValue(isoText(recurrenceId.dateTime(), recurrenceId.isDateOnly()))
                 : QJsonValue()},
            {QStringLiteral("type"), typeName(incidence)},
            {QStringLiteral("summary"), incidence->summary()},
            {QStringLiteral("location"), incidence->location()},
            {QStringLiteral("notebook"), notebookUid},
            {QStringLiteral("allDay"), incidence->allDay()}};
}

QJsonObject agendaEntryToJson(const mKCal::ExtendedCalendar &calendar, const AgendaEntry &entry)
{
    QJsonObject object =
        incidenceToJson(entry.incidence, entry.notebook, occurrenceIdentifier(calendar, entry));
    const bool allDay = entry.incidence->allDay();
    object.insert(QStringLiteral("start"), isoText(entry.start, allDay));
    object.insert(QStringLiteral("end"), isoText(entry.end, allDay));
    object.insert(QStringLiteral("occurrenceStart"), isoText(entry.occurrenceStart, allDay));
    object.insert(QStringLiteral("occurrenceEnd"), isoText(entry.occurrenceEnd, allDay));
    return object;
}

QJsonObject incidenceDetailsToJson(const mKCal::ExtendedCalendar &calendar,
                                   const Incidence::Ptr &incidence)
{
    QJsonObject object = incidenceToJson(incidence, calendar.notebook(incidence),
                                         recurrenceIdentifier(calendar, incidence));
    insertTimes(incidence, &object);
    insertRecurrence(incidence, &object);
    object.insert(QStringLiteral("description"), incidence->description());
    object.insert(QStringLiteral("categories"),
                  QJsonArray::fromStringList(incidence->categories()));
    object.insert(QStringLiteral("status"), statusName(incidence->status()));
    object.insert(QStringLiteral("priority"), incidence->priority());
    object.insert(QStringLiteral("url"), incidence->url().toString());
    object.insert(QStringLiteral("organizer"), incidence->organizer().fullName());
    object.insert(QStringLiteral("attendees"), attendeesToJson(incidence));
    object.insert(QStringLiteral("alarms"), alarmsToJson(incidence));
    object.insert(QStringLiteral("lastModified"), timeOrNull(incidence->lastModified(), false));
    return object;
}
