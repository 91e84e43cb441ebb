// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/datetimecolumns.h"
#include "sqlite/incidencecontent.h"

#include <mkcal/incidencecomparison.h>

#include <KCalendarCore/Event>
#include <KCalendarCore/Recurrence>
#include <KCalendarCore/Todo>

#include <QUrl>

#include <algorithm>

using namespace KCalCore;

namespace mKCal
{
namespace
{
using DateTimeColumns::identical;

template <typename Type> struct Getter {
    const char *name;
    bool (*same)(const Type &, const Type &);
};

template <typename List, typename Same> bool sameEach(const List &a, const List &b, Same same)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), same);
}

/// Compares what @p getter answers, a date-time in all that belongs to it.
template <auto getter, typename Type> bool same(const Type &a, const Type &b)
{
    if constexpr (std::is_same_v<decltype((a.*getter)()), QDateTime>)
        return identical((a.*getter)(), (b.*getter)());
    else
        return (a.*getter)() == (b.*getter)();
}

bool sameProperties(const CustomProperties &a, const CustomProperties &b)
{
    const auto kept = [](const CustomProperties &properties) {
        QMap<QByteArray, QPair<QString, QString>> result;
        const auto values = properties.customProperties();
        for (auto it = values.cbegin(); it != values.cend(); ++it) {
            if (!isVolatileProperty(it.key()))
                result.insert(it.key(),
                              {it.value(), properties.nonKDECustomPropertyParameters(it.key())});
        }
        return result;
    };
    return kept(a) == kept(b);
}

bool sameAlarm(const Alarm::Ptr &a, const Alarm::Ptr &b)
{
    return a->type() == b->type() && a->enabled() == b->enabled() && a->hasTime() == b->hasTime()
        && (!a->hasTime() || identical(a->time(), b->time()))
        && a->hasStartOffset() == b->hasStartOffset() && a->hasEndOffset() == b->hasEndOffset()
        && a->startOffset() == b->startOffset() && a->endOffset() == b->endOffset()
        && a->snoozeTime() == b->snoozeTime() && a->repeatCount() == b->repeatCount()
        && a->text() == b->text() && a->audioFile() == b->audioFile()
        && a->programFile() == b->programFile() && a->programArguments() == b->programArguments()
        && a->mailSubject() == b->mailSubject() && a->mailText() == b->mailText()
        && a->mailAddresses() == b->mailAddresses() && a->mailAttachments() == b->mailAttachments()
        && a->hasLocationRadius() == b->hasLocationRadius()
        && a->locationRadius() == b->locationRadius() && sameProperties(*a, *b);
}

bool sameAttendee(const Attendee &a, const Attendee &b)
{
    return a.name() == b.name() && a.email() == b.email() && a.role() == b.role()
        && a.status() == b.status() && a.cuTypeStr() == b.cuTypeStr() && a.RSVP() == b.RSVP()
        && a.delegate() == b.delegate() && a.delegator() == b.delegator()
        && attendeeUid(a) == attendeeUid(b)
        && sameProperties(a.customProperties(), b.customProperties());
}

bool sameAttachment(const Attachment &a, const Attachment &b)
{
    return a.isUri() == b.isUri() && a.uri() == b.uri() && a.data() == b.data()
        && a.mimeType() == b.mimeType() && a.label() == b.label()
        && a.showInline() == b.showInline() && a.isLocal() == b.isLocal();
}

bool sameConference(const Conference &a, const Conference &b)
{
    return a.uri() == b.uri() && a.label() == b.label() && a.features() == b.features()
        && a.language() == b.language()
        && sameProperties(a.customProperties(), b.customProperties());
}

