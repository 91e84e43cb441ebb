// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidencetimes.h"

#include <KCalendarCore/Event>
#include <KCalendarCore/Todo>

#include <optional>

namespace mKCal
{
namespace
{
/// The span of an event that says both its moments, as most do: nothing is to be worked out then.
std::optional<TimeSpan> momentsOf(const KCalCore::Incidence &incidence)
{
    if (incidence.type() != KCalCore::IncidenceBase::TypeEvent || incidence.allDay()) {
        return {};
    }
    const auto &event = static_cast<const KCalCore::Event &>(incidence);
    const QDateTime start = event.dtStart();
    if (start.timeSpec() == Qt::LocalTime || !event.hasEndDate()) {
        return {};
    }
    const Msecs startMoment = momentOf(start);
    return TimeSpan{startMoment, qMax(startMoment, momentOf(event.dtEnd()))};
}
} // namespace

bool isWallBound(const KCalCore::Incidence &incidence)
{
    return incidence.allDay() || anchor(incidence).timeSpec() == Qt::LocalTime;
}

QDateTime anchor(const KCalCore::Incidence &incidence)
{
    if (incidence.type() != KCalCore::IncidenceBase::TypeTodo) {
        return incidence.dtStart();
    }
    const auto &todo = static_cast<const KCalCore::Todo &>(incidence);
    return todo.hasDueDate() ? todo.dtDue(true) : todo.dtStart(true);
}

Length Length::of(const KCalCore::Incidence &incidence)
{
    Length length;
    length.allDay = incidence.allDay();
    if (incidence.type() != KCalCore::IncidenceBase::TypeEvent) {
        length.days = length.allDay ? 1 : 0;
        return length;
    }
    const auto &event = static_cast<const KCalCore::Event &>(incidence);
    const QDateTime start = event.dtStart();
    const bool byDuration = event.hasDuration() && !event.hasEndDate();
    if (length.allDay) {
        const qint64 days = byDuration ? event.duration().asDays() : start.daysTo(event.dtEnd());
        length.days = qMax<qint64>(1, days);
    } else if (byDuration && event.duration().isDaily()) {
        length.days = qMax(0, event.duration().asDays());
    } else {
        length.seconds = qMax<qint64>(0, start.secsTo(event.dtEnd()));
    }
    return length;
}

Msecs Length::endAfter(const QDateTime &start, const ZoneClock &clock) const
{
    if (allDay) {
        return clock.dayStart(start.date().addDays(days));
    }
    const QDateTime afterDays =
        days == 0 ? start : atWallClock(start.date().addDays(days), start.time(), start.timeZone());
    return momentOf(afterDays) + seconds * 1000;
}

QDateTime inOwnZone(const QDateTime &dateTime, bool wallBound, const ZoneClock &clock)
{
    return wallBound ? atWallClock(dateTime.date(), dateTime.time(), clock.zone()) : dateTime;
}

TimeSpan spanOf(const KCalCore::Incidence &incidence, const ZoneClock &clock)
{
    if (const auto moments = momentsOf(incidence)) {
        return *moments;
    }
    const QDateTime start = inOwnZone(anchor(incidence), isWallBound(incidence), clock);
    const Length length = Length::of(incidence);
    const Msecs startMoment =
        length.allDay ? clock.dayStart(anchor(incidence).date()) : momentOf(start);
    return {startMoment, qMax(startMoment, length.endAfter(start, clock))};
}
} // namespace mKCal
