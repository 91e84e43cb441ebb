// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "exchange/incidenceimport.h"
#include "memorybulkwriter.h"

#include <mkcal/calendarexporter.h>

#include <QBuffer>

#include <cstdlib>

namespace
{
/// Importing the same bytes again changes nothing.
void checkRepeated(const QByteArray &bytes, MemoryBulkWriter *writer)
{
    const mKCal::ImportReport again = mKCal::importBytes(bytes, writer);
    if (again.created + again.changed > 0) {
        qCritical("the second import has %d new, %d changed", again.created, again.changed);
        std::abort();
    }
}

void writeOut(const MemoryBulkWriter &writer)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!mKCal::CalendarExporter().write(writer.incidences(), &buffer)) {
        std::abort();
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    MemoryBulkWriter writer;
    mKCal::importBytes(bytes, &writer);
    checkRepeated(bytes, &writer);
    writeOut(writer);
    return 0;
}
