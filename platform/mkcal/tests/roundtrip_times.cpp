// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"

using namespace KCalCore;

namespace
{
Feature startFeature(const char *name, const QDateTime &start,
                     const std::function<bool(const QDateTime &)> &has)
{
    return feature<Event>(
        name, plainEvent(),
        [start](Event &event) {
            event.setDtStart(start);
            event.setDtEnd(start.addSecs(3600));
        },
        [has](const Event &event) { return has(event.dtStart()) && event.hasEndDate(); });
}

bool isIn(const QDateTime &dateTime, const char *zone)
{
    return dateTime.timeSpec() == Qt::TimeZone && dateTime.timeZone().id() == zone
        && dateTime.time() == QTime(10, 0);
}

Features startFeatures()
{
    const QDate day(2011, 5, 2);
    const QTime ten(10, 0);
    const QTimeZone city("Europe/Helsinki");
    const QTimeZone own("Ship/Time", 7 * 3600 + 600, QStringLiteral("Ship"), QStringLiteral("SHP"));
    return {
        startFeature("start in UTC", QDateTime(day, ten, Qt::UTC),
                     [](const QDateTime &start) { return start.timeSpec() == Qt::UTC; }),
        startFeature("start floating", QDateTime(day, ten, Qt::LocalTime),
                     [](const QDateTime &start) { return start.timeSpec() == Qt::LocalTime; }),
        startFeature("start in another city", QDateTime(day, ten, QTimeZone("America/New_York")),
                     [](const QDateTime &start) { return isIn(start, "America/New_York"); }),
        startFeature("start in a zone named UTC", QDateTime(day, ten, QTimeZone::utc()),
                     [](const QDateTime &start) { return isIn(start, "UTC"); }),
        startFeature("start at a fixed offset",
                     QDateTime(day, ten, Qt::OffsetFromUTC, -(3 * 3600 + 1800)),
                     [](const QDateTime &start) {
                         return start.timeSpec() == Qt::OffsetFromUTC
                             && start.offsetFromUtc() == -(3 * 3600 + 1800);
                     }),
        startFeature("start at an offset with seconds",
                     QDateTime(day, ten, Qt::OffsetFromUTC, 5989),
                     [](const QDateTime &start) { return start.offsetFromUtc() == 5989; }),
        startFeature("start in an offset zone", QDateTime(day, ten, QTimeZone(5 * 3600 + 600)),
                     [](const QDateTime &start) { return isIn(start, "UTC+05:10"); }),
        startFeature("start in a zone that only its calendar knows", QDateTime(day, ten, own),
                     [](const QDateTime &start) {
                         return isIn(start, "Ship/Time") && start.offsetFromUtc() == 25800;
                     }),
        startFeature("first of the hours that the clock change repeats",
                     QDateTime::fromSecsSinceEpoch(1288485000, city),
                     [](const QDateTime &start) {
                         return start.offsetFromUtc() == 3 * 3600 && start.time() == QTime(3, 30);
                     }),
        startFeature("second of the hours that the clock change repeats",
                     QDateTime::fromSecsSinceEpoch(1288488600, city),
                     [](const QDateTime &start) {
                         return start.offsetFromUtc() == 2 * 3600 && start.time() == QTime(3, 30);
                     }),
        startFeature("start before zones were", QDateTime(QDate(1870, 1, 1), ten, city),
                     [](const QDateTime &start) { return start.date().year() == 1870; }),
        startFeature("start in the far future", QDateTime(QDate(9998, 12, 31), ten, city),
                     [](const QDateTime &start) { return start.date().year() == 9998; }),
        startFeature("milliseconds", QDateTime(day, QTime(10, 0, 0, 123), city),
                     [](const QDateTime &start) { return start.time().msec() == 123; }),
    };
}

std::function<void(Event &)> allDay(const QDateTime &start)
{
    return [start](Event &event) {
        event.setDtStart(start);
        event.setDtEnd(start.addDays(3));
        event.setAllDay(true);
    };
}

Features endFeatures()
{
    return {
        feature<Event>("all-day", plainEvent(), allDay(floating(2011, 5, 2)),
                       [](const Event &event) {
                           return event.allDay() && event.dtEnd() == floating(2011, 5, 5);
                       }),
        feature<Event>("all-day in a zone", plainEvent(), allDay(helsinki(2011, 5, 2, 0)),
                       [](const Event &event) {
                           return event.allDay() && event.dtStart().timeSpec() == Qt::TimeZone;
                       }),
        feature<Event>("all-day in UTC", plainEvent(), allDay(utc(2011, 5, 2, 0)),
                       [](const Event &event) {
                           return event.allDay() && event.dtStart().timeSpec() == Qt::UTC;
                       }),
        feature<Event>(
            "end in another zone than the start", plainEvent(),
            [](Event &event) {
                event.setDtEnd(QDateTime(QDate(2011, 5, 2), QTime(20, 0), QTimeZone("Asia/Tokyo")));
            },
            [](const Event &event) {
                return event.dtEnd().timeZone().id() == "Asia/Tokyo"
                    && event.dtStart().timeZone().id() == "Europe/Helsinki";
            }),
        feature<Event>(
            "no end", plainEvent(), [](Event &event) { event.setDtEnd(QDateTime()); },
            [](const Event &event) { return !event.hasEndDate(); }),
        feature<Event>(
            "duration in seconds", plainEvent(),
            [](Event &event) { event.setDuration(Duration(5400)); },
            [](const Event &event) {
                return event.hasDuration() && !event.hasEndDate()
                    && event.duration().value() == 5400 && !event.duration().isDaily();
            }),
        feature<Event>(
            "duration in days", plainEvent(),
            [](Event &event) { event.setDuration(Duration(2, Duration::Days)); },
            [](const Event &event) { return event.duration() == Duration(2, Duration::Days); }),
    };
}

Features identityFeatures()
{
    return {
        feature<Event>(
            "created", plainEvent(), [](Event &event) { event.setCreated(utc(2001, 2, 3)); },
            [](const Event &event) { return event.created() == utc(2001, 2, 3); }),
        feature<Event>(
            "last modified", plainEvent(),
            [](Event &event) { event.setLastModified(utc(2001, 2, 3)); },
            [](const Event &event) { return event.lastModified() == utc(2001, 2, 3); }),
        feature<Event>(
            "recurrence identifier", plainEvent(),
            [](Event &event) { event.setRecurrenceId(helsinki(2011, 5, 1)); },
            [](const Event &event) { return event.recurrenceId() == helsinki(2011, 5, 1); }),
        feature<Event>(
            "all-day recurrence identifier", plainEvent(),
            [](Event &event) {
                allDay(floating(2011, 5, 2))(event);
                event.setRecurrenceId(floating(2011, 5, 1));
            },
            [](const Event &event) {
                return event.recurrenceId() == floating(2011, 5, 1)
                    && event.recurrenceId().timeSpec() == Qt::LocalTime;
            }),
        feature<Event>(
            "this and future", plainEvent(),
            [](Event &event) {
                event.setRecurrenceId(helsinki(2011, 5, 1));
                event.setThisAndFuture(true);
            },
            [](const Event &event) { return event.thisAndFuture(); }),
    };
}
} // namespace

Features timeFeatures()
{
    return startFeatures() + endFeatures() + identityFeatures();
}
