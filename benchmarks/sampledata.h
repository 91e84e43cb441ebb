// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef SAMPLEDATA_H
#define SAMPLEDATA_H

#include <kcalcompat/kcalcore.h>

#include <QDate>

/// Made-up calendars, the same in every run: ten years around a fixed day, 70 % timed events, 8 %
/// recurring ones, 10 % all-day, 10 % to-dos, 2 % journals, in four zones, UTC and floating, with
/// alarms, attendees, categories and descriptions as people have them. All-day ends are exclusive.
namespace SampleData
{
struct Options {
    int count = 10000; ///< incidences, exceptions of recurring ones among them
    quint32 seed = 1; ///< part of the UIDs, so that two calendars can be put together
    /// What would start on one of these days is moved behind them (both invalid: none).
    QDate clearFrom = {};
    QDate clearTo = {};
};

/// The day in the middle of the ten years.
QDate middle();
/// In the order of their making: a series comes before its exceptions.
KCalCore::Incidence::List incidences(const Options &options);
/// As many recurring events alone.
KCalCore::Incidence::List series(int count);
} // namespace SampleData

#endif
