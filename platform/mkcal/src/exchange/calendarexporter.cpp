// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "componentsplitter.h"
#include "contentline.h"
#include "textcarrier.h"

#include <mkcal/calendarexporter.h>

#include <KCalendarCore/ICalFormat>
#include <KCalendarCore/MemoryCalendar>

#include <QBuffer>
#include <QMap>
#include <QTimeZone>
#include <QVector>

namespace mKCal
{
using KCalCore::Incidence;

namespace
{
// Beyond some hundreds ICalFormat gets slower again.
constexpr int batchSize = 250;

const QByteArray header = QByteArrayLiteral("BEGIN:VCALENDAR\r\n"
                                            "VERSION:2.0\r\n"
                                            "PRODID:-//daskel//daskel 0.1//EN\r\n");
const QByteArray footer = QByteArrayLiteral("END:VCALENDAR\r\n");

struct Written {
    QMap<QByteArray, QByteArray> timeZones; ///< by TZID
    QVector<QByteArray> components; ///< in the order of the incidences
};

QByteArray folded(const QByteArray &component)
{
    QByteArray result;
    const QList<QByteArray> lines = ContentLine::split(component);
    for (const QByteArray &line : lines) {
        result += ContentLine::folded(line);
    }
    return result;
}

/// What ICalFormat makes of the incidences. It writes them in an order that is another one each
/// time, so each carries its number.
QByteArray formatted(const Incidence::List &incidences)
{
    const KCalCore::MemoryCalendar::Ptr scratch(
        new KCalCore::MemoryCalendar(QTimeZone::systemTimeZone()));
    for (int i = 0; i < incidences.size(); ++i) {
        const Incidence::Ptr clone = toICalendarConvention(incidences.at(i));
        TextCarrier::beforeWriting(clone);
        clone->setNonKDECustomProperty(TextCarrier::indexProperty, QString::number(i));
        scratch->addIncidence(clone);
    }
    return KCalCore::ICalFormat().toString(scratch).toUtf8();
}

/// The incidence that did not come out; null when all did.
Incidence::Ptr writeBatch(const Incidence::List &incidences, Written *written)
{
    QByteArray bytes = formatted(incidences);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    CalendarText text(&buffer);
    ComponentSplitter splitter(&text);
    CalendarComponent component;
    QVector<QByteArray> components(incidences.size());
    while (splitter.next(&component)) {
        if (component.name == "VTIMEZONE") {
            written->timeZones.insert(component.timeZoneId, folded(component.text));
            continue;
        }
        const int index =
            ContentLine::value(ContentLine::find(component.text, TextCarrier::indexProperty))
                .toInt();
        components[index] = TextCarrier::afterWriting(component.text);
    }
    written->components += components;
    return incidences.value(components.indexOf(QByteArray()));
}
} // namespace

bool CalendarExporter::write(const Incidence::List &incidences, QIODevice *device)
{
    m_errorMessage.clear();
    Written written;
    for (int first = 0; first < incidences.size(); first += batchSize) {
        const Incidence::Ptr refused = writeBatch(incidences.mid(first, batchSize), &written);
        if (refused) {
            m_errorMessage = QStringLiteral("'%1' (%2) cannot be written as iCalendar")
                                 .arg(refused->summary(), refused->uid());
            return false;
        }
        if (m_progress) {
            m_progress(written.components.size(), incidences.size());
        }
    }
    QByteArray text = header;
    for (const QByteArray &timeZone : qAsConst(written.timeZones)) {
        text += timeZone;
    }
    for (const QByteArray &component : qAsConst(written.components)) {
        text += component;
    }
    text += footer;
    if (device->write(text) != text.size()) {
        m_errorMessage = device->errorString();
        return false;
    }
    return true;
}
} // namespace mKCal
