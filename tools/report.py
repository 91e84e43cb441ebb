# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

"""Counts checks and says which failed: quiet about what passes, with the log of what does not."""

import os
import subprocess
import textwrap
import time
from contextlib import contextmanager

LONGEST_LOG = 300


class Report:
    def __init__(self):
        self.passed = 0
        self.failed = 0

    @contextmanager
    def stage(self, name):
        """Prints the stage's name, its checks and its seconds when it is over."""
        before = self.passed, self.failed
        start = time.monotonic()
        yield
        seconds = time.monotonic() - start
        passed, failed = self.passed - before[0], self.failed - before[1]
        print(f"{name:32}{seconds:6.0f} s   {passed} passed, {failed} failed", flush=True)

    def add(self, name, ok, log=""):
        """Counts one check; prints the end of its log when it failed."""
        if ok:
            self.passed += 1
            return
        self.failed += 1
        lines = log.rstrip().splitlines()
        print(f"FAILED: {name}")
        if len(lines) > LONGEST_LOG:
            print(f"    ({len(lines) - LONGEST_LOG} lines before these)")
        print("\n".join("    " + line for line in lines[-LONGEST_LOG:]), flush=True)

    def run(self, name, *command, **options):
        """One check that a command decides; returns whether it passed."""
        ok, log = output_of(*command, **options)
        self.add(name, ok, log)
        return ok

    def last_line(self):
        return f"{self.passed} passed, {self.failed} failed"


def output_of(*command, env=None, **options):
    """Whether the command ended well, and all that it said."""
    try:
        result = subprocess.run(
            [str(word) for word in command], env={**os.environ, **(env or {})},
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
            text=True, errors="replace", check=False, **options)
    except OSError as error:
        return False, str(error)
    called = textwrap.shorten(" ".join(map(str, command)), 200)
    return result.returncode == 0, f"$ {called}\n{result.stdout}"
