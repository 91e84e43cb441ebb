// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidencereader.h"

#include "contentline.h"
#include "missingtimes.h"
#include "textcarrier.h"

#include <mkcal/calendarexporter.h>

#include <KCalendarCore/Event>
#include <KCalendarCore/Exceptions>
#include <KCalendarCore/ICalFormat>
#include <KCalendarCore/MemoryCalendar>

#include <algorithm>

namespace mKCal
{
using KCalCore::Exception;
using KCalCore::Incidence;

namespace
{
// Beyond some hundreds ICalFormat gets slower again.
constexpr int batchSize = 250;

struct ExceptionText {
    Exception::ErrorCode code;
    const char *text;
};
constexpr ExceptionText exceptionTexts[] = {
    {Exception::ParseErrorIcal, "its lines are not iCalendar properties"},
    {Exception::LibICalError, "its lines are not iCalendar properties"},
    {Exception::ParseErrorUnableToParse, "its lines are not iCalendar properties"},
    {Exception::ParseErrorNotIncidence, "it is no event, to-do or journal"},
    {Exception::ParseErrorKcal, "it does not make sense as an event, to-do or journal"},
};

QString textOf(const Exception *exception)
{
    const auto *row = std::find_if(
        std::begin(exceptionTexts), std::end(exceptionTexts),
        [exception](const ExceptionText &it) { return exception && it.code == exception->code(); });
    return row == std::end(exceptionTexts) ? QStringLiteral("it cannot be read")
                                           : QLatin1String(row->text);
}

/// Takes what ICalFormat reads, in the order of the text for each kind. A calendar would index it,
/// and keep but one of two with the same identity.
class ReadIncidences : public KCalCore::MemoryCalendar
{
public:
    ReadIncidences() : KCalCore::MemoryCalendar(QTimeZone::systemTimeZone()) { }

    bool addEvent(const KCalCore::Event::Ptr &event) override { return add("VEVENT", event); }
    bool addTodo(const KCalCore::Todo::Ptr &todo) override { return add("VTODO", todo); }
    bool addJournal(const KCalCore::Journal::Ptr &journal) override
    {
        return add("VJOURNAL", journal);
    }

    bool isEmpty() const { return m_incidences.isEmpty(); }
    /// Null when there is no further one of that kind.
    Incidence::Ptr takeNext(const QByteArray &componentName)
    {
        return m_incidences.value(componentName).value(m_taken[componentName]++);
    }

private:
    bool add(const char *componentName, const Incidence::Ptr &incidence)
    {
        m_incidences[componentName].append(incidence);
        return true;
    }

