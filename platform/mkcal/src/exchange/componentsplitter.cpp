// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "componentsplitter.h"

#include "contentline.h"
#include "textcarrier.h"

#include <QString>
#include <QUuid>

#include <algorithm>

namespace mKCal
{
namespace
{
constexpr int usualLineLength = 1024;

// These never stand inside another component, so that one of them ends whatever was left open:
// a missing END costs one component, not the rest of the file.
const QList<QByteArray> &topLevelNames()
{
    static const QList<QByteArray> names = {"VCALENDAR", "VEVENT",    "VTODO",
                                            "VJOURNAL",  "VFREEBUSY", "VTIMEZONE"};
    return names;
}

struct NotedProperty {
    const char *name;
    QByteArray CalendarComponent::*value;
};

constexpr NotedProperty notedProperties[] = {
    {"UID", &CalendarComponent::uid},           {"RECURRENCE-ID", &CalendarComponent::recurrenceId},
    {"SEQUENCE", &CalendarComponent::sequence}, {"DTSTAMP", &CalendarComponent::stamp},
    {"CREATED", &CalendarComponent::created},   {"LAST-MODIFIED", &CalendarComponent::lastModified},
    {"TZID", &CalendarComponent::timeZoneId},   {"RRULE", &CalendarComponent::rule},
};

// Servers that make their calendars on request stamp each answer anew.
const QList<QByteArray> &revisionProperties()
{
    static const QList<QByteArray> names = {"DTSTAMP", "CREATED", "LAST-MODIFIED", "SEQUENCE"};
    return names;
}

bool startsLike(const QByteArray &line, const char *word)
{
    return qstrnicmp(line.constData(), word, qstrlen(word)) == 0;
}
} // namespace

bool CalendarComponent::isIncidence() const
{
    return name == "VEVENT" || name == "VTODO" || name == "VJOURNAL";
}

QByteArray CalendarComponent::stableUid() const
{
    if (!uid.isEmpty()) {
        return uid;
    }
    static const QUuid nameSpace(QStringLiteral("{6d0b7f0c-53d4-4c1e-9a55-8f6c2f0d4b1e}"));
    QByteArray content;
    const QList<QByteArray> lines = ContentLine::split(text);
    for (const QByteArray &property : lines) {
        if (!revisionProperties().contains(ContentLine::name(property))) {
            content += property + '\n';
        }
    }
    return QUuid::createUuidV5(nameSpace, content).toByteArray(QUuid::WithoutBraces);
}

ComponentSplitter::ComponentSplitter(CalendarText *text) : m_text(text)
{
    m_line.reserve(usualLineLength);
    m_ahead.reserve(usualLineLength);
}

bool ComponentSplitter::next(CalendarComponent *component)
{
    *component = CalendarComponent();
    m_component = component;
    while (readContentLine()) {
        bool isComplete = false;
        if (startsLike(m_line, "BEGIN:")) {
            isComplete = begin(m_line.mid(6).trimmed().toUpper());
        } else if (startsLike(m_line, "END:")) {
            isComplete = end(m_line.mid(4).trimmed().toUpper());
        } else if (!m_open.isEmpty()) {
            append(m_line);
            noteProperty();
        } else if (startsLike(m_line, "VERSION")) {
            m_isVersion1 = ContentLine::value(m_line).trimmed() == "1.0";
        }
        if (isComplete) {
            return true;
        }
    }
    return !m_open.isEmpty() && finish(CalendarComponent::CutOff);
}

/// True when that ended a component.
bool ComponentSplitter::begin(const QByteArray &name)
{
    const bool isTopLevel = topLevelNames().contains(name);
    if (isTopLevel && !m_open.isEmpty()) {
        m_lineIsHeld = true;
        return finish(CalendarComponent::CutOff);
    }
    if (name == "VCALENDAR") {
        m_calendar = ++m_calendars;
        m_isVersion1 = false;
        return false;
    }
    if (m_open.isEmpty()) {
        m_foundComponent = true;
        m_component->name = name;
        m_component->line = m_lineNumber;
        m_component->calendar = m_calendar;
        m_component->isVersion1 = m_isVersion1;
    }
    if (m_open.size() == maximumDepth) {
        m_component->fault = CalendarComponent::TooDeep;
        ++m_openTooDeep;
        return false;
    }
    m_open.append(name);
    append("BEGIN:" + name);
    return false;
}

/// True when that ended a component.
bool ComponentSplitter::end(const QByteArray &name)
{
    if (name == "VCALENDAR") {
        m_calendar = 0;
        m_isVersion1 = false;
        return !m_open.isEmpty() && finish(CalendarComponent::CutOff);
    }
    if (m_openTooDeep > 0 && m_open.first() != name) {
        --m_openTooDeep;
        return false;
    }
    if (!m_open.contains(name)) {
        return false;
    }
    // An alarm that was not ended is ended by the END of its event.
    QByteArray closed;
    while (closed != name) {
        closed = m_open.takeLast();
        append("END:" + closed);
    }
    return m_open.isEmpty() && finish();
}

void ComponentSplitter::append(const QByteArray &line)
{
    if (m_component->text.size() + line.size() > maximumSize) {
        m_component->fault = CalendarComponent::TooLarge;
        m_component->text.clear();
    }
    if (m_component->fault != CalendarComponent::NoFault) {
        return;
    }
    if (ContentLine::isUtf8(line)) {
        m_component->text += line;
    } else {
        m_component->wasLatin1 = true;
        m_component->text += QString::fromLatin1(line).toUtf8();
    }
    m_component->text += "\r\n";
}

void ComponentSplitter::noteProperty()
{
    if (m_open.size() > 1) {
        return;
    }
    for (const NotedProperty &noted : notedProperties) {
        QByteArray &value = m_component->*noted.value;
        if (value.isEmpty() && ContentLine::isNamed(m_line, noted.name)) {
            value = ContentLine::value(m_line).trimmed();
        }
    }
    m_component->hasCarriedProperties |= TextCarrier::carries(m_line);
}

bool ComponentSplitter::finish(CalendarComponent::Fault fault)
{
    if (m_component->fault == CalendarComponent::NoFault) {
        m_component->fault = fault;
    }
    m_open.clear();
    m_openTooDeep = 0;
    return true;
}

/// Reads into m_line the next line that is not empty with the lines that continue it; bytes are
/// joined before they are looked at, since some writers break lines inside a character.
bool ComponentSplitter::readContentLine()
{
    if (m_lineIsHeld) {
        m_lineIsHeld = false;
        return true;
    }
    if (!m_hasAhead && !fetch()) {
        return false;
    }
    m_line.swap(m_ahead);
    m_lineNumber = m_aheadNumber;
    while (fetch() && (m_ahead.at(0) == ' ' || m_ahead.at(0) == '\t')) {
        if (m_line.size() < CalendarText::maximumLineLength) {
            m_line.append(m_ahead.constData() + 1, m_ahead.size() - 1);
        }
    }
    return true;
}

bool ComponentSplitter::fetch()
{
    do {
        m_hasAhead = m_text->readLine(&m_ahead);
    } while (m_hasAhead && m_ahead.isEmpty());
    m_aheadNumber = m_text->lineNumber();
    return m_hasAhead;
}
} // namespace mKCal
