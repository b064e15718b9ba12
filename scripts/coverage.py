#!/usr/bin/env python3
"""Which lines and branches of the portable code the native tests and the fuzzers' inputs reach.

    scripts/coverage.py              builds the preset `coverage`, runs its tests, prints the table
    scripts/coverage.py --missed     and lists the functions and lines that are never reached
    scripts/coverage.py --no-run     from the last run

Expects the packages of `scripts/setup.sh fuzz`. What needs windows runs under Wine, where nothing
is counted: those folders are not in the table. Exits with 1 when a test failed.
"""

import argparse
import json
import os
import shutil
import subprocess
import sys
from collections import defaultdict
from pathlib import Path

from check_includes import portable_sources

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build/coverage"
PROFILES = BUILD / "profiles"
MERGED = BUILD / "tests.profdata"
KINDS = ("lines", "branches", "functions")
# Folders whose code is asked about; tests and fuzzers only ask.
FOLDERS = ("draw", "figure", "host", "platform", "store", "view", "window")


def run_tests():
    """Builds the tests and runs them all; whether they passed."""
    for command in (["cmake", "--preset", "coverage", "--log-level=WARNING"],
                    ["cmake", "--build", "--preset", "coverage", "--parallel", str(os.cpu_count())]):
        subprocess.run(command, cwd=ROOT, check=True)
    shutil.rmtree(PROFILES, ignore_errors=True)
    environment = {**os.environ, "LLVM_PROFILE_FILE": f"{PROFILES}/%p.profraw"}
    well = subprocess.run(
        ["ctest", "--test-dir", BUILD, "--parallel", str(os.cpu_count()), "--output-on-failure"],
        env=environment,
        check=False,
    ).returncode
    subprocess.run(
        ["llvm-profdata", "merge", "-sparse", "-o", MERGED, *PROFILES.glob("*.profraw")],
        check=True,
    )
    return well == 0


def programs():
    """The programs that the profiles are of."""
    tests = json.loads(
        subprocess.run(["ctest", "--test-dir", BUILD, "--show-only=json-v1"],
                       capture_output=True, text=True, check=True).stdout
    )["tests"]
    return sorted({test["command"][0] for test in tests})


def exported():
    """What llvm-cov knows: our files with their summaries and segments, and all functions."""
    first, *others = programs()
    objects = [word for program in others for word in ("-object", program)]
    report = subprocess.run(
        ["llvm-cov", "export", f"-instr-profile={MERGED}", first, *objects],
        capture_output=True, text=True, check=True,
    )
    data = json.loads(report.stdout)["data"][0]
    # A compiler cache may have made the names relative to where the compiler ran.
    absolute = lambda name: os.path.normpath(BUILD / name)
    files = [{**file, "filename": absolute(file["filename"])} for file in data["files"]]
    functions = [{**each, "file": absolute(each["filenames"][0])} for each in data["functions"]]
    return [file for file in files if is_ours(file["filename"])], functions


def is_ours(path):
    """Whether the file is in one of the folders that are asked about."""
    return Path(path).is_relative_to(ROOT) and Path(path).relative_to(ROOT).parts[0] in FOLDERS


def folder_of(path):
    """A folder of the table: two levels of those that have many ideas."""
    parts = Path(path).relative_to(ROOT).parts[:-1]
    return "/".join(parts[:2] if parts[0] in ("host", "platform", "draw", "window") else parts[:1])


def print_table(files):
    totals = defaultdict(lambda: {kind: [0, 0] for kind in KINDS})
    for file in files:
        for name in (folder_of(file["filename"]), "all"):
            for kind in KINDS:
                totals[name][kind][0] += file["summary"][kind]["covered"]
                totals[name][kind][1] += file["summary"][kind]["count"]
    print(f"{'':24}" + "".join(f"{kind:>22}" for kind in KINDS))
    for name in sorted(totals, key=lambda each: (each == "all", each)):
        cells = []
        for kind in KINDS:
            covered, count = totals[name][kind]
            share = f"{100 * covered / count:.1f} %" if count else "-"
            cells.append(f"{covered} of {count} {share:>8}")
        print(f"{name:24}" + "".join(f"{cell:>22}" for cell in cells))


def print_absent(files):
    """The portable sources that no native program has: not one line of them was counted."""
    counted = {str(Path(file["filename"]).relative_to(ROOT)) for file in files}
    for source in portable_sources(ROOT):
        if source not in counted:
            print(f"in no native test program: {source}")


def missed_lines(file):
    """The numbers of the lines on which a region that is never reached begins."""
    missed = set()
    for line, _, count, counted, begins, gap in (segment[:6] for segment in file["segments"]):
        if counted and begins and not gap and count == 0:
            missed.add(line)
    return sorted(missed)


def print_missed(files, functions):
    """Functions that are never entered in any instance, then the lines of each file."""
    entered = defaultdict(int)
    for function in functions:
        entered[(function["file"], function["regions"][0][0])] += function["count"]
    for file in sorted(files, key=lambda each: each["filename"]):
        path = file["filename"]
        lines = missed_lines(file)
        if not lines:
            continue
        text = Path(path).read_text(encoding="utf-8").splitlines()
        print(f"\n{Path(path).relative_to(ROOT)}")
        for line in lines:
            kind = "function" if entered.get((path, line)) == 0 else "        "
            print(f"  {kind} {line:5}: {text[line - 1].strip()}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--missed", action="store_true", help="list what is never reached")
    parser.add_argument("--no-run", action="store_true", help="from the last run")
    options = parser.parse_args()
    well = options.no_run or run_tests()
    files, functions = exported()
    print_table(files)
    print_absent(files)
    if options.missed:
        print_missed(files, functions)
    return 0 if well else 1


if __name__ == "__main__":
    sys.exit(main())
