// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "textcarrier.h"

#include "attendeetext.h"
#include "contentline.h"

#include <KCalendarCore/Todo>

#include <algorithm>

namespace mKCal
{
using KCalCore::Incidence;

const char *const TextCarrier::indexProperty = "X-DASKEL-COMPONENT";

namespace
{
// A noncharacter of Unicode, which no text for interchange contains.
const QByteArray commaInside = QByteArrayLiteral("\xEF\xB7\x90");
constexpr QChar commaInsideCharacter(0xFDD0);
constexpr QChar noSummary(0xFDD1);

constexpr const char *resourcesProperty = "X-DASKEL-RESOURCES";
constexpr const char *completedProperty = "X-DASKEL-COMPLETED";
const QByteArray hexParameter = QByteArrayLiteral("X-DASKEL-HEX=");
const QByteArray relatedPrefix = QByteArrayLiteral("X-DASKEL-RELATED-");

constexpr const char *carriedProperties[] = {"RESOURCES", "RELATED-TO", "COMPLETED"};

struct RelationKind {
    const char *property;
    Incidence::RelType type;
};
constexpr RelationKind relationKinds[] = {
    {"X-DASKEL-RELATED-PARENT", Incidence::RelTypeParent},
    {"X-DASKEL-RELATED-CHILD", Incidence::RelTypeChild},
    {"X-DASKEL-RELATED-SIBLING", Incidence::RelTypeSibling},
};

const QString dateTimeFormat = QStringLiteral("yyyyMMddTHHmmss");
constexpr const char *unknownCompletionText = "19700101T000000Z";

QDateTime unknownCompletion()
{
    return QDateTime::fromSecsSinceEpoch(0, Qt::UTC);
}

QByteArray renamed(const QByteArray &line, const QByteArray &propertyName)
{
    return propertyName + line.mid(ContentLine::name(line).size());
}

QString takeProperty(const Incidence::Ptr &incidence, const char *property)
{
    QString value = incidence->nonKDECustomProperty(property);
    if (!value.isEmpty()) {
        incidence->removeNonKDECustomProperty(property);
    }
    return value;
}

QStringList commasBack(QStringList texts)
{
    return texts.replaceInStrings(commaInsideCharacter, QStringLiteral(","));
}

QStringList commasAway(QStringList texts)
{
    return texts.replaceInStrings(QStringLiteral(","), commaInsideCharacter);
}

/// ;A=b;C="d, e" becomes one parameter that has nothing to be quoted.
QByteArray parametersAsHex(const QByteArray &parameters)
{
    return parameters.isEmpty() ? parameters : hexParameter + parameters.toHex();
}

QByteArray parametersFromHex(const QByteArray &parameter)
{
    return parameter.startsWith(hexParameter)
        ? QByteArray::fromHex(parameter.mid(hexParameter.size()))
        : parameter;
}

template <typename Convert> void convertParameters(const Incidence::Ptr &incidence, Convert convert)
{
    const auto properties = incidence->customProperties();
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        const QByteArray before = incidence->nonKDECustomPropertyParameters(it.key()).toUtf8();
        if (!before.isEmpty()) {
            incidence->setNonKDECustomProperty(it.key(), it.value(),
                                               QString::fromUtf8(convert(before)));
        }
    }
}

/// An X-property that ICalFormat does not know.
bool isForeignProperty(const QByteArray &line)
{
    return qstrnicmp(line.constData(), "X-", 2) == 0 && !line.startsWith("X-KDE-");
}

QByteArray customPropertyBeforeReading(const QByteArray &line)
{
    const int nameSize = line.indexOf(';');
    const int valueStart = ContentLine::valueStart(line);
    if (nameSize < 0 || valueStart < nameSize) {
        return line;
    }
    return line.left(nameSize + 1)
        + parametersAsHex(line.mid(nameSize + 1, valueStart - nameSize - 2))
        + line.mid(valueStart - 1);
}

QByteArray customPropertyAfterWriting(const QByteArray &line)
{
    const int start = line.indexOf(';' + hexParameter) + 1;
    const int valueStart = ContentLine::valueStart(line);
    if (start == 0 || start > valueStart) {
        return line;
    }
    return line.left(start) + parametersFromHex(line.mid(start, valueStart - start - 1))
        + line.mid(valueStart - 1);
}

QByteArray relationBeforeReading(const QByteArray &line, bool isJournal)
{
    const QByteArray kind = ContentLine::parameter(line, "RELTYPE");
    const bool isParent = kind.isEmpty() || kind.toUpper() == "PARENT";
    if (isParent && !isJournal) {
        return line;
    }
    const QByteArray plain = QByteArray(line).replace(";RELTYPE=" + kind, QByteArray());
    return customPropertyBeforeReading(
        renamed(plain, relatedPrefix + (isParent ? QByteArray("PARENT") : kind.toUpper())));
}

/// The text of a list of texts: commas part them, semicolons are escaped, which ICalFormat omits.
QByteArray listAfterWriting(const QByteArray &line)
{
    const int start = ContentLine::valueStart(line);
    QByteArray value = line.mid(start);
    value.replace(';', "\\;");
    value.replace(commaInside, "\\,");
    return line.left(start) + value;
}

void copyRecurrence(const KCalCore::Recurrence &from, KCalCore::Recurrence *to)
{
    for (const auto *rule : from.rRules()) {
        to->addRRule(new KCalCore::RecurrenceRule(*rule));
    }
    for (const auto *rule : from.exRules()) {
        to->addExRule(new KCalCore::RecurrenceRule(*rule));
    }
    to->setRDates(from.rDates());
    to->setExDates(from.exDates());
    to->setExDateTimes(from.exDateTimes());
    for (const QDateTime &time : from.rDateTimes()) {
        const auto period = from.rDateTimePeriod(time);
        period.isValid() ? to->addRDateTimePeriod(period) : to->addRDateTime(time);
    }
}

/// The identifier of an all-day occurrence is a date, like its DTSTART (RFC 5545 section 3.8.4.4).
QByteArray recurrenceIdAsDate(const QByteArray &line)
{
    const QByteArray range = ContentLine::parameter(line, "RANGE");
    return "RECURRENCE-ID;VALUE=DATE" + (range.isEmpty() ? QByteArray() : ";RANGE=" + range) + ':'
        + ContentLine::value(line).left(8);
}

/// UNTIL=20110501T070000Z as a local time.
QByteArray floatingUntil(const QByteArray &part)
{
    QDateTime until = QDateTime::fromString(QString::fromLatin1(part.mid(6, 15)), dateTimeFormat);
    until.setTimeSpec(Qt::UTC);
    return "UNTIL=" + until.toLocalTime().toString(dateTimeFormat).toLatin1();
}

/// BYHOUR=9,9,12,12 becomes BYHOUR=9,12, and a series of floating times has a floating end
/// (RFC 5545 section 3.3.10).
QByteArray ruleAfterWriting(const QByteArray &line, bool isFloating)
{
    const int start = ContentLine::valueStart(line);
    QList<QByteArray> parts = line.mid(start).split(';');
    for (QByteArray &part : parts) {
        if (isFloating && part.startsWith("UNTIL=") && part.endsWith('Z')) {
            part = floatingUntil(part);
        }
        const int valuesStart = part.indexOf('=') + 1;
        QList<QByteArray> values;
        for (const QByteArray &value : part.mid(valuesStart).split(',')) {
            if (!values.contains(value)) {
                values.append(value);
            }
        }
        part = part.left(valuesStart) + values.join(',');
    }
    return line.left(start) + parts.join(';');
}
/// The text of the component with everything that is carried in properties of ours.
QByteArray disguised(const QByteArray &component)
{
    const bool isJournal = component.startsWith("BEGIN:VJOURNAL");
    const bool recurs = !ContentLine::find(component, "RRULE").isEmpty()
        || !ContentLine::find(component, "RDATE").isEmpty();
    QByteArray result;
    QByteArray resources;
    int depth = 0;
    QList<QByteArray> lines = ContentLine::split(component);
    const QByteArray end = lines.takeLast();
    for (QByteArray line : qAsConst(lines)) {
        const QByteArray name = ContentLine::name(line);
        depth += name == "BEGIN" ? 1 : name == "END" ? -1 : 0;
        if (depth > 1) {
            // Properties of an alarm are as they should be.
        } else if (name == "CATEGORIES") {
            line.replace("\\,", commaInside);
        } else if (name == "RESOURCES") {
            resources += (resources.isEmpty() ? "" : ",")
                + ContentLine::value(line).replace("\\,", commaInside);
            continue;
        } else if (name == "RELATED-TO") {
            line = relationBeforeReading(line, isJournal);
            // An incidence has one relation of each kind; ICalFormat would join several.
            if (result.contains("\r\n" + ContentLine::name(line))) {
                continue;
            }
        } else if (name == "COMPLETED" && recurs) {
            line = renamed(line, completedProperty);
        } else if (name == "ATTENDEE") {
            line = AttendeeText::beforeReading(line);
        } else if (isForeignProperty(line)) {
            line = customPropertyBeforeReading(line);
        }
        result += line + "\r\n";
    }
    // Several RESOURCES lines are one list, and a property of ours is kept but once.
    if (!resources.isEmpty()) {
        result += QByteArray(resourcesProperty) + ':' + resources + "\r\n";
    }
    return result + end + "\r\n";
}
} // namespace

