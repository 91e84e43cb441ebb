// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "timezonetexts.h"

#include "contentline.h"
#include "timezonerules.h"

#include <QTimeZone>

#include <algorithm>
#include <cctype>

namespace mKCal
{
namespace
{
const QByteArray tzidParameter = QByteArrayLiteral(";TZID=");

/// QTimeZone takes any name that ends in a number for a POSIX rule: "Office 3" would be three hours
/// west of Greenwich.
bool isSystemZone(const QByteArray &name)
{
    const bool mayBeRule = std::any_of(name.begin(), name.end(), [](char c) { return isdigit(c); });
    return !name.isEmpty() && (!mayBeRule || name.contains('/') || name.startsWith("UTC"))
        && QTimeZone(name).isValid();
}

/// The zone at the end of a path, such as America/Argentina/Salta, Europe/Helsinki, UTC.
QByteArray zoneAtEndOfPath(const QByteArray &path)
{
    for (int slash = path.indexOf('/'); slash >= 0; slash = path.indexOf('/', slash + 1)) {
        QByteArray rest = path.mid(slash + 1);
        if (isSystemZone(rest)) {
            return rest;
        }
    }
    return QByteArray();
}
} // namespace

void TimeZoneTexts::insert(const QByteArray &timeZoneId, const QByteArray &text)
{
    m_texts.insert(timeZoneId, text);
    m_systemNames.remove(timeZoneId);
}

QMap<QByteArray, QByteArray> TimeZoneTexts::translate(QByteArray *component)
{
    QMap<QByteArray, QByteArray> definitions;
    int position = component->indexOf(tzidParameter);
    for (; position >= 0; position = component->indexOf(tzidParameter, position + 1)) {
        const int lineStart = component->lastIndexOf('\n', position) + 1;
        const int valueStart = ContentLine::valueStart(*component, lineStart);
        if (valueStart < position) {
            continue; // stands in a text
        }
        const QByteArray line = component->mid(lineStart, valueStart - lineStart);
        const QByteArray name = ContentLine::parameter(line, "TZID");
        const QByteArray known = systemName(name, component->mid(valueStart, 4).toInt());
        if (!known.isEmpty() && known != name) {
            const int start = position + tzidParameter.size();
            const int quotes = component->at(start) == '"' ? 2 : 0;
            component->replace(start, name.size() + quotes, known);
        } else if (known.isEmpty() && m_texts.contains(name)) {
            definitions.insert(name, m_texts.value(name));
        }
    }
    return definitions;
}

QByteArray TimeZoneTexts::systemName(const QByteArray &timeZoneId, int year)
{
    auto known = m_systemNames.find(timeZoneId);
    if (known == m_systemNames.end()) {
        known = m_systemNames.insert(timeZoneId, findSystemName(timeZoneId, year));
    }
    return *known;
}

QByteArray TimeZoneTexts::findSystemName(const QByteArray &timeZoneId, int year) const
{
    if (isSystemZone(timeZoneId)) {
        return timeZoneId;
    }
    QByteArray byWindowsName = QTimeZone::windowsIdToDefaultIanaId(timeZoneId);
    if (isSystemZone(byWindowsName)) {
        return byWindowsName;
    }
    QByteArray byPath = zoneAtEndOfPath(timeZoneId);
    if (!byPath.isEmpty()) {
        return byPath;
    }
    const QByteArray definition = m_texts.value(timeZoneId);
    QByteArray location = ContentLine::value(ContentLine::find(definition, "X-LIC-LOCATION"));
    if (isSystemZone(location)) {
        return location;
    }
    // Definitions often have the rules of today alone, whatever the years of their events.
    const TimeZoneRules rules(definition);
    const QByteArray byRules = rules.systemZone(year);
    return byRules.isEmpty() ? rules.systemZone(QDate::currentDate().year()) : byRules;
}
} // namespace mKCal
