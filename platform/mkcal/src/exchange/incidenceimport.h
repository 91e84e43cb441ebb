// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_INCIDENCEIMPORT_H
#define MKCAL_INCIDENCEIMPORT_H

#include "componentsplitter.h"
#include "importsurvey.h"
#include "incidencereader.h"
#include "storage/incidencekey.h"

#include <mkcal/bulkwriter.h>
#include <mkcal/calendarimporter.h>

#include <QSet>
#include <QVector>

#include <functional>

namespace mKCal
{
/// One import: reads the sources twice (survey, then incidences) and writes what is new or changed.
class IncidenceImport
{
public:
    struct Source {
        QString name; ///< for the report
        QIODevice *device = nullptr; ///< not sequential; opened and closed here unless it is open
    };
    /// Why that notebook may not hold the incidence; empty when it may.
    using Objection =
        std::function<QString(const KCalCore::Incidence::Ptr &, const QString &notebookUid)>;

    /// @param writer nothing is committed here. @param notebookUid for what is new.
    IncidenceImport(BulkWriter *writer, const QString &notebookUid, ImportReport *report);

    void setObjection(const Objection &objection) { m_objection = objection; }
    void setProgress(const CalendarImporter::Progress &progress) { m_progress = progress; }

    /// False when it was given up or the database refused: the report's error says which.
    bool run(const QVector<Source> &sources);

private:
    bool surveySources(const QVector<Source> &sources);
    bool readSource(int file);
    bool readComponent(int file, int number, const CalendarComponent &component);
    void sortSkipped(int first);
    bool storeBatch();
    bool store(const IncidenceReader::Result &result);
    bool isUnchanged(const KCalCore::Incidence::Ptr &stored,
                     const KCalCore::Incidence::Ptr &incidence) const;
    bool reportProgress(qint64 bytesOfSource);
    void skip(const CalendarComponent &component, const QString &reason);

    BulkWriter *m_writer;
    QString m_notebookUid;
    ImportReport *m_report;
    Objection m_objection;
    CalendarImporter::Progress m_progress;

    QVector<Source> m_sources; ///< those that can be read
    ImportSurvey m_survey;
    IncidenceReader m_reader;
    /// The survey sees text alone, and there are many ways to write one identity.
    QSet<IncidenceKey> m_taken;
    QString m_sourceName;
    qint64 m_bytesTotal = 0;
    qint64 m_bytesBefore = 0; ///< of the sources that are done
};

/// Imports one file's bytes; the report is all that comes of it unless @p writer keeps something.
ImportReport importBytes(const QByteArray &bytes, BulkWriter *writer);
} // namespace mKCal

#endif
