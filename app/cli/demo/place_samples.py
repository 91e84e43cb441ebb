#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Moves the sample calendars to around a day: by whole weeks, so that weekdays stay.

The samples are written around the week of 5 January 2026. Times are wall clock in their zones, so
moving the dates is all there is to it; dates inside the time zone definitions stay.
"""

import datetime
import pathlib
import re
import sys

REFERENCE_MONDAY = datetime.date(2026, 1, 5)
DATED = re.compile(r"^(DTSTART|DTEND|DUE|COMPLETED|EXDATE|RDATE|RECURRENCE-ID|RRULE)[;:]")
DATE = re.compile(r"(?<![0-9])((?:19|20)[0-9]{6})(?=T|$|,|;|\r)")


def shift_line(line, shift):
    def moved(match):
        date = datetime.datetime.strptime(match.group(1), "%Y%m%d").date() + shift
        return date.strftime("%Y%m%d")

    return DATE.sub(moved, line) if DATED.match(line) else line


def place(text, today):
    monday = today - datetime.timedelta(days=today.weekday())
    shift = monday - REFERENCE_MONDAY
    in_zone = False
    lines = []
    for line in text.splitlines(keepends=True):
        in_zone = line.startswith("BEGIN:VTIMEZONE") or (
            in_zone and not line.startswith("END:VTIMEZONE"))
        lines.append(line if in_zone else shift_line(line, shift))
    return "".join(lines)


def main():
    if len(sys.argv) < 3:
        sys.exit("usage: place_samples.py TARGET_FOLDER SAMPLE.ics...")
    target = pathlib.Path(sys.argv[1])
    target.mkdir(parents=True, exist_ok=True)
    for name in sys.argv[2:]:
        sample = pathlib.Path(name)
        with open(sample, encoding="utf-8", newline="") as file:
            text = place(file.read(), datetime.date.today())
        with open(target / sample.name, "w", encoding="utf-8", newline="") as file:
            file.write(text)


if __name__ == "__main__":
    main()