bool sameRule(const RecurrenceRule *a, const RecurrenceRule *b)
{
    return a->recurrenceType() == b->recurrenceType() && a->frequency() == b->frequency()
        && a->duration() == b->duration() && a->allDay() == b->allDay()
        && identical(a->startDt(), b->startDt())
        // The end of a counted rule follows from the rest and is costly to ask for.
        && (a->duration() != 0 || identical(a->endDt(), b->endDt()))
        && a->weekStart() == b->weekStart() && a->bySeconds() == b->bySeconds()
        && a->byMinutes() == b->byMinutes() && a->byHours() == b->byHours()
        && a->byDays() == b->byDays() && a->byMonthDays() == b->byMonthDays()
        && a->byYearDays() == b->byYearDays() && a->byWeekNumbers() == b->byWeekNumbers()
        && a->byMonths() == b->byMonths() && a->bySetPos() == b->bySetPos()
        && a->rrule() == b->rrule();
}

bool samePeriods(const Recurrence &a, const Recurrence &b)
{
    const auto dates = a.rDateTimes();
    return std::all_of(dates.begin(), dates.end(), [&a, &b](const QDateTime &date) {
        const Period first = a.rDateTimePeriod(date);
        const Period second = b.rDateTimePeriod(date);
        return first.isValid() == second.isValid()
            && (!first.isValid()
                || (identical(first.start(), second.start()) && identical(first.end(), second.end())
                    && first.hasDuration() == second.hasDuration()
                    && (!first.hasDuration() || first.duration() == second.duration())));
    });
}

constexpr Getter<Recurrence> recurrenceGetters[] = {
    {"recurrence.startDateTime", same<&Recurrence::startDateTime>},
    {"recurrence.allDay", same<&Recurrence::allDay>},
    {"recurrence.rRules",
     [](const Recurrence &a, const Recurrence &b) {
         return sameEach(a.rRules(), b.rRules(), sameRule);
     }},
    {"recurrence.exRules",
     [](const Recurrence &a, const Recurrence &b) {
         return sameEach(a.exRules(), b.exRules(), sameRule);
     }},
    {"recurrence.rDates", same<&Recurrence::rDates>},
    {"recurrence.rDateTimes",
     [](const Recurrence &a, const Recurrence &b) {
         return sameEach(a.rDateTimes(), b.rDateTimes(), identical);
     }},
    {"recurrence.rDateTimePeriods", samePeriods},
    {"recurrence.exDates", same<&Recurrence::exDates>},
    {"recurrence.exDateTimes",
     [](const Recurrence &a, const Recurrence &b) {
         return sameEach(a.exDateTimes(), b.exDateTimes(), identical);
     }},
};

template <Incidence::RelType relation> bool sameRelation(const Incidence &a, const Incidence &b)
{
    return a.relatedTo(relation) == b.relatedTo(relation);
}

