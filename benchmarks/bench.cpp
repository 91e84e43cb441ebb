// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bench.h"

#include <mkcal/bulkwriter.h>
#include <mkcal/calendarexporter.h>
#include <mkcal/sqlitestorage.h>

#include <QFile>
#include <QJsonDocument>
#include <QTextStream>
#include <QTimeZone>

#include <cstdlib>
#include <ctime>

using namespace mKCal;

const QString sampleNotebook = QStringLiteral("sample");

namespace
{
const QDate clearFrom = SampleData::middle().addDays(-40);
const QDate clearTo = SampleData::middle().addDays(100);

void writeDatabase(const QString &name, const KCalCore::Incidence::List &incidences)
{
    const OpenedStorage opened(name);
    const Notebook::Ptr notebook(new Notebook(sampleNotebook, QStringLiteral("Sample"), {},
                                              QStringLiteral("#336699"), false, true, false, false,
                                              true));
    require(opened.storage->addNotebook(notebook), opened.storage->errorMessage());
    const auto writer = opened.storage->bulkWriter();
    require(writer != nullptr, opened.storage->errorMessage());
    for (const auto &incidence : incidences) {
        require(writer->write(incidence, sampleNotebook), writer->errorMessage());
    }
    require(writer->commit(), writer->errorMessage());
}

void writeSample(const Sample &sample, const KCalCore::Incidence::List &incidences)
{
    if (QFile::exists(sample.databaseName)) {
        return;
    }
    writeDatabase(sample.databaseName, incidences);
    QFile file(sample.iCalendarName);
    require(file.open(QIODevice::WriteOnly), file.errorString());
    CalendarExporter exporter;
    require(exporter.write(incidences, &file), exporter.errorMessage());
}
} // namespace

Bench::Bench(const QString &folder, const QStringList &filters)
    : m_folder(folder), m_filters(filters)
{
}

bool Bench::wants(const QString &name) const
{
    return m_filters.isEmpty()
        || std::any_of(m_filters.begin(), m_filters.end(), [&](const QString &filter) {
               return name.contains(filter, Qt::CaseInsensitive);
           });
}

void Bench::add(const Figure &figure) const
{
    QJsonObject object{
        {QStringLiteral("figure"), figure.name},       {QStringLiteral("n"), figure.count},
        {QStringLiteral("unit"), figure.unit},         {QStringLiteral("ours"), figure.times.ours},
        {QStringLiteral("floor"), figure.times.floor}, {QStringLiteral("work"), figure.work}};
    if (figure.aim.kind != Aim::None) {
        object.insert(figure.aim.kind == Aim::AtMost ? QStringLiteral("atMost")
                                                     : QStringLiteral("fasterBy"),
                      figure.aim.value);
    }
    QTextStream(stdout) << QJsonDocument(object).toJson(QJsonDocument::Compact) << Qt::endl;
}

void Bench::makeSamples() const
{
    for (const int count : {10000, 100000}) {
        writeSample(sample(count), SampleData::incidences({count}));
    }
    SampleData::Options others{90000, 2, clearFrom, clearTo};
    auto incidences = SampleData::incidences({10000});
    incidences += SampleData::incidences(others);
    writeSample(sampleOfEqualRows(), incidences);
}

Sample Bench::sample(int count) const
{
    return named(count, QString::number(count));
}

Sample Bench::sampleOfEqualRows() const
{
    return named(100000, QStringLiteral("equal-rows"));
}

Sample Bench::named(int count, const QString &folder) const
{
    return {count, m_folder.filePath(folder + QStringLiteral("/calendar.db")),
            m_folder.filePath(folder + QStringLiteral("/calendar.ics"))};
}

QString Bench::scratchName(const QString &suffix) const
{
    static int number = 0;
    const QString name =
        m_folder.filePath(QStringLiteral("scratch-%1%2").arg(++number).arg(suffix));
    QFile::remove(name);
    return name;
}

OpenedStorage::OpenedStorage(const QString &databaseName)
    : calendar(new ExtendedCalendar(QTimeZone::systemTimeZone())),
      storage(new SqliteStorage(calendar, databaseName))
{
    require(storage->open(), storage->errorMessage());
}

double processorTime()
{
    timespec time;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e6 + double(time.tv_nsec) / 1e3;
}

void require(bool condition, const QString &what)
{
    if (!condition) {
        qCritical("%s", qPrintable(what));
        std::exit(EXIT_FAILURE);
    }
}
