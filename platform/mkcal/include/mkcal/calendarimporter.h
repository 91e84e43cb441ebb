// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_CALENDARIMPORTER_H
#define MKCAL_CALENDARIMPORTER_H

#include <mkcal/extendedstorage.h>

#include <QIODevice>
#include <QPair>
#include <QVector>

#include <functional>

namespace mKCal
{
/// What became of an import.
struct ImportReport {
    /// One component that could not be taken in, or not whole.
    struct Skipped {
        QString file;
        int line = 0; ///< where its BEGIN stands, from 1; 0 for the file as a whole
        QString uid; ///< empty when it could not be read
        QString reason; ///< begins with "it" or "its"
    };
    int created = 0;
    int changed = 0;
    int same = 0;
    QVector<Skipped> skipped;
    /// Taken in and counted, but not with everything; the reason says what is missing.
    QVector<Skipped> altered;
    /// Why nothing at all was stored; empty when the import went through.
    QString error;
};

/// Takes iCalendar files (RFC 5545) into the database.
///
/// Incidences are matched by UID and RECURRENCE-ID, so importing a file again changes nothing; one
/// without UID gets one that follows from its text. CREATED and LAST-MODIFIED are the file's; one
/// that gives none was created when it was first imported, and modified at the import that changed
/// it. Of several versions in the files of one call
/// the newest is taken (SEQUENCE, DTSTAMP, then the last). A component that cannot be read is
/// reported and skipped while the rest goes in. One transaction for all files of one importer call;
/// on a storage error nothing is stored. UI thread.
class CalendarImporter
{
public:
    /// @param bytesDone, bytesTotal of all files together; return false to give up.
    using Progress = std::function<bool(qint64 bytesDone, qint64 bytesTotal)>;

    /// @param storage open.
    explicit CalendarImporter(const ExtendedStorage::Ptr &storage);

    /// Where new incidences go; the default notebook when not set.
    void setNotebook(const QString &notebookUid);
    void setProgress(const Progress &progress);

    /// Reads UTF-8 (Latin-1 where it is none), or UTF-16/32 by their byte-order mark; bare
    /// components without a VCALENDAR and several VCALENDARs are accepted. A file that cannot be
    /// opened is skipped. False when nothing was stored: report.error says why.
    bool importFiles(const QStringList &fileNames, ImportReport *report);
    /// @param device open for reading. @param name for the report.
    bool importDevice(QIODevice *device, const QString &name, ImportReport *report);

private:
    bool import(const QVector<QPair<QString, QIODevice *>> &devices, ImportReport *report);

    ExtendedStorage::Ptr m_storage;
    QString m_notebookUid;
    Progress m_progress;
};
} // namespace mKCal

#endif
