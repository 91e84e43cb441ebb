#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

"""Plants one violation at a time into a small tree and expects the checks to name it."""

import tempfile
import unittest
from pathlib import Path

import check_layers
import check_text

LAYERS = """
low   platform/low                  :
mid   src/mid include/lib/mid.h     : low
top   src/top                       : mid
"""
SPDX = ("// SPDX-FileCopyrightText: 2026 The daskel authors\n"
        "// SPDX-License-Identifier: LGPL-2.1-or-later\n")
SOUND = {
    "tools/layers.txt": LAYERS,
    "platform/low/include/low/low.h": "#include <QString>\n",
    "platform/low/src/low_p.h": "",
    "include/lib/mid.h": "#include <low/low.h>\n",
    "src/mid/mid_p.h": "#include <sqlite3.h>\n",
    "src/mid/mid.cpp": '#include "mid_p.h"\n#include <lib/mid.h>\n#include <map>\n',
    "src/top/top.h": "",
    "src/top/top.cpp": '#include "top.h"\n#include <lib/mid.h>\n',
}
LAYER_FAULTS = {
    "upward include": (
        "src/mid/up.cpp", '#include "top.h"\n', "top, which stands above it"),
    "include through a lower layer that is not declared": (
        "src/top/skip.cpp", "  #  include <low/low.h>\n", "low, which it does not declare"),
    "file without a layer": (
        "src/other/stray.cpp", "", "no layer owns it"),
    "public header of no layer": (
        "include/lib/stray.h", "", "no layer owns it"),
    "circle": (
        "tools/layers.txt", LAYERS.replace(":\n", ": top\n", 1), "stands in a circle"),
    "unknown layer": (
        "tools/layers.txt", LAYERS.replace(": low", ": lwo"), "lwo, which is not a layer"),
    "SQLite in a public header": (
        "include/lib/mid.h", "#include <sqlite3.h>\n", "may not include sqlite3.h"),
    "ICU in a public header": (
        "include/lib/mid.h", "#include <unicode/uloc.h>\n", "may not include unicode/uloc.h"),
    "a private header of another library in a public one": (
        "include/lib/mid.h", "#include <private/qobject_p.h>\n", "may not include private/"),
    "own private header in a public one": (
        "include/lib/mid.h", '#include "top.h"\n', "which is private"),
}
TEXT_FAULTS = {
    "no licence": ("src/mid/bare.cpp", "int main() {}\n", "SPDX"),
    "no licence in a script": ("tools/bare", "#!/bin/sh\necho\n", "SPDX"),
    "no licence in a build file": ("src/CMakeLists.txt", "add_library(x)\n", "SPDX"),
    "wait in a test": ("tests/tst_x.cpp", SPDX + "void f() { QTest::qWait(5); }\n", "waits"),
    "sleep in a platform's test": (
        "platform/low/tests/tst_x.cpp", SPDX + "void f() { usleep(5); }\n", "waits"),
    "long file": ("src/mid/long.cpp", SPDX + "\n" * 600, "602 lines"),
}
SOUND_TEXT = {
    "src/mid/mid.cpp": SPDX + "void f() { usleep(5); }\n",
    "tests/tst_sound.cpp": SPDX + "void f() { spy.wait(); asleep(); }\n",
    "tools/sound": "#!/bin/sh\n" + SPDX.replace("//", "#"),
    "tools/packages.txt": "cmake\n",
}


def faults_in(check, files):
    with tempfile.TemporaryDirectory() as folder:
        for name, text in files.items():
            path = Path(folder, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        return list(check.faults(Path(folder)))


class PlantedFaults(unittest.TestCase):
    def expect_each_named(self, check, sound, faults):
        self.assertEqual(faults_in(check, sound), [])
        for case, (name, text, message) in faults.items():
            with self.subTest(case):
                found = faults_in(check, {**sound, name: text})
                self.assertTrue(any(message in line for line in found), found)

    def test_layers(self):
        self.expect_each_named(check_layers, SOUND, LAYER_FAULTS)

    def test_text(self):
        self.expect_each_named(check_text, SOUND_TEXT, TEXT_FAULTS)


if __name__ == "__main__":
    unittest.main()
