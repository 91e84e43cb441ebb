// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bench.h"

#include <mkcal/calendarimporter.h>

#include <KCalendarCore/ICalFormat>
#include <KCalendarCore/MemoryCalendar>

#include <QFile>
#include <QTimeZone>

using namespace mKCal;

namespace
{
double timeImport(const Bench &bench, const Sample &sample, ImportReport *report)
{
    const OpenedStorage opened(bench.scratchName(QStringLiteral(".db")));
    const Notebook::Ptr notebook(new Notebook);
    notebook->setName(QStringLiteral("Imported"));
    require(opened.storage->addNotebook(notebook), opened.storage->errorMessage());
    *report = {};
    return microseconds([&] {
        CalendarImporter importer(opened.storage);
        importer.setNotebook(notebook->uid());
        require(importer.importFiles({sample.iCalendarName}, report), report->error);
    });
}

double timeParsing(const Sample &sample)
{
    const KCalCore::MemoryCalendar::Ptr calendar(
        new KCalCore::MemoryCalendar(QTimeZone::systemTimeZone()));
    return microseconds([&] {
        QFile file(sample.iCalendarName);
        require(file.open(QIODevice::ReadOnly), file.errorString());
        KCalCore::ICalFormat format;
        require(format.fromRawString(calendar, file.readAll()), sample.iCalendarName);
    });
}
} // namespace

void measureImport(const Bench &bench)
{
    const QString name = QStringLiteral("import of a large file");
    if (!bench.wants(name)) {
        return;
    }
    for (const int count : {10000, 100000}) {
        const Sample sample = bench.sample(count);
        ImportReport report;
        const Times times = inTurn(
            count > 10000 ? 1 : 3, [&] { return timeImport(bench, sample, &report); },
            [&] { return timeParsing(sample); });
        bench.add({name,
                   count,
                   times,
                   {Aim::AtMost, 2},
                   {{QStringLiteral("bytes"), QFile(sample.iCalendarName).size()},
                    {QStringLiteral("new"), report.created},
                    {QStringLiteral("skipped"), report.skipped.size()}}});
    }
}