bool TextCarrier::carries(const QByteArray &line)
{
    if (ContentLine::isNamed(line, "ATTENDEE")) {
        return AttendeeText::beforeReading(line) != line;
    }
    if (ContentLine::isNamed(line, "CATEGORIES")) {
        return line.contains("\\,");
    }
    if (isForeignProperty(line)) {
        return line.startsWith("X-DASKEL-") || line.left(line.indexOf(':')).contains(';');
    }
    return std::any_of(std::begin(carriedProperties), std::end(carriedProperties),
                       [&line](const char *name) { return ContentLine::isNamed(line, name); });
}

void TextCarrier::beforeReading(CalendarComponent *component)
{
    if (component->hasCarriedProperties) {
        component->text = disguised(component->text);
    }
    QByteArray added;
    if (component->uid.isEmpty()) {
        added += "UID:" + component->stableUid() + "\r\n";
    }
    if (!component->text.contains("\nSUMMARY")) {
        added += "SUMMARY:" + QString(noSummary).toUtf8() + "\r\n";
    }
    // At the end, where they prevail over properties of these names that are there already.
    component->text.insert(component->text.lastIndexOf("END:"), added);
}
void TextCarrier::afterReading(const CalendarComponent &component, const Incidence::Ptr &incidence)
{
    if (incidence->summary() == noSummary) {
        incidence->setSummary(QString(), false);
    }
    if (!component.hasCarriedProperties) {
        return;
    }
    takeProperty(incidence, indexProperty);
    AttendeeText::afterReading(incidence);
    convertParameters(incidence, parametersFromHex);
    if (incidence->categories().join(QChar()).contains(commaInsideCharacter)) {
        incidence->setCategories(commasBack(incidence->categories()));
    }
    const QString resources = takeProperty(incidence, resourcesProperty);
    if (!resources.isEmpty()) {
        incidence->setResources(commasBack(resources.split(QLatin1Char(','))));
    }
    for (const RelationKind &kind : relationKinds) {
        const QString uid = takeProperty(incidence, kind.property);
        if (!uid.isEmpty()) {
            incidence->setRelatedTo(uid, kind.type);
        }
    }
    const QString completed = takeProperty(incidence, completedProperty);
    if (!completed.isEmpty()) {
        QDateTime time = QDateTime::fromString(completed.left(15), dateTimeFormat);
        time.setTimeSpec(Qt::UTC);
        setCompletedForGood(incidence, time);
    }
}

