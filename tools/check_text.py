#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

"""Refuses source files without a licence, source files that are too long, and tests that wait for
time to pass instead of for an event."""

import re
import sys
from pathlib import Path

TREES = (".ci", "include", "platform", "src", "app", "tests", "benchmarks", "fuzz", "tools", "cmake")
SOURCE_SUFFIXES = {".h", ".cpp", ".py", ".sh", ".cmake"}
SPDX = re.compile(r"SPDX-FileCopyrightText: .+\n.*SPDX-License-Identifier: LGPL-2\.1-or-later\n")
WAITING = re.compile(r"\b(qWait|qSleep|[mu]?sleep|nanosleep|sleep_for|sleep_until)\s*\(")
LONGEST = 600


def is_source(path):
    if path.suffix in SOURCE_SUFFIXES or path.name == "CMakeLists.txt":
        return True
    return not path.suffix and path.read_bytes().startswith(b"#!")


def faults(root):
    """All that is wrong in the tree at `root`, one line each."""
    places = [path for tree in TREES for path in (root / tree).rglob("*")]
    for path in sorted(place for place in [*places, *root.glob("*")] if place.is_file()):
        if not is_source(path):
            continue
        text, name = path.read_text(), path.relative_to(root)
        if not SPDX.search("\n".join(text.split("\n", 5)[:5]) + "\n"):
            yield f"{name}: no SPDX lines at the top"
        if path.suffix in {".h", ".cpp"} and "tests" in name.parts and WAITING.search(text):
            yield f"{name}: waits for time to pass; wait for a signal or an event instead"
        if text.count("\n") > LONGEST:
            yield f"{name}: {text.count(chr(10))} lines, more than {LONGEST}: split it"


def main():
    found = list(faults(Path(__file__).resolve().parent.parent))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
