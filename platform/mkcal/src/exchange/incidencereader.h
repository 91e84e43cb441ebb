// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_INCIDENCEREADER_H
#define MKCAL_INCIDENCEREADER_H

#include "componentsplitter.h"
#include "timezonetexts.h"

#include <kcalcompat/kcalcore.h>

#include <QStringList>
#include <QVector>

namespace mKCal
{
/// Turns components into incidences of our convention with ICalFormat, many at a time: that is
/// three times as fast as one by one. When not all of them come out, each is read by itself.
class IncidenceReader
{
public:
    struct Result {
        CalendarComponent component;
        KCalCore::Incidence::Ptr incidence; ///< null when it could not be read
        QString reason; ///< why not
        QStringList losses; ///< what the incidence lacks of what its text says
    };

    /// Puts a component (one that isIncidence() and has no fault) with the zones of its VCALENDAR
    /// into the batch.
    void add(const CalendarComponent &component, TimeZoneTexts &timeZones);
    bool isFull() const;
    bool isEmpty() const { return m_batch.isEmpty(); }
    /// Reads the batch, in the order in which it was added, and empties it.
    QVector<Result> take();

private:
    struct Entry {
        CalendarComponent component;
        QMap<QByteArray, QByteArray> timeZones;
    };

    static QByteArray calendarText(const Entry *begin, const Entry *end);
    static KCalCore::Incidence::List parse(const Entry *begin, const Entry *end, QString *reason);
    static void finish(Result *result);

    QVector<Entry> m_batch;
    QMap<QByteArray, QByteArray> m_timeZones; ///< of the whole batch
    bool m_timeZonesDiffer = false; ///< one name means two zones in the batch
};
} // namespace mKCal

#endif
