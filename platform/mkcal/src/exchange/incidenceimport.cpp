// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidenceimport.h"

#include <mkcal/calendarexporter.h>
#include <mkcal/incidencecomparison.h>

#include <QBuffer>

#include <algorithm>

namespace mKCal
{
using KCalCore::Incidence;

namespace
{
QString faultText(const CalendarComponent &component)
{
    if (!component.isIncidence() && component.name != "VTIMEZONE") {
        return QStringLiteral("%1 is not kept here")
            .arg(QString::fromUtf8(component.name.left(40)));
    }
    switch (component.fault) {
    case CalendarComponent::CutOff:
        return QStringLiteral("it is cut off: its END is missing");
    case CalendarComponent::TooLarge:
        return QStringLiteral("it is larger than %1 MiB")
            .arg(ComponentSplitter::maximumSize / 1024 / 1024);
    case CalendarComponent::TooDeep:
        return QStringLiteral("it has more than %1 components inside each other")
            .arg(ComponentSplitter::maximumDepth);
    case CalendarComponent::NoFault:
        break;
    }
    if (component.isVersion1) {
        return QStringLiteral("it is in the old format vCalendar 1.0");
    }
    return QString();
}

/// A date where the occurrence is one. An all-day exception of a series with times keeps its time.
KDateTime recurrenceIdOf(const Incidence::Ptr &incidence)
{
    KDateTime recurrenceId(incidence->recurrenceId());
    if (incidence->allDay() && recurrenceId.isValid() && recurrenceId.time() == QTime(0, 0)) {
        recurrenceId.setDateOnly(true);
    }
    return recurrenceId;
}

/// A device at its beginning; closed at the end when it was not open before.
class OpenDevice
{
public:
    explicit OpenDevice(QIODevice *device)
        : m_device(device), m_wasOpen(device->isOpen()),
          m_isOpen(m_wasOpen ? device->seek(0) : device->open(QIODevice::ReadOnly))
    {
    }
    ~OpenDevice()
    {
        if (!m_wasOpen) {
            m_device->close();
        }
    }
    Q_DISABLE_COPY(OpenDevice)

