// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "timezonetexts.h"

#include "contentline.h"

#include <QTimeZone>

namespace mKCal
{
namespace
{
const QByteArray TzidParameter = QByteArrayLiteral(";TZID=");

bool isSystemZone(const QByteArray &name)
{
    return !name.isEmpty() && QTimeZone(name).isValid();
}

/// The zone at the end of a path, such as America/Argentina/Salta, Europe/Helsinki, UTC.
QByteArray zoneAtEndOfPath(const QByteArray &path)
{
    for (int slash = path.indexOf('/'); slash >= 0; slash = path.indexOf('/', slash + 1)) {
        const QByteArray rest = path.mid(slash + 1);
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
    int position = component->indexOf(TzidParameter);
    for (; position >= 0; position = component->indexOf(TzidParameter, position + 1)) {
        const int lineStart = component->lastIndexOf('\n', position) + 1;
        const int valueStart = ContentLine::valueStart(*component, lineStart);
        if (valueStart < position) {
            continue; // stands in a text
        }
        const QByteArray line = component->mid(lineStart, valueStart - lineStart);
        const QByteArray name = ContentLine::parameter(line, "TZID");
        const QByteArray known = systemName(name);
        if (!known.isEmpty() && known != name) {
            const int start = position + TzidParameter.size();
            const int quotes = component->at(start) == '"' ? 2 : 0;
            component->replace(start, name.size() + quotes, known);
        } else if (known.isEmpty() && m_texts.contains(name)) {
            definitions.insert(name, m_texts.value(name));
        }
    }
    return definitions;
}

QByteArray TimeZoneTexts::systemName(const QByteArray &timeZoneId)
{
    auto known = m_systemNames.find(timeZoneId);
    if (known == m_systemNames.end()) {
        known = m_systemNames.insert(timeZoneId, findSystemName(timeZoneId));
    }
    return *known;
}

QByteArray TimeZoneTexts::findSystemName(const QByteArray &timeZoneId) const
{
    if (isSystemZone(timeZoneId)) {
        return timeZoneId;
    }
    const QByteArray byWindowsName = QTimeZone::windowsIdToDefaultIanaId(timeZoneId);
    if (isSystemZone(byWindowsName)) {
        return byWindowsName;
    }
    const QByteArray byPath = zoneAtEndOfPath(timeZoneId);
    if (!byPath.isEmpty()) {
        return byPath;
    }
    const QByteArray location =
        ContentLine::value(ContentLine::find(m_texts.value(timeZoneId), "X-LIC-LOCATION"));
    return isSystemZone(location) ? location : QByteArray();
}
} // namespace mKCal