    QHash<QByteArray, Incidence::List> m_incidences;
    QHash<QByteArray, int> m_taken;
};

QString quoted(const QByteArray &value)
{
    constexpr int longest = 40;
    const QString text = QString::fromUtf8(value);
    return text.size() <= longest ? text : text.left(longest) + QChar(0x2026);
}

/// Why an incidence that ICalFormat made is not what its component says; empty when it is.
QString refusal(const CalendarComponent &component, const Incidence::Ptr &incidence)
{
    if (!component.recurrenceId.isEmpty() && !incidence->recurrenceId().isValid()) {
        return QStringLiteral("its RECURRENCE-ID cannot be read: %1")
            .arg(quoted(component.recurrenceId));
    }
    if (incidence->type() != KCalCore::IncidenceBase::TypeEvent || incidence->dtStart().isValid()) {
        return QString();
    }
    const QByteArray start = ContentLine::find(component.text, "DTSTART");
    return start.isEmpty() ? QStringLiteral("it has no start (DTSTART)")
                           : QStringLiteral("its start cannot be read: %1").arg(quoted(start));
}

bool hasSenselessEnd(const Incidence::Ptr &incidence)
{
    constexpr int lastYear = 9999;
    const auto event = incidence.dynamicCast<KCalCore::Event>();
    return event && (event->dtEnd() < event->dtStart() || event->dtEnd().date().year() > lastYear);
}

/// @param incidence as ICalFormat made it.
QStringList lossesOf(const CalendarComponent &component, const Incidence::Ptr &incidence)
{
    QStringList losses;
    if (hasSenselessEnd(incidence)) {
        losses += QStringLiteral("its end is before its start or too far away, and was left out");
    }
    if (component.wasLatin1) {
        losses += QStringLiteral("it is not valid UTF-8 and was taken for Latin-1");
    }
    if (!incidence->allDay() && incidence->dtStart().timeSpec() == Qt::LocalTime) {
        const QByteArray start = ContentLine::find(component.text, "DTSTART");
        const QByteArray zone = ContentLine::parameter(start, "TZID");
        if (!zone.isEmpty()) {
            losses += QStringLiteral("its time zone is not known, its times are taken as local: %1")
                          .arg(quoted(zone));
        }
    }
    if (component.rule.contains("RSCALE=") && !component.rule.contains("RSCALE=GREGORIAN")) {
        losses += QStringLiteral("it repeats by the Gregorian calendar, not by its own");
    }
    return losses;
}

/// @param incidence in our convention.
QStringList lostRule(const CalendarComponent &component, const Incidence::Ptr &incidence)
{
    if (component.rule.isEmpty() || !incidence->recurrence()->rRules().isEmpty()) {
        return QStringList();
    }
    return {QStringLiteral("it does not repeat, its rule cannot be followed: %1")
                .arg(quoted(component.rule))};
}
} // namespace

void IncidenceReader::add(const CalendarComponent &component, TimeZoneTexts &timeZones)
{
    Entry entry;
    entry.component = component;
    entry.timeZones = timeZones.translate(&entry.component.text);
    TextCarrier::beforeReading(&entry.component);
    for (auto it = entry.timeZones.cbegin(); it != entry.timeZones.cend(); ++it) {
        m_timeZonesDiffer |= m_timeZones.value(it.key(), it.value()) != it.value();
        m_timeZones.insert(it.key(), it.value());
    }
    m_batch.append(entry);
}

bool IncidenceReader::isFull() const
{
    return m_batch.size() >= batchSize;
}

QVector<IncidenceReader::Result> IncidenceReader::take()
{
    QVector<Result> results(m_batch.size());
    Incidence::List incidences;
    if (!m_timeZonesDiffer) {
        incidences = parse(m_batch.cbegin(), m_batch.cend(), nullptr);
    }
    const bool isComplete = incidences.size() == m_batch.size();
    for (int i = 0; i < m_batch.size(); ++i) {
        Result &result = results[i];
        result.component = m_batch.at(i).component;
        const Entry *entry = m_batch.cbegin() + i;
        result.incidence =
            isComplete ? incidences.at(i) : parse(entry, entry + 1, &result.reason).value(0);
        finish(&result);
    }
    m_batch.clear();
    m_timeZones.clear();
    m_timeZonesDiffer = false;
    return results;
}

QByteArray IncidenceReader::calendarText(const Entry *begin, const Entry *end)
{
    QByteArray components;
    QMap<QByteArray, QByteArray> timeZones;
    for (const Entry *entry = begin; entry != end; ++entry) {
        timeZones.insert(entry->timeZones);
        components += entry->component.text;
    }
    QByteArray text = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n";
    for (const QByteArray &timeZone : qAsConst(timeZones)) {
        text += timeZone;
    }
    return text + components + "END:VCALENDAR\r\n";
}

/// One incidence for each entry; a list of another length when not all of them came out. @param
/// reason (may be null) why there is none.
Incidence::List IncidenceReader::parse(const Entry *begin, const Entry *end, QString *reason)
{
    const QSharedPointer<ReadIncidences> read(new ReadIncidences);
    KCalCore::ICalFormat format;
    if (!format.fromRawString(read, calendarText(begin, end)) || read->isEmpty()) {
        if (reason) {
            *reason = textOf(format.exception());
        }
        return Incidence::List();
    }
    Incidence::List incidences;
    incidences.reserve(int(end - begin));
    for (const Entry *entry = begin; entry != end; ++entry) {
        const Incidence::Ptr incidence = read->takeNext(entry->component.name);
        if (!incidence) {
            return Incidence::List();
        }
        incidences.append(incidence);
    }
    return incidences;
}

/// Brings what was read into our convention, and sees what is missing.
void IncidenceReader::finish(Result *result)
{
    if (!result->incidence) {
        return;
    }
    readMissingTimes(result->component, result->incidence);
    result->reason = refusal(result->component, result->incidence);
    if (!result->reason.isEmpty()) {
        result->incidence.clear();
        return;
    }
    result->losses = lossesOf(result->component, result->incidence);
    TextCarrier::afterReading(result->component, result->incidence);
    fromICalendarConvention(result->incidence);
    // ICalFormat has put the time of reading there.
    if (result->component.created.isEmpty()) {
        result->incidence->setCreated(QDateTime());
    }
    if (result->component.lastModified.isEmpty()) {
        result->incidence->setLastModified(QDateTime());
    }
    result->losses += lostRule(result->component, result->incidence);
}
} // namespace mKCal
