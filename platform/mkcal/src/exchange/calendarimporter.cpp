// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidenceimport.h"

#include <mkcal/calendarimporter.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

namespace mKCal
{
namespace
{
constexpr qint64 copySize = 64 * 1024;

/// A pipe can be read only once, and an import reads twice: its content in a temporary file.
std::unique_ptr<QIODevice> copyOf(QIODevice *pipe)
{
    auto copy = std::make_unique<QTemporaryFile>();
    if (!copy->open()) {
        return copy;
    }
    for (;;) {
        const QByteArray bytes = pipe->read(copySize);
        if (bytes.isEmpty() && !pipe->waitForReadyRead(-1)) {
            return copy;
        }
        copy->write(bytes);
    }
}

QString kindOf(const KCalCore::Incidence::Ptr &incidence)
{
    switch (incidence->type()) {
    case KCalCore::IncidenceBase::TypeEvent:
        return QStringLiteral("events");
    case KCalCore::IncidenceBase::TypeTodo:
        return QStringLiteral("to-dos");
    default:
        return QStringLiteral("journals");
    }
}
} // namespace

CalendarImporter::CalendarImporter(const ExtendedStorage::Ptr &storage) : m_storage(storage) { }

void CalendarImporter::setNotebook(const QString &notebookUid)
{
    m_notebookUid = notebookUid;
}

void CalendarImporter::setProgress(const Progress &progress)
{
    m_progress = progress;
}

bool CalendarImporter::importFiles(const QStringList &fileNames, ImportReport *report)
{
    std::vector<std::unique_ptr<QIODevice>> files;
    QVector<QPair<QString, QIODevice *>> devices;
    for (const QString &fileName : fileNames) {
        auto file = std::make_unique<QFile>(fileName);
        if (QFileInfo(fileName).isFile() || !file->open(QIODevice::ReadOnly)
            || !file->isSequential()) {
            files.push_back(std::move(file));
        } else {
            files.push_back(copyOf(file.get()));
        }
        devices.append({fileName, files.back().get()});
    }
    return import(devices, report);
}

bool CalendarImporter::importDevice(QIODevice *device, const QString &name, ImportReport *report)
{
    if (!device->isSequential()) {
        return import({{name, device}}, report);
    }
    const std::unique_ptr<QIODevice> copy = copyOf(device);
    return import({{name, copy.get()}}, report);
}

bool CalendarImporter::import(const QVector<QPair<QString, QIODevice *>> &devices,
                              ImportReport *report)
{
    *report = ImportReport();
    const Notebook::Ptr notebook =
        m_notebookUid.isEmpty() ? m_storage->defaultNotebook() : m_storage->notebook(m_notebookUid);
    if (!notebook) {
        report->error = QStringLiteral("there is no such notebook: %1").arg(m_notebookUid);
        return false;
    }
    const std::unique_ptr<BulkWriter> writer = m_storage->bulkWriter();
    if (!writer) {
        report->error = m_storage->errorMessage();
        return false;
    }
    QHash<QString, Notebook::Ptr> notebooks;
    IncidenceImport work(writer.get(), notebook->uid(), report);
    work.setProgress(m_progress);
    work.setObjection([&](const KCalCore::Incidence::Ptr &incidence, const QString &notebookUid) {
        if (!notebooks.contains(notebookUid)) {
            notebooks.insert(notebookUid, m_storage->notebook(notebookUid));
        }
        const Notebook::Ptr home = notebooks.value(notebookUid);
        if (!home || home->incidenceAllowed(incidence)) {
            return QString();
        }
        return QStringLiteral("its notebook '%1' takes no %2").arg(home->name(), kindOf(incidence));
    });

    QVector<IncidenceImport::Source> sources;
    for (const auto &device : devices) {
        sources.append({device.first, device.second});
    }
    const bool isRead = work.run(sources);
    // Nothing to store is no change: nobody is to be told of one.
    const bool isStored = isRead && (report->created + report->changed == 0 || writer->commit());
    if (isRead && !isStored) {
        report->error = writer->errorMessage();
    }
    if (!isStored) {
        report->created = 0;
        report->changed = 0;
        report->same = 0;
    }
    return isStored;
}
} // namespace mKCal
