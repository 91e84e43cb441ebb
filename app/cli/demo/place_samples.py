#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Moves the sample calendars to around a day: by whole weeks, so that weekdays stay.

The samples are written around the week of 5 January 2026. Times are wall clock in their zones, so
moving the dates is all there is to it. Dates inside the time zone definitions stay, and so do
holidays, which have their place in every year.
"""

import argparse
import datetime
import pathlib
import re

REFERENCE_MONDAY = datetime.date(2026, 1, 5)
COMPONENT = re.compile(r"^BEGIN:(VTIMEZONE|VEVENT|VTODO|VJOURNAL)\r?\n.*?^END:\1\r?\n", re.M | re.S)
DATED = re.compile(r"^(DTSTART|DTEND|DUE|COMPLETED|EXDATE|RDATE|RECURRENCE-ID|RRULE)[;:].*$", re.M)
DATE = re.compile(r"(?<![0-9])((?:19|20)[0-9]{6})(?=T|$|,|;|\r)")


def place(text, today):
    """The calendar `text` as if its reference week were the week of `today`."""
    monday = today - datetime.timedelta(days=today.weekday())

    def moved_date(match):
        date = datetime.datetime.strptime(match[1], "%Y%m%d").date() + (monday - REFERENCE_MONDAY)
        return date.strftime("%Y%m%d")

    def moved_component(match):
        if match[1] == "VTIMEZONE" or "\nCATEGORIES:Holiday" in match[0]:
            return match[0]
        return DATED.sub(lambda line: DATE.sub(moved_date, line[0]), match[0])

    return COMPONENT.sub(moved_component, text)


def main():
    parser = argparse.ArgumentParser(description="Moves sample calendars to around a day.")
    parser.add_argument("target", type=pathlib.Path, help="folder to write them into")
    parser.add_argument("samples", type=pathlib.Path, nargs="+")
    parser.add_argument("--today", type=datetime.date.fromisoformat, default=datetime.date.today())
    options = parser.parse_args()
    options.target.mkdir(parents=True, exist_ok=True)
    for sample in options.samples:
        with open(sample, encoding="utf-8", newline="") as file:
            text = place(file.read(), options.today)
        with open(options.target / sample.name, "w", encoding="utf-8", newline="") as file:
            file.write(text)


if __name__ == "__main__":
    main()
