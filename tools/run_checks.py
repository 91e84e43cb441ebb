#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

"""All tests and checks of the project, one stage after the other; a stage runs even when an earlier
one failed. The last line says how many checks passed and how many failed."""

import argparse
import os
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import lint
from report import Report, output_of

ROOT = Path(__file__).resolve().parent.parent
BUILD = Path("build")
JOBS = str(os.cpu_count())
FORMATTED_TREES = ("include", "platform", "src", "app", "tests", "benchmarks", "fuzz")
FUZZ_SECONDS = 20

SANITIZER_OPTIONS = {
    "ASAN_OPTIONS": "detect_leaks=1:detect_stack_use_after_return=1",
    "UBSAN_OPTIONS": "print_stacktrace=1",
    # Qt and SQLite are not instrumented: only accesses of our own code are judged.
    "TSAN_OPTIONS": "ignore_noninstrumented_modules=1",
}


def fixed_addresses():
    """The sanitizers map their shadow at fixed places, where a randomised layout may collide."""
    words = ["setarch", "-R"]
    return words if output_of(*words, "true")[0] else []


def check_format(report):
    for tree in FORMATTED_TREES:
        files = sorted(path for path in Path(tree).rglob("*") if path.suffix in (".h", ".cpp"))
        if files:
            report.run(f"format of {tree}", "clang-format", "--dry-run", "-Werror", *files)


def check_sources(report):
    report.run("self-test of the checks", sys.executable, "tools/test_checks.py")
    report.run("layers", sys.executable, "tools/check_layers.py")
    report.run("licences, waiting tests, long files", sys.executable, "tools/check_text.py")


def build(report, preset):
    """Configures and builds as far as it goes, one check; returns whether there is a build."""
    configured, log = output_of("cmake", "--preset", preset)
    ok = configured
    if configured:
        ok, log = output_of("cmake", "--build", "--preset", preset,
                            "--", "-k", "0", "--quiet")
    report.add(f"build of {preset}", ok, log)
    return configured


def run_tests(report, preset, *words):
    """One check for each test binary, also for those that could not be built."""
    results = BUILD / preset / "results.xml"
    results.unlink(missing_ok=True)
    _, log = output_of(*fixed_addresses(), "ctest", "--test-dir", BUILD / preset, "-j", JOBS,
                       "--no-tests=error", "--output-junit", results.resolve(), *words,
                       env=SANITIZER_OPTIONS)
    if not results.exists():
        report.add(f"tests of {preset}", False, log)
        return
    for case in ElementTree.parse(results).getroot().iter("testcase"):
        name = f"{case.get('name')} ({preset})"
        report.add(name, case.get("status") == "run", case.findtext("system-out") or "")


def check_sanitized(report, preset, *words):
    if build(report, preset):
        run_tests(report, preset, *words)


def check_lint(report, everything):
    folder = BUILD / "tidy"
    ok, log = output_of("cmake", "--preset", "tidy")
    sources = lint.compiled_sources(folder) if ok else []
    if not everything:
        sources = lint.to_lint(sources, lint.changed_files())
    if sources:
        ok, log = lint.generate_moc_files(folder, sources)
    if ok:
        lint.lint(report, folder, sources)
    else:
        report.add("clang-tidy", False, log)


def flags_for_users(prefix):
    """What pkg-config tells a user of the installed library, None when it refuses."""
    folder = next(prefix.rglob("daskel.pc"), prefix).parent
    result = subprocess.run(["pkg-config", "--cflags", "--libs", "daskel"], text=True, check=False,
                            env={**os.environ, "PKG_CONFIG_PATH": str(folder)}, capture_output=True)
    return result.stdout.split() if result.returncode == 0 else None


def check_headers_alone(report, prefix, flags):
    headers = sorted(prefix.glob("include/**/*.h"))
    compiler = ("g++", "-std=c++17", "-fPIC", "-fsyntax-only", "-Wall", "-Wextra", "-Werror")
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        results = pool.map(lambda header: output_of(*compiler, "-x", "c++", header, *flags), headers)
        for header, (ok, log) in zip(headers, results):
            report.add(f"installed {header.relative_to(prefix)} alone", ok, log)


def check_installed(report):
    """Installs to a prefix of its own and builds a user's project on it in both ways."""
    folder, prefix = BUILD / "install-test", (BUILD / "install-test/prefix").resolve()
    consumer = Path("tests/install/consumer")
    programs = {"CMake": BUILD / "consumer/consumer", "pkg-config": BUILD / "consumer-pkg-config"}
    steps = {
        # Not optimised: what is tried is the package, and that takes a third of the time.
        "configure for installing": (
            "cmake", "--preset", "release", "-B", folder, f"-DCMAKE_INSTALL_PREFIX={prefix}",
            "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DDASKEL_PCH=ON"),
        "build for installing": ("cmake", "--build", folder),
        "install": ("cmake", "--install", folder),
        "configure on the installed package": (
            "cmake", "-G", "Ninja", "-S", consumer, "-B", BUILD / "consumer",
            f"-DCMAKE_PREFIX_PATH={prefix}"),
        "build on the installed package": ("cmake", "--build", BUILD / "consumer"),
    }
    if not all(report.run(name, *command) for name, command in steps.items()):
        return
    flags = flags_for_users(prefix)
    report.add("daskel.pc", flags is not None, "pkg-config does not read daskel.pc")
    if flags is None:
        return
    report.run("build with pkg-config", "g++", "-std=c++17", "-fPIC", consumer / "main.cpp",
               "-o", programs["pkg-config"], *flags)
    libraries = next(prefix.rglob("libdaskel.so"), prefix).parent
    for way, program in programs.items():
        with tempfile.TemporaryDirectory() as data:
            report.run(f"program built with {way}", program.resolve(), data,
                       env={"LD_LIBRARY_PATH": str(libraries)} if way == "pkg-config" else None)
    report.run("installed program", prefix / "bin/daskel", "--version")
    check_headers_alone(report, prefix, flags)


def check_fuzzers(report):
    if not build(report, "fuzz"):
        return
    for program in sorted((BUILD / "fuzz/fuzz").glob("fuzz_*")):
        if not program.is_file() or not os.access(program, os.X_OK):
            continue
        with tempfile.TemporaryDirectory() as found:
            report.run(program.name, program, f"-max_total_time={FUZZ_SECONDS}", "-seed=1",
                       f"-artifact_prefix={BUILD}/fuzz/", found, Path("fuzz/seeds") / program.name)


def main():
    parser = argparse.ArgumentParser(prog="./test", description="Runs every test and check.")
    parser.add_argument("--all", action="store_true",
                        help="lint every file, not only changed ones; run the fuzzers; import and "
                             "export the calendars of other programs where they are there")
    arguments = parser.parse_args()
    os.chdir(ROOT)

    report = Report()
    stages = {
        "format": lambda: check_format(report),
        "layers and sources": lambda: check_sources(report),
        "tests, address and undefined": lambda: check_sanitized(report, "asan"),
        "tests, thread": lambda: check_sanitized(report, "tsan", "-L", "threaded"),
        "clang-tidy": lambda: check_lint(report, arguments.all),
        "install": lambda: check_installed(report),
    }
    if arguments.all:
        stages["fuzzers"] = lambda: check_fuzzers(report)
        stages["calendars of other programs"] = lambda: report.run(
            "import and export", "tools/check-corpus.sh", BUILD / "asan", env=SANITIZER_OPTIONS)
    for name, check in stages.items():
        with report.stage(name):
            check()
    print(report.last_line())
    return 1 if report.failed else 0


if __name__ == "__main__":
    sys.exit(main())
