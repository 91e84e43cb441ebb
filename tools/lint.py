# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

"""clang-tidy over the files that changed, or over all; what was clean is not looked at again until
it, a header or the configuration changes."""

import hashlib
import json
import os
import re
import subprocess
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from report import output_of

EMPTY_TREE = "4b825dc642cb6eb9a060e54bf8d69288fbee4904"
CONFIGURATION = ".clang-tidy"
# The macros of QtTest unfold into nested conditions: these would judge the macros, for twice the
# time of all the others.
NOT_IN_TESTS = ("clang-analyzer-*", "readability-function-size")


def git(*words):
    """What git answers, empty when it refuses."""
    return subprocess.run(["git", *words], capture_output=True, text=True, check=False).stdout


def changed_files():
    """What differs from the last commit on main; on main itself, what the last commit and the
    working tree changed."""
    head = git("rev-parse", "--verify", "-q", "HEAD").strip()
    main = (git("rev-parse", "--verify", "-q", "origin/main")
            or git("rev-parse", "--verify", "-q", "main")).strip()
    base = git("merge-base", "HEAD", main).strip() if main else head
    if base == head:
        base = git("rev-parse", "--verify", "-q", "HEAD~1").strip() or EMPTY_TREE
    names = git("diff", "--name-only", base) + git("ls-files", "--others", "--exclude-standard")
    return {Path(name) for name in names.splitlines()}


def included_by(header, sources):
    """A source that shows `header` to clang-tidy: the one of its name, or else any."""
    pattern = re.compile(rf'#\s*include\s*[<"]([^">]*/)?{re.escape(header.name)}[">]')
    found = [source for source in sources if pattern.search(source.read_text())]
    stem = header.stem.removesuffix("_p")
    return min(found, default=None, key=lambda source: (source.stem != stem, source))


def to_lint(compiled, changed):
    """Those of the compiled sources that `changed` asks for."""
    if Path(CONFIGURATION) in changed:
        return compiled
    headers = [path for path in changed if path.suffix == ".h" and path.exists()]
    wanted = {included_by(header, compiled) for header in headers} | changed
    return [source for source in compiled if source in wanted]


def compile_commands(build):
    """The compile command of each of our sources; what was generated lies in the build folder."""
    commands = json.loads((build / "compile_commands.json").read_text())
    ours = {Path(os.path.relpath(command["file"])): command for command in commands}
    return {path: ours[path] for path in sorted(ours) if path.parts[0] not in ("..", build.parts[0])}


def compiled_sources(build):
    return list(compile_commands(build))


def generate_moc_files(build, sources):
    """Runs moc for the targets of these sources, and what else of theirs is generated before."""
    commands = compile_commands(build)
    owners = {re.search(r" -o \S*CMakeFiles/([^/]+)\.dir/", commands[source]["command"])[1]
              for source in sources}
    targets = subprocess.run(["ninja", "-C", build, "-t", "targets", "all"],
                             capture_output=True, text=True, check=False).stdout
    autogen = set(re.findall(r"^([\w-]+)_autogen: phony", targets, re.MULTILINE)) & owners
    names = [f"{target}_autogen" for target in sorted(autogen)]
    return output_of("ninja", "-C", build, *names) if names else (True, "")


def digest(*paths):
    sums = hashlib.sha256()
    for path in paths:
        sums.update(path.read_bytes())
    return sums.hexdigest()


def lint(report, build, sources):
    """One check for each source, as many at a time as there are processors."""
    headers = sorted(Path(name) for name in git("ls-files", "*.h").splitlines() if Path(name).exists())
    common = digest(Path(CONFIGURATION), *headers)
    memory = build / "clean.json"
    clean = json.loads(memory.read_text()) if memory.exists() else {}

    def check(source):
        state = common + digest(source)
        if clean.get(str(source)) == state:
            return source, state, True, ""
        left_out = NOT_IN_TESTS if "tests" in source.parts else ()
        return source, state, *output_of("clang-tidy", "--quiet", "-p", build,
                                         f"--checks={','.join('-' + check for check in left_out)}",
                                         source)

    with ThreadPoolExecutor(os.cpu_count()) as pool:
        for source, state, ok, log in pool.map(check, sources):
            report.add(f"clang-tidy {source}", ok, log)
            if ok:
                clean[str(source)] = state
    memory.write_text(json.dumps(clean, indent=1))
