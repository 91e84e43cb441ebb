// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "importsurvey.h"

#include "missingtimes.h"

namespace mKCal
{
void ImportSurvey::addFile(QIODevice *device)
{
    const int file = m_fileCount++;
    CalendarText text(device);
    ComponentSplitter splitter(&text);
    CalendarComponent component;
    for (int number = 0; splitter.next(&component); ++number) {
        if (component.fault != CalendarComponent::NoFault) {
            continue;
        }
        if (component.name == "VTIMEZONE") {
            timeZones(file, component.calendar)
                .insert(component.timeZoneId, *m_definitions.insert(component.text));
        } else if (component.isIncidence()) {
            addIncidence(component, {file, number});
        }
    }
}

void ImportSurvey::addIncidence(const CalendarComponent &component, QPair<int, int> place)
{
    const QByteArray identity = component.stableUid() + '\n' + recurrenceIdentity(component);
    const Version version{place, component.sequence.toInt(), component.stamp,
                          qHash(component.text)};
    const auto other = m_newest.find(identity);
    if (other == m_newest.end()) {
        m_newest.insert(identity, version);
    } else if (other->textHash == version.textHash) {
        m_standings.insert(place, Repeated);
    } else if (version.sequence < other->sequence
               || (version.sequence == other->sequence && version.stamp < other->stamp)) {
        m_standings.insert(place, Outdone);
    } else {
        m_standings.insert(other->place, Outdone);
        *other = version;
    }
}
} // namespace mKCal
