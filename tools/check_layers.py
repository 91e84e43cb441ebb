#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

"""Keeps the layers apart: reads layers.txt and refuses what it does not allow.

Refused are an include of a layer above, an include of a layer that is not declared, a circle among
the layers, a source file that no layer owns, and a public header that shows a private header, SQLite
or ICU to those who include it.
"""

import re
import sys
from collections import defaultdict
from pathlib import Path

SOURCE_SUFFIXES = {".h", ".cpp"}
SOURCE_TREES = ("include", "platform", "src", "app", "tests", "benchmarks", "fuzz")
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]', re.MULTILINE)
HIDDEN_FROM_USERS = re.compile(r"(^sqlite3\.h|^unicode/.*|_p\.h)$")


class Layers:
    """What layers.txt says: who owns which files, and who may include whom."""

    def __init__(self, text):
        self.owners = {}
        self.uses = {}
        for line in text.splitlines():
            line = line.split("#")[0].strip()
            if line:
                declared, _, uses = line.partition(":")
                name, *paths = declared.split()
                self.uses[name] = set(uses.split())
                self.owners.update((path, name) for path in paths)

    def owner(self, path):
        """The layer of a file, None when nobody owns it; the most specific entry wins."""
        for place in (path, *path.parents):
            if str(place) in self.owners:
                return self.owners[str(place)]
        return None

    def reaches(self, start, goal):
        """Whether `start` stands on `goal`, directly or through others."""
        seen, waiting = set(), [start]
        while waiting:
            for below in self.uses.get(waiting.pop(), ()):
                if below == goal:
                    return True
                if below not in seen:
                    seen.add(below)
                    waiting.append(below)
        return False

    def faults(self):
        for name, uses in self.uses.items():
            for unknown in sorted(uses - self.uses.keys()):
                yield f"layers.txt: {name} uses {unknown}, which is not a layer"
            if self.reaches(name, name):
                yield f"layers.txt: {name} stands in a circle"


class Headers:
    """Finds which of the project's headers an include names."""

    def __init__(self, files, layers):
        self.layers = layers
        self.by_name = defaultdict(list)
        for path in files:
            if path.suffix == ".h":
                self.by_name[path.name].append(path)

    def find(self, include, source):
        """The header as `source` sees it: the nearest of that name, None for a system's header."""
        wanted = Path(include).parts
        found = [path for path in self.by_name[wanted[-1]] if path.parts[-len(wanted):] == wanted]
        own = self.layers.owner(source)
        return min(found, default=None,
                   key=lambda path: (path.parent != source.parent, self.layers.owner(path) != own))


def is_public(path):
    return path.suffix == ".h" and "include" in path.parts


def include_fault(layers, source, include, header):
    """Why `source` may not include `include`, which is our `header` or None; None when it may."""
    if is_public(source) and HIDDEN_FROM_USERS.search(include):
        return f"a public header may not include {include}"
    if header is None:
        return None
    if is_public(source) and not is_public(header):
        return f"a public header may not include {include}, which is private"
    own, other = layers.owner(source), layers.owner(header)
    if other is None or other == own or other in layers.uses[own]:
        return None
    if layers.reaches(other, own):
        return f"{own} includes {include} of {other}, which stands above it"
    return f"{own} includes {include} of {other}, which it does not declare"


def faults(root):
    """All that is wrong in the tree at `root`, one line each."""
    layers = Layers((root / "tools/layers.txt").read_text())
    yield from layers.faults()
    files = sorted(path.relative_to(root) for tree in SOURCE_TREES
                   for path in (root / tree).rglob("*") if path.suffix in SOURCE_SUFFIXES)
    headers = Headers(files, layers)
    for source in files:
        if layers.owner(source) is None:
            yield f"{source}: no layer owns it"
            continue
        for include in INCLUDE.findall((root / source).read_text()):
            fault = include_fault(layers, source, include, headers.find(include, source))
            if fault:
                yield f"{source}: {fault}"


def main():
    found = list(faults(Path(__file__).resolve().parent.parent))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