void TextCarrier::beforeWriting(const Incidence::Ptr &clone)
{
    AttendeeText::beforeWriting(clone);
    convertParameters(clone, parametersAsHex);
    clone->setCategories(commasAway(clone->categories()));
    if (!clone->resources().isEmpty()) {
        clone->setNonKDECustomProperty(resourcesProperty,
                                       commasAway(clone->resources()).join(QLatin1Char(',')));
    }
    for (const RelationKind &kind : relationKinds) {
        const QString uid = clone->relatedTo(kind.type);
        if (kind.type != Incidence::RelTypeParent && !uid.isEmpty()) {
            clone->setNonKDECustomProperty(kind.property, uid);
        }
    }
    const auto todo = clone.dynamicCast<KCalCore::Todo>();
    if (todo && todo->isCompleted() && !todo->hasCompletedDate()) {
        setCompletedForGood(clone, unknownCompletion());
    }
}

QByteArray TextCarrier::afterWriting(const QByteArray &component)
{
    const QByteArray start = ContentLine::find(component, "DTSTART");
    const bool isAllDay = start.contains("VALUE=DATE:");
    const bool isFloating = !isAllDay && !start.contains("TZID=") && !start.endsWith('Z');
    QByteArray result;
    const QList<QByteArray> lines = ContentLine::split(component);
    for (QByteArray line : lines) {
        const QByteArray name = ContentLine::name(line);
        if (name == indexProperty || (name == "COMPLETED" && line.endsWith(unknownCompletionText))
            || line == "X-KDE-KCALCORE-ENABLED:TRUE") {
            continue;
        }
        if (name == "CATEGORIES") {
            line = listAfterWriting(line);
        } else if (name == resourcesProperty) {
            line = listAfterWriting(renamed(line, "RESOURCES"));
        } else if (name.startsWith(relatedPrefix)) {
            line = renamed(customPropertyAfterWriting(line),
                           "RELATED-TO;RELTYPE=" + name.mid(relatedPrefix.size()));
        } else if (name == "RECURRENCE-ID" && isAllDay) {
            line = recurrenceIdAsDate(line);
        } else if (name == "RRULE" || name == "EXRULE") {
            line = ruleAfterWriting(line, isFloating);
        } else if (name == "ATTENDEE") {
            line = AttendeeText::afterWriting(line);
        } else {
            line = customPropertyAfterWriting(line);
        }
        result += ContentLine::folded(line);
    }
    return result;
}

void setCompletedForGood(const Incidence::Ptr &incidence, const QDateTime &completed)
{
    const auto todo = incidence.dynamicCast<KCalCore::Todo>();
    if (!todo) {
        return;
    }
    const bool recurs = todo->recurs();
    const KCalCore::Recurrence recurrence(*todo->recurrence());
    todo->clearRecurrence();
    todo->setCompleted(completed);
    if (recurs) {
        copyRecurrence(recurrence, todo->recurrence());
    }
}
} // namespace mKCal
