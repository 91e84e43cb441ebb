// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_COMPONENTCOLUMNS_H
#define MKCAL_COMPONENTCOLUMNS_H

#include <QByteArray>

#include <array>

namespace mKCal
{
/// The columns of Components in the order in which they are read and written. Those with a time
/// zone are two that follow each other.
namespace ComponentColumn
{
enum Index {
    // what tells rows apart
    Notebook,
    Uid,
    RecId,
    State,
    StateTime,
    Change,
    // what the incidence says
    Type,
    Flags,
    AllDay,
    Start,
    StartTz,
    End,
    EndTz,
    RecurrenceId,
    RecurrenceIdTz,
    RecurrenceDue,
    RecurrenceDueTz,
    HasDuration,
    Duration,
    DurationDaily,
    ThisAndFuture,
    Summary,
    SummaryRich,
    Description,
    DescriptionRich,
    Location,
    LocationRich,
    OrganizerName,
    OrganizerEmail,
    Status,
    CustomStatus,
    Secrecy,
    Transparency,
    Priority,
    PercentComplete,
    CompletedTime,
    Revision,
    Created,
    LastModified,
    LocalOnly,
    ReadOnly,
    SchedulingId,
    Parent,
    Child,
    Sibling,
    Url,
    Color,
    Latitude,
    Longitude,
    // what is computed for looking it up
    KeySpan,
    KeyStart,
    KeyEnd,
    KeyUntil,
    KeyCompleted,
    Count,
};

constexpr int firstOfContent = Change;
constexpr int firstKey = KeySpan;

constexpr std::array<const char *, Count> names = {
    "notebook",      "uid",          "recId",         "state",          "stateTime",
    "change",        "type",         "flags",         "allDay",         "startWall",
    "startTz",       "endWall",      "endTz",         "recIdWall",      "recIdTz",
    "dueWall",       "dueTz",        "hasDuration",   "duration",       "durationDaily",
    "thisAndFuture", "summary",      "summaryRich",   "description",    "descriptionRich",
    "location",      "locationRich", "organizerName", "organizerEmail", "status",
    "customStatus",  "secrecy",      "transparency",  "priority",       "percentComplete",
    "completedTime", "revision",     "created",       "lastModified",   "localOnly",
    "readOnly",      "schedulingId", "parent",        "child",          "sibling",
    "url",           "color",        "latitude",      "longitude",      "span",
    "start",         "end",          "until",         "completed"};

/// The names from @p first to before @p end, each followed by @p suffix, separated by commas.
inline QByteArray list(int first, int end, const char *suffix = "")
{
    QByteArray text;
    for (int i = first; i < end; ++i)
        text += (i > first ? QByteArray(", ") : QByteArray()) + names[std::size_t(i)] + suffix;
    return text;
}
} // namespace ComponentColumn

/// What `flags` says: the child tables that hold rows of the component, so that the others need
/// not be asked.
namespace ComponentFlag
{
enum {
    Alarms = 1,
    Attendees = 2,
    Rules = 4,
    Dates = 8,
    Props = 16,
    Attachments = 32,
    Conferences = 64,
};
} // namespace ComponentFlag

/// Props: whose property it is, and what kind.
namespace PropOwner
{
enum { Component, Alarm, Attendee, Conference };
}
namespace PropKind
{
enum { Property, Category, Resource, Comment, Contact, MailAddress, MailAttachment };
}

/// Dates.kind
namespace DateKind
{
enum { RDate, RDateTime, RPeriod, ExDate, ExDateTime };
}

namespace RuleText
{
constexpr std::array<const char *, 7> weekDays = {"MO", "TU", "WE", "TH", "FR", "SA", "SU"};
}

/// Alarm.relation
namespace AlarmRelation
{
enum { OwnTime, ToStart, ToEnd };
}

/// Components.type, the same numbers as IncidenceBase::IncidenceType.
namespace ComponentType
{
enum { Event, Todo, Journal };
}
} // namespace mKCal

#endif
