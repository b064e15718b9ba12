#!/usr/bin/env python3
"""Builds every preset, runs all tests and checks, and ends with a plain count; see ./test.

    scripts/run_tests.py

Expects the packages of scripts/setup.sh. Exits with 1 when anything failed.
"""

import os
import shutil
import sys
from pathlib import Path

from testrun.package import check_hosts
from testrun.reports import count
from testrun.script_tests import count_script_tests
from testrun.steps import Steps, call
from testrun.tally import Tally

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build"
JOBS = str(os.cpu_count() or 1)
TIMEOUT = "600"  # seconds a test program may take; a hung one must not hang the run


def plan_build(steps, preset):
    steps.build(
        f"building {preset}",
        ["cmake", "--preset", preset, "--log-level=WARNING"],
        ["cmake", "--build", "--preset", preset, "--parallel", JOBS, "--", "--quiet"],
    )


def run_programs(preset):
    """All test programs of a preset through CTest, side by side."""
    reports = BUILD / preset / "test-results"
    junit = BUILD / preset / "ctest.xml"
    # A report left by an earlier run would speak for a program that died in this one.
    shutil.rmtree(reports, ignore_errors=True)
    junit.unlink(missing_ok=True)
    _, output = call(
        ["ctest", "--test-dir", BUILD / preset, "--no-tests=error", "--output-junit", junit]
        + ["--parallel", JOBS, "--timeout", TIMEOUT]
        + ["--test-output-size-passed", "100000", "--test-output-size-failed", "100000"]
    )
    if not junit.exists():
        return Tally(failures=[(f"{preset} tests", output)])
    return count(junit, reports, preset)


def plan():
    steps = Steps()
    steps.check("checking the layout of the sources", [ROOT / "scripts/format.sh", "--check"])
    steps.check("checking who includes whom", [ROOT / "scripts/check_includes.py"])
    title = "checking that a test asks for every exported call"
    steps.check(title, [ROOT / "scripts/check_call_tests.py"])
    steps.count("testing the scripts", lambda: count_script_tests(ROOT / "tests/scripts"))
    plan_build(steps, "native")
    steps.count("testing native", lambda: run_programs("native"))
    plan_build(steps, "win64")
    steps.count("testing win64", lambda: run_programs("win64"))
    plan_build(steps, "win32")
    for preset, runs in (("win64", True), ("win32", False)):
        library = BUILD / preset / "bin/tavix.dll"
        title = f"checking the exported calls of {preset}"
        steps.check(title, [ROOT / "scripts/check_exports.py", "--dll", library])
        title = f"building hosts against the {preset} package"
        steps.count(title, lambda preset=preset, runs=runs: check_hosts(ROOT, preset, runs))
    return steps


def main():
    os.chdir(ROOT)
    # Each Windows program gets a Wine prefix and a display of its own: scripts/wine_desk.sh.
    os.environ["TAVIX_DESKS"] = JOBS
    steps = plan()
    steps.run()
    for name, reason in steps.tally.skips:
        print(f"skipped {name}: {reason}")
    print(steps.tally.line())
    return 1 if steps.tally.failures or not steps.tally.passed else 0


if __name__ == "__main__":
    sys.exit(main())
