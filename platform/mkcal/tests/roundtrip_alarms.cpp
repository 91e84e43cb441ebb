// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"

using namespace KCalCore;

namespace
{
Feature alarm(const char *name, const std::function<void(Alarm &)> &give,
              const std::function<bool(const Alarm &)> &has)
{
    return feature<Event>(
        name, plainEvent(), [give](Event &event) { give(*event.newAlarm()); },
        [has](const Event &event) {
            const auto alarms = event.alarms();
            return alarms.size() == 1 && has(*alarms.first())
                && alarms.first()->parentUid() == event.uid();
        });
}

Features actions()
{
    return {
        alarm(
            "alarm without an action", [](Alarm &alarm) { alarm.setEnabled(true); },
            [](const Alarm &alarm) { return alarm.type() == Alarm::Invalid && alarm.enabled(); }),
        alarm(
            "alarm with a text",
            [](Alarm &alarm) { alarm.setDisplayAlarm(QStringLiteral("Wake up")); },
            [](const Alarm &alarm) {
                return alarm.type() == Alarm::Display && alarm.text() == QLatin1String("Wake up");
            }),
        alarm(
            "alarm with a sound",
            [](Alarm &alarm) { alarm.setAudioAlarm(QStringLiteral("/bell.wav")); },
            [](const Alarm &alarm) {
                return alarm.type() == Alarm::Audio
                    && alarm.audioFile() == QLatin1String("/bell.wav");
            }),
        alarm(
            "alarm with a program",
            [](Alarm &alarm) {
                alarm.setProcedureAlarm(QStringLiteral("/bin/x"), QStringLiteral("-a b"));
            },
            [](const Alarm &alarm) {
                return alarm.type() == Alarm::Procedure
                    && alarm.programFile() == QLatin1String("/bin/x")
                    && alarm.programArguments() == QLatin1String("-a b");
            }),
        alarm(
            "alarm by mail",
            [](Alarm &alarm) {
                const Person anna(QStringLiteral("Anna"), QStringLiteral("a@example.org"));
                alarm.setEmailAlarm(QStringLiteral("Subject"), QStringLiteral("Text"),
                                    {anna, Person(QString(), QStringLiteral("b@example.org"))},
                                    {QStringLiteral("one"), QStringLiteral("two")});
            },
            [](const Alarm &alarm) {
                return alarm.mailSubject() == QLatin1String("Subject")
                    && alarm.mailText() == QLatin1String("Text")
                    && alarm.mailAddresses().size() == 2
                    && alarm.mailAddresses().first().name() == QLatin1String("Anna")
                    && alarm.mailAttachments().last() == QLatin1String("two");
            }),
    };
}

Features moments()
{
    return {
        alarm(
            "alarm at a moment", [](Alarm &alarm) { alarm.setTime(helsinki(2011, 5, 1)); },
            [](const Alarm &alarm) {
                return alarm.hasTime() && alarm.time() == helsinki(2011, 5, 1)
                    && alarm.time().timeSpec() == Qt::TimeZone;
            }),
        alarm(
            "alarm before the start", [](Alarm &alarm) { alarm.setStartOffset(Duration(-900)); },
            [](const Alarm &alarm) {
                return alarm.hasStartOffset() && alarm.startOffset() == Duration(-900);
            }),
        alarm(
            "alarm days before the start",
            [](Alarm &alarm) { alarm.setStartOffset(Duration(-2, Duration::Days)); },
            [](const Alarm &alarm) { return alarm.startOffset() == Duration(-2, Duration::Days); }),
        alarm(
            "alarm after the end", [](Alarm &alarm) { alarm.setEndOffset(Duration(60)); },
            [](const Alarm &alarm) {
                return alarm.hasEndOffset() && alarm.endOffset() == Duration(60);
            }),
    };
}

Features extras()
{
    return {
        alarm(
            "alarm that repeats",
            [](Alarm &alarm) {
                alarm.setRepeatCount(3);
                alarm.setSnoozeTime(Duration(300));
            },
            [](const Alarm &alarm) {
                return alarm.repeatCount() == 3 && alarm.snoozeTime() == Duration(300);
            }),
        alarm(
            "alarm with a snooze but no repetition",
            [](Alarm &alarm) { alarm.setSnoozeTime(Duration(1, Duration::Days)); },
            [](const Alarm &alarm) {
                return alarm.repeatCount() == 0
                    && alarm.snoozeTime() == Duration(1, Duration::Days);
            }),
        alarm(
            "alarm near a place",
            [](Alarm &alarm) {
                alarm.setHasLocationRadius(true);
                alarm.setLocationRadius(250);
            },
            [](const Alarm &alarm) {
                return alarm.hasLocationRadius() && alarm.locationRadius() == 250;
            }),
        alarm(
            "alarm with properties",
            [](Alarm &alarm) {
                alarm.setCustomProperty("APP", "KEY", QStringLiteral("v"));
                alarm.setNonKDECustomProperty("X-UID", QStringLiteral("u"), QStringLiteral("P=1"));
            },
            [](const Alarm &alarm) {
                return alarm.customProperty("APP", "KEY") == QLatin1String("v")
                    && alarm.nonKDECustomPropertyParameters("X-UID") == QLatin1String("P=1");
            }),
        feature<Event>(
            "alarms in their order", plainEvent(),
            [](Event &event) {
                for (int minute : {30, 10, 20}) {
                    const Alarm::Ptr alarm = event.newAlarm();
                    alarm->setStartOffset(Duration(-60 * minute));
                    alarm->setCustomProperty("APP", "KEY", QString::number(minute));
                }
            },
            [](const Event &event) {
                const auto alarms = event.alarms();
                return alarms.size() == 3 && alarms.at(1)->startOffset() == Duration(-600)
                    && alarms.at(1)->customProperty("APP", "KEY") == QLatin1String("10");
            }),
    };
}
} // namespace

Features alarmFeatures()
{
    return actions() + moments() + extras();
}