constexpr Getter<Incidence> incidenceGetters[] = {
    {"uid", same<&Incidence::uid, Incidence>},
    {"dtStart",
     [](const Incidence &a, const Incidence &b) {
         // A to-do answers with its next occurrence unless asked for the first one.
         return a.type() == IncidenceBase::TypeTodo || identical(a.dtStart(), b.dtStart());
     }},
    {"allDay", same<&Incidence::allDay, Incidence>},
    {"hasDuration", same<&Incidence::hasDuration, Incidence>},
    {"duration", same<&Incidence::duration, Incidence>},
    {"recurrenceId", same<&Incidence::recurrenceId, Incidence>},
    {"thisAndFuture", same<&Incidence::thisAndFuture, Incidence>},
    {"summary", same<&Incidence::summary, Incidence>},
    {"summaryIsRich", same<&Incidence::summaryIsRich, Incidence>},
    {"description", same<&Incidence::description, Incidence>},
    {"descriptionIsRich", same<&Incidence::descriptionIsRich, Incidence>},
    {"location", same<&Incidence::location, Incidence>},
    {"locationIsRich", same<&Incidence::locationIsRich, Incidence>},
    {"organizer", same<&Incidence::organizer, Incidence>},
    {"status", same<&Incidence::status, Incidence>},
    {"customStatus", same<&Incidence::customStatus, Incidence>},
    {"secrecy", same<&Incidence::secrecy, Incidence>},
    {"priority", same<&Incidence::priority, Incidence>},
    {"revision", same<&Incidence::revision, Incidence>},
    {"localOnly", same<&Incidence::localOnly, Incidence>},
    {"isReadOnly", same<&Incidence::isReadOnly, Incidence>},
    {"schedulingID", same<&Incidence::schedulingID, Incidence>},
    {"relatedTo(parent)", sameRelation<Incidence::RelTypeParent>},
    {"relatedTo(child)", sameRelation<Incidence::RelTypeChild>},
    {"relatedTo(sibling)", sameRelation<Incidence::RelTypeSibling>},
    {"url", same<&Incidence::url, Incidence>},
    {"color", same<&Incidence::color, Incidence>},
    {"hasGeo", same<&Incidence::hasGeo, Incidence>},
    {"geoLatitude", same<&Incidence::geoLatitude, Incidence>},
    {"geoLongitude", same<&Incidence::geoLongitude, Incidence>},
    {"categories", same<&Incidence::categories, Incidence>},
    {"resources", same<&Incidence::resources, Incidence>},
    {"comments", same<&Incidence::comments, Incidence>},
    {"contacts", same<&Incidence::contacts, Incidence>},
    {"customProperties",
     [](const Incidence &a, const Incidence &b) { return sameProperties(a, b); }},
    {"alarms",
     [](const Incidence &a, const Incidence &b) {
         return sameEach(a.alarms(), b.alarms(), sameAlarm);
     }},
    {"attendees",
     [](const Incidence &a, const Incidence &b) {
         return sameEach(a.attendees(), b.attendees(), sameAttendee);
     }},
    {"attachments",
     [](const Incidence &a, const Incidence &b) {
         return sameEach(a.attachments(), b.attachments(), sameAttachment);
     }},
    {"conferences",
     [](const Incidence &a, const Incidence &b) {
         return sameEach(a.conferences(), b.conferences(), sameConference);
     }},
};

constexpr Getter<Event> eventGetters[] = {
    {"hasEndDate", same<&Event::hasEndDate>},
    {"dtEnd", same<&Event::dtEnd>},
    {"transparency", same<&Event::transparency>},
};

constexpr Getter<Todo> todoGetters[] = {
    {"dtStart",
     [](const Todo &a, const Todo &b) { return identical(a.dtStart(true), b.dtStart(true)); }},
    {"dtDue", [](const Todo &a, const Todo &b) { return identical(a.dtDue(true), b.dtDue(true)); }},
    {"dtRecurrence", same<&Todo::dtRecurrence>},
    {"isCompleted", same<&Todo::isCompleted>},
    {"completed", same<&Todo::completed>},
    {"percentComplete", same<&Todo::percentComplete>},
};

/// Hands the name of each difference to @p sink, which answers whether to go on.
template <typename Type, std::size_t size, typename Sink>
bool compare(const Getter<Type> (&getters)[size], const Type &a, const Type &b, const Sink &sink)
{
    return std::all_of(std::begin(getters), std::end(getters), [&](const Getter<Type> &getter) {
        return getter.same(a, b) || sink(getter.name);
    });
}

template <typename Sink> void compareAll(const Incidence &a, const Incidence &b, const Sink &sink)
{
    if (a.type() != b.type()) {
        sink("type");
        return;
    }
    bool going = compare(incidenceGetters, a, b, sink);
    if (going && a.type() == IncidenceBase::TypeEvent)
        going = compare(eventGetters, static_cast<const Event &>(a), static_cast<const Event &>(b),
                        sink);
    else if (going && a.type() == IncidenceBase::TypeTodo)
        going =
            compare(todoGetters, static_cast<const Todo &>(a), static_cast<const Todo &>(b), sink);
    if (going)
        compare(recurrenceGetters, *a.recurrence(), *b.recurrence(), sink);
}
} // namespace

QStringList differences(const Incidence &a, const Incidence &b)
{
    QStringList names;
    compareAll(a, b, [&names](const char *name) {
        names.append(QLatin1String(name));
        return true;
    });
    return names;
}

bool sameContent(const Incidence &a, const Incidence &b)
{
    bool same = true;
    compareAll(a, b, [&same](const char *) { return same = false; });
    return same;
}
} // namespace mKCal