    bool isOpen() const { return m_isOpen; }

private:
    QIODevice *m_device;
    bool m_wasOpen;
    bool m_isOpen;
};

/// @p incidence as it would be read from a file that it was written to; null when it cannot be.
Incidence::Ptr throughText(const Incidence::Ptr &incidence)
{
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    if (!CalendarExporter().write({incidence}, &buffer)) {
        return Incidence::Ptr();
    }
    buffer.seek(0);
    CalendarText text(&buffer);
    ComponentSplitter splitter(&text);
    CalendarComponent component;
    TimeZoneTexts timeZones;
    while (splitter.next(&component)) {
        if (component.isIncidence()) {
            IncidenceReader reader;
            reader.add(component, timeZones);
            return reader.take().constFirst().incidence;
        }
        timeZones.insert(component.timeZoneId, component.text);
    }
    return Incidence::Ptr();
}
} // namespace

IncidenceImport::IncidenceImport(BulkWriter *writer, const QString &notebookUid,
                                 ImportReport *report)
    : m_writer(writer), m_notebookUid(notebookUid), m_report(report)
{
}

bool IncidenceImport::run(const QVector<Source> &sources)
{
    if (!surveySources(sources)) {
        return false;
    }
    for (int file = 0; file < m_sources.size(); ++file) {
        const int skippedBefore = m_report->skipped.size();
        if (!readSource(file)) {
            return false;
        }
        sortSkipped(skippedBefore);
        m_bytesBefore += m_sources.at(file).device->size();
    }
    return true;
}

bool IncidenceImport::surveySources(const QVector<Source> &sources)
{
    for (const Source &source : sources) {
        const OpenDevice device(source.device);
        if (device.isOpen()) {
            m_survey.addFile(source.device);
            m_sources.append(source);
            m_bytesTotal += source.device->size();
        } else {
            m_report->skipped.append(
                {source.name, 0, QString(),
                 QStringLiteral("it cannot be read: %1").arg(source.device->errorString())});
        }
        if (!reportProgress(0)) {
            return false;
        }
    }
    if (m_sources.isEmpty()) {
        m_report->error = QStringLiteral("no file could be read");
    }
    return !m_sources.isEmpty();
}

bool IncidenceImport::readSource(int file)
{
    const Source &source = m_sources.at(file);
    m_sourceName = source.name;
    const OpenDevice device(source.device);
    CalendarText text(source.device);
    ComponentSplitter splitter(&text);
    CalendarComponent component;
    for (int number = 0; splitter.next(&component); ++number) {
        if (!readComponent(file, number, component)) {
            return false;
        }
        if (m_reader.isFull() && !(storeBatch() && reportProgress(text.bytesRead()))) {
            return false;
        }
    }
    if (!splitter.foundAnything()) {
        m_report->skipped.append(
            {m_sourceName, 0, QString(), QStringLiteral("it is no iCalendar file")});
    }
    return storeBatch() && reportProgress(text.bytesRead());
}

bool IncidenceImport::readComponent(int file, int number, const CalendarComponent &component)
{
    if (component.name == "VTIMEZONE" && component.fault == CalendarComponent::NoFault) {
        return true;
    }
    const QString fault = faultText(component);
    if (!fault.isEmpty()) {
        skip(component, fault);
        return true;
    }
    switch (m_survey.standing(file, number)) {
    case ImportSurvey::Taken:
        m_reader.add(component, m_survey.timeZones(file, component.calendar));
        break;
    case ImportSurvey::Repeated:
        ++m_report->same;
        break;
    case ImportSurvey::Outdone:
        skip(component, QStringLiteral("there is a newer version of it in these files"));
        break;
    }
    return true;
}

bool IncidenceImport::storeBatch()
{
    const QVector<IncidenceReader::Result> results = m_reader.take();
    for (const IncidenceReader::Result &result : results) {
        if (!result.incidence) {
            skip(result.component, result.reason);
        } else if (!store(result)) {
            m_report->error = m_writer->errorMessage();
            return false;
        }
    }
    return true;
}

/// False when the database refused.
bool IncidenceImport::store(const IncidenceReader::Result &result)
{
    const Incidence::Ptr &incidence = result.incidence;
    const QString home = m_writer->notebook(incidence->uid());
    const QString notebookUid = home.isEmpty() ? m_notebookUid : home;
    const QString objection = m_objection ? m_objection(incidence, notebookUid) : QString();
    if (!objection.isEmpty()) {
        skip(result.component, objection);
        return true;
    }
    const IncidenceKey identity = IncidenceKey::of(*incidence);
    if (m_taken.contains(identity)) {
        skip(result.component, QStringLiteral("it has the identity of one before it"));
        return true;
    }
    m_taken.insert(identity);
    for (const QString &loss : result.losses) {
        m_report->altered.append({m_sourceName, result.component.line, incidence->uid(), loss});
    }
    const Incidence::Ptr stored = m_writer->find(incidence->uid(), recurrenceIdOf(incidence));
    if (stored && isUnchanged(stored, incidence)) {
        ++m_report->same;
        return true;
    }
    if (stored && !incidence->created().isValid()) {
        incidence->setCreated(stored->created());
    }
    ++(stored ? m_report->changed : m_report->created);
    return m_writer->write(incidence, notebookUid);
}

bool IncidenceImport::isUnchanged(const Incidence::Ptr &stored,
                                  const Incidence::Ptr &incidence) const
{
    if (differences(*stored, *incidence).isEmpty()) {
        return true;
    }
    // The same version, with what text cannot hold (milliseconds, for one).
    const bool isSameVersion = stored->revision() == incidence->revision()
        && stored->lastModified().toSecsSinceEpoch()
            == incidence->lastModified().toSecsSinceEpoch();
    const Incidence::Ptr written = isSameVersion ? throughText(stored) : Incidence::Ptr();
    return written && differences(*written, *incidence).isEmpty();
}

bool IncidenceImport::reportProgress(qint64 bytesOfSource)
{
    if (m_progress && !m_progress(m_bytesBefore + bytesOfSource, m_bytesTotal)) {
        m_report->error = QStringLiteral("it was given up");
        return false;
    }
    return true;
}

void IncidenceImport::skip(const CalendarComponent &component, const QString &reason)
{
    m_report->skipped.append(
        {m_sourceName, component.line, QString::fromUtf8(component.uid), reason});
}

/// What was seen by the splitter stands before what its batch gave, which came earlier in the file.
void IncidenceImport::sortSkipped(int first)
{
    std::stable_sort(m_report->skipped.begin() + first, m_report->skipped.end(),
                     [](const ImportReport::Skipped &a, const ImportReport::Skipped &b) {
                         return a.line < b.line;
                     });
}

ImportReport importBytes(const QByteArray &bytes, BulkWriter *writer)
{
    ImportReport report;
    QBuffer buffer;
    buffer.setData(bytes);
    IncidenceImport import(writer, QString(), &report);
    import.run({{ QString(), &buffer }});
    return report;
}
} // namespace mKCal
