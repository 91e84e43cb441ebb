// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_TIMEZONERULES_H
#define MKCAL_TIMEZONERULES_H

#include <KCalendarCore/RecurrenceRule>

#include <QDateTime>

#include <memory>
#include <vector>

class QTimeZone;

namespace mKCal
{
/// The rules of a VTIMEZONE, to find the system's zone that they describe when its name does not
/// tell. ICalFormat looks for one, too, but takes London for El Aaiun, and Sydney for a fixed
/// offset.
class TimeZoneRules
{
public:
    /// @param definition the whole VTIMEZONE, unfolded.
    explicit TimeZoneRules(const QByteArray &definition);

    /// The name of a zone that has these offsets and clock changes in @p year and the next one: the
    /// local zone if it has them, else a well-known one. A fixed offset is "UTC+hh:mm". Empty when
    /// there is none.
    QByteArray systemZone(int year) const;

private:
    struct Observance {
        int offsetBefore = 0; ///< seconds east of Greenwich
        int offset = 0;
        // Wall clock before the change, as if it were UTC.
        QDateTime start;
        QList<QDateTime> dates;
        std::unique_ptr<KCalendarCore::RecurrenceRule> rule; ///< null: only on the dates

        void read(const QByteArray &line);
        QDateTime lastChange(const QDateTime &time) const;
    };

    int offsetAt(const QDateTime &time) const;
    QList<QDateTime> tellingTimes(int year) const;

    std::vector<Observance> m_observances;
};
} // namespace mKCal

#endif
