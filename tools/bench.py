#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

"""Runs the benchmarks of a build folder and prints each figure beside its floor, which is measured in
the same run. An aim that is missed is marked; timings never make the run fail."""

import argparse
import json
import os
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

FIRST_DAY, DAYS = "2026-06-15", "60"
ROUNDS = {10000: 7, 100000: 3}
AGENDA_AIMS = {10000: 5, 100000: 10}
ENVIRONMENT = {**os.environ, "TZ": "Europe/Helsinki"}
FLICK_FIGURE = "flicked frame of the agenda, to its bare texts"
START_FIGURE = "start of the application until its agenda is painted"
COLUMNS = ("figure", "n", "ours", "floor", "ratio", "aim", "ok")
ROW = "{:44} {:>8} {:>10} {:>10} {:>8} {:>8}  {}"


def process(*command):
    """How long the command took, in µs, its peak memory in KiB and how many lines it wrote."""
    start = time.perf_counter()
    with subprocess.Popen(command, stdout=subprocess.PIPE, env=ENVIRONMENT) as child:
        lines = child.stdout.read().count(b"\n")
        _, status, usage = os.wait4(child.pid, 0)
        child.returncode = os.waitstatus_to_exitcode(status)
    if child.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))} failed with code {child.returncode}")
    return (time.perf_counter() - start) * 1e6, usage.ru_maxrss, lines


def agenda_figures(programs, samples, count):
    """A new process that lists 60 days: ours on the database, the peer's on the iCalendar file."""
    daskel, peer = programs
    ours = (daskel, "--data", samples / str(count), "agenda", "--from", FIRST_DAY, "--days", DAYS)
    floor = (peer, samples / str(count) / "calendar.ics", FIRST_DAY, DAYS)
    process(*ours)
    rounds = [(process(*ours), process(*floor), process(daskel, "--version"))
              for _ in range(ROUNDS[count])]

    def median(side, value):
        return statistics.median(results[side][value] for results in rounds)

    yield {"figure": "daskel agenda of 60 days, new process", "n": count, "unit": "µs",
           "ours": median(0, 0), "floor": median(1, 0), "fasterBy": AGENDA_AIMS[count],
           "work": {"lines": rounds[0][0][2], "lines of the peer": rounds[0][1][2],
                    "empty process, µs": round(median(2, 0))}}
    yield {"figure": "peak memory of that process", "n": count, "unit": "KiB",
           "ours": median(0, 1), "floor": median(2, 1),
           "work": {"peer, KiB": median(1, 1)}}


def start_figures(program, samples, count):
    """A start of the application until its agenda is painted: beside an empty window painted and the
    same days read and unrolled."""
    ours, floor = ((program, kind, samples, str(count)) for kind in ("agenda", "bare"))
    process(*ours)
    rounds = [(process(*ours), process(*floor)) for _ in range(ROUNDS[count])]

    def median(side, value):
        return statistics.median(results[side][value] for results in rounds)

    yield {"figure": START_FIGURE, "n": count, "unit": "µs", "ours": median(0, 0),
           "floor": median(1, 0), "atMost": 1.5,
           "work": {"peak memory, KiB": median(0, 1), "peak of the floor, KiB": median(1, 1)}}


def library_figures(program, *words):
    with subprocess.Popen([program, *words], stdout=subprocess.PIPE, text=True) as child:
        yield from map(json.loads, child.stdout)
    if child.returncode != 0:
        sys.exit(f"{program} failed with code {child.returncode}")


def judged(figure):
    """The figure with its ratio, and whether it reaches its aim (None: it has none)."""
    ratio = figure["ours"] / figure["floor"]
    if "fasterBy" in figure:
        ratio = 1 / ratio
        ok = ratio >= figure["fasterBy"]
    else:
        ok = ratio <= figure["atMost"] if "atMost" in figure else None
    return {**figure, "ratio": round(ratio, 3), "ok": ok}


def amount(value, unit):
    if unit == "KiB":
        return f"{value / 1024:.1f} MiB"
    if unit != "µs":
        return f"{value:g} {unit}"
    for limit, divisor, name in ((1e3, 1, "µs"), (1e6, 1e3, "ms")):
        if value < limit:
            return f"{value / divisor:.3g} {name}"
    return f"{value / 1e6:.3g} s"


def print_row(figure):
    aim = (f"≥ {figure['fasterBy']:g} ×" if "fasterBy" in figure
           else f"≤ {figure['atMost']:g}" if "atMost" in figure else "")
    ratio = f"{figure['ratio']:.0f} ×" if figure["ratio"] >= 20 else f"{figure['ratio']:.2f}"
    print(ROW.format(figure["figure"], f"{figure['n']:,}", amount(figure["ours"], figure["unit"]),
                     amount(figure["floor"], figure["unit"]), ratio, aim,
                     {True: "yes", False: "MISSED", None: ""}[figure["ok"]]))
    print("    " + ", ".join(f"{name}: {value:,}" for name, value in figure["work"].items()),
          flush=True)


def wanted(name, filters):
    return not filters or any(word.lower() in name.lower() for word in filters)


def all_figures(build, samples, filters):
    bench = build / "benchmarks/daskel_bench"
    subprocess.run([bench, "--samples", samples], check=True)
    yield from library_figures(bench, samples, *filters)
    yield from library_figures(build / "benchmarks/toolkit_bench", samples, *filters)
    for count in ROUNDS:
        yield from library_figures(build / "benchmarks/agenda_bench", samples, str(count), *filters)
    programs = build / "app/cli/daskel", build / "benchmarks/list_calendar"
    for count in ROUNDS:
        if wanted(START_FIGURE, filters):
            yield from start_figures(build / "benchmarks/start_bench", samples, count)
        if wanted(FLICK_FIGURE, filters):
            yield from library_figures(build / "benchmarks/start_bench", "flick", samples, str(count))
        names = "daskel agenda of 60 days, new process", "peak memory of that process"
        if any(wanted(name, filters) for name in names):
            yield from agenda_figures(programs, samples, count)


def main():
    parser = argparse.ArgumentParser(prog="./bench", description=__doc__)
    parser.add_argument("build", type=Path, help=argparse.SUPPRESS)
    parser.add_argument("--json", type=Path, metavar="FILE", help="write the figures as JSON, too")
    parser.add_argument("filters", nargs="*", metavar="FILTER",
                        help="only figures whose name holds one of these")
    arguments = parser.parse_args()

    print(ROW.format(*COLUMNS))
    figures = []
    with tempfile.TemporaryDirectory(dir=arguments.build) as samples:
        for figure in all_figures(arguments.build, Path(samples), arguments.filters):
            figures.append(judged(figure))
            print_row(figures[-1])
    if arguments.json:
        arguments.json.write_text(json.dumps(figures, indent=1, ensure_ascii=False) + "\n")


if __name__ == "__main__":
    main()
