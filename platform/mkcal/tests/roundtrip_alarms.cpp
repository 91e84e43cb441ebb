// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"

using namespace KCalCore;

namespace
{
Feature alarm(const char *name, const std::function<void(Alarm &)> &give)
{
    return event(name, [give](Event &event) { give(*event.newAlarm()); });
}

Features actions()
{
    return {
        alarm("alarm without an action", [](Alarm &alarm) { alarm.setEnabled(true); }),
        alarm("alarm with a text", [](Alarm &alarm) { alarm.setDisplayAlarm("Wake up"); }),
        alarm("alarm with a sound", [](Alarm &alarm) { alarm.setAudioAlarm("/bell.wav"); }),
        alarm("alarm with a program",
              [](Alarm &alarm) { alarm.setProcedureAlarm("/bin/x", "-a b"); }),
        alarm("alarm by mail",
              [](Alarm &alarm) {
                  alarm.setEmailAlarm(
                      "Subject", "Text",
                      {Person("Anna", "a@example.org"), Person({}, "b@example.org")},
                      {"one", "two"});
              }),
    };
}

Features moments()
{
    return {
        alarm("alarm at a moment", [](Alarm &alarm) { alarm.setTime(helsinki(2011, 5, 1)); }),
        alarm("alarm before the start", [](Alarm &alarm) { alarm.setStartOffset(Duration(-900)); }),
        alarm("alarm days before the start",
              [](Alarm &alarm) { alarm.setStartOffset(Duration(-2, Duration::Days)); }),
        alarm("alarm after the end", [](Alarm &alarm) { alarm.setEndOffset(Duration(60)); }),
    };
}

Features extras()
{
    return {
        alarm("alarm that repeats",
              [](Alarm &alarm) {
                  alarm.setRepeatCount(3);
                  alarm.setSnoozeTime(Duration(300));
              }),
        alarm("alarm with a snooze but no repetition",
              [](Alarm &alarm) { alarm.setSnoozeTime(Duration(1, Duration::Days)); }),
        alarm("alarm near a place",
              [](Alarm &alarm) {
                  alarm.setHasLocationRadius(true);
                  alarm.setLocationRadius(250);
              }),
        alarm("alarm with properties",
              [](Alarm &alarm) {
                  alarm.setCustomProperty("APP", "KEY", "v");
                  alarm.setNonKDECustomProperty("X-UID", "u", "P=1");
              }),
        event("alarms in their order",
              [](Event &event) {
                  for (int minute : {30, 10, 20}) {
                      const Alarm::Ptr alarm = event.newAlarm();
                      alarm->setStartOffset(Duration(-60 * minute));
                      alarm->setCustomProperty("APP", "KEY", QString::number(minute));
                  }
              }),
    };
}
} // namespace

Features alarmFeatures()
{
    return actions() + moments() + extras();
}
