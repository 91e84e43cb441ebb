// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"

using namespace KCalCore;

namespace
{
Feature startsAt(const char *name, const QDateTime &start)
{
    return event(name, [start](Event &event) {
        event.setDtStart(start);
        event.setDtEnd(start.addSecs(3600));
    });
}

Features startFeatures()
{
    const QDate day(2011, 5, 2);
    const QTime ten(10, 0);
    const QTimeZone city("Europe/Helsinki");
    const QTimeZone own("Ship/Time", 7 * 3600 + 600, "Ship", "SHP");
    return {
        startsAt("start in UTC", QDateTime(day, ten, Qt::UTC)),
        startsAt("start floating", QDateTime(day, ten, Qt::LocalTime)),
        startsAt("start in another city", QDateTime(day, ten, QTimeZone("America/New_York"))),
        startsAt("start in a zone named UTC", QDateTime(day, ten, QTimeZone::utc())),
        startsAt("start at a fixed offset", QDateTime(day, ten, Qt::OffsetFromUTC, -12600)),
        startsAt("start at an offset with seconds", QDateTime(day, ten, Qt::OffsetFromUTC, 5989)),
        startsAt("start in an offset zone", QDateTime(day, ten, QTimeZone(5 * 3600 + 600))),
        startsAt("start in a zone that only its calendar knows", QDateTime(day, ten, own)),
        startsAt("first of the hours that the clock change repeats",
                 QDateTime::fromSecsSinceEpoch(1288485000, city)),
        startsAt("second of the hours that the clock change repeats",
                 QDateTime::fromSecsSinceEpoch(1288488600, city)),
        startsAt("start before zones were", QDateTime(QDate(1870, 1, 1), ten, city)),
        startsAt("start in the far future", QDateTime(QDate(9998, 12, 31), ten, city)),
        startsAt("milliseconds", QDateTime(day, QTime(10, 0, 0, 123), city)),
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
    const QDateTime inTokyo(QDate(2011, 5, 2), QTime(20, 0), QTimeZone("Asia/Tokyo"));
    return {
        event("all-day", allDay(floating(2011, 5, 2))),
        event("all-day in a zone", allDay(helsinki(2011, 5, 2, 0))),
        event("all-day in UTC", allDay(utc(2011, 5, 2, 0))),
        event("end in another zone than the start",
              [inTokyo](Event &event) { event.setDtEnd(inTokyo); }),
        event("no end", [](Event &event) { event.setDtEnd(QDateTime()); }),
        event("duration in seconds", [](Event &event) { event.setDuration(Duration(5400)); }),
        event("duration in days",
              [](Event &event) { event.setDuration(Duration(2, Duration::Days)); }),
    };
}

Features identityFeatures()
{
    return {
        event("created", [](Event &event) { event.setCreated(utc(2001, 2, 3)); }),
        event("last modified", [](Event &event) { event.setLastModified(utc(2001, 2, 3)); }),
        event("recurrence identifier",
              [](Event &event) { event.setRecurrenceId(helsinki(2011, 5, 1)); }),
        event("all-day recurrence identifier",
              [](Event &event) {
                  allDay(floating(2011, 5, 2))(event);
                  event.setRecurrenceId(floating(2011, 5, 1));
              }),
        event("this and future",
              [](Event &event) {
                  event.setRecurrenceId(helsinki(2011, 5, 1));
                  event.setThisAndFuture(true);
              }),
    };
}
} // namespace

Features timeFeatures()
{
    return startFeatures() + endFeatures() + identityFeatures();
}
