#!/usr/bin/env python3
"""Builds every preset, runs all tests and checks, and ends with a plain count; see ./test.

    scripts/run_tests.py

Expects the packages of scripts/setup.sh. Exits with 1 when anything failed.
"""

import os
import shutil
import sys
from pathlib import Path

from commands.installer import check_packages
from commands.package import check_hosts
from commands.reports import count
from commands.script_tests import count_script_tests
from commands.steps import Steps, call
from commands.tally import Tally
from commands.test_package import check_test_package

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build"
JOBS = os.cpu_count() or 1
# Test programs side by side. Those under Wine wait for their windows half of the time.
PROGRAMS = {"native": JOBS, "win64": JOBS + 1}
TIMEOUT = "600"  # seconds a test program may take; a hung one must not hang the run


def configure_and_build(preset):
    """The commands that do both."""
    return (
        ["cmake", "--preset", preset, "--log-level=WARNING"],
        ["cmake", "--build", "--preset", preset, "--parallel", JOBS],
    )


def run_programs(preset, watch):
    """All test programs of a preset through CTest, side by side."""
    reports = BUILD / preset / "test-results"
    junit = BUILD / preset / "ctest.xml"
    # A report left by an earlier run would speak for a program that died in this one.
    shutil.rmtree(reports, ignore_errors=True)
    junit.unlink(missing_ok=True)
    _, output = call(
        ["ctest", "--test-dir", BUILD / preset, "--no-tests=error", "--output-junit", junit]
        + ["--parallel", PROGRAMS[preset], "--timeout", TIMEOUT]
        + ["--test-output-size-passed", "100000", "--test-output-size-failed", "100000"],
        watch,
    )
    if not junit.exists():
        return Tally(failures=[(f"{preset} tests", output)])
    return count(junit, reports, preset)


def other_compilers():
    """The C header with the rules of Visual C++, the other languages with their own compilers."""
    out = BUILD / "languages"
    out.mkdir(parents=True, exist_ok=True)
    sources = [*(ROOT / "bindings/csharp").glob("*.cs"), ROOT / "samples/csharp/Sample.cs"]
    yield ["mcs", "-warnaserror", "-r:System.Windows.Forms", "-r:System.Drawing",
           f"-out:{out}/sample_csharp.exe", *sources]
    yield ["fpc", "-v0", f"-FE{out}", ROOT / "bindings/pascal/TavixCalls.pas"]
    for source in ("bindings/python/tavix_calls.py", "bindings/python/tavix.py",
                   "samples/python/sample.py"):
        yield ["python3", "-c", "import ast, sys; ast.parse(open(sys.argv[1]).read())",
               ROOT / source]
    for machine in ("x86_64", "i686"):
        for language in ("c", "c++"):
            yield (["clang", f"--target={machine}-pc-windows-msvc", "-fsyntax-only", "-Werror"]
                   + ["-Wall", "-Wextra", "-x", language, ROOT / "include/tavix/tavix_c.h"])


def plan():
    """The steps, each with its share of the whole: see Steps."""
    steps = Steps()
    title = "checking the layout of the sources"
    steps.check(4, title, [ROOT / "scripts/format.sh", "--check"])
    steps.check(1, "checking who includes whom", [ROOT / "scripts/check_includes.py"])
    title = "checking that a test asks for every exported call"
    steps.check(1, title, [ROOT / "scripts/check_call_tests.py"])
    steps.check(1, "checking the pages of the guide", [ROOT / "scripts/check_guide.py"],
                [ROOT / "scripts/check_translations.py"])
    title = "checking the declarations of other languages"
    steps.check(1, title, [ROOT / "bindings/make_bindings.py", "--check"], *other_compilers())
    steps.count(2, "testing the scripts", lambda _: count_script_tests(ROOT / "tests/scripts"))
    title = "making the documents as HTML"
    steps.check(8, title, *configure_and_build("docs"))
    steps.build(90, "building native", *configure_and_build("native"))
    steps.count(22, "testing native", lambda watch: run_programs("native", watch))
    steps.check(75, "checking with clang-tidy", *configure_and_build("tidy"))
    steps.build(230, "building win64", *configure_and_build("win64"))
    steps.count(84, "testing win64", lambda watch: run_programs("win64", watch))
    steps.build(8, "packing the tests",
                ["cmake", "--build", BUILD / "win64", "--target", "test_zip"])
    steps.count(20, "testing the packed tests", lambda _: check_test_package(ROOT))
    steps.build(100, "building win32", *configure_and_build("win32"))
    for preset, runs in (("win64", True), ("win32", False)):
        library = BUILD / preset / "bin/tavix.dll"
        title = f"checking the exported calls of {preset}"
        steps.check(
            1, title, *([ROOT / "scripts/check_exports.py", "--dll", library.with_name(name)]
                        for name in ("tavix.dll", "tavix_c.dll")))
        title = f"building hosts against the {preset} package"
        steps.count(15, title, lambda _, preset=preset, runs=runs: check_hosts(ROOT, preset, runs))
        title = f"making the {preset} packages" + (", installing and removing one" if runs else "")
        steps.count(
            15, title, lambda _, preset=preset, runs=runs: check_packages(ROOT, preset, runs))
    return steps


def main():
    os.chdir(ROOT)
    # Each Windows program gets a Wine prefix and a display of its own: scripts/wine_desk.sh.
    os.environ["TAVIX_DESKS"] = str(PROGRAMS["win64"])
    steps = plan()
    well = steps.run()
    for name, reason in steps.tally.skips:
        print(f"skipped {name}: {reason}")
    print(steps.tally.line())
    return 0 if well and steps.tally.passed else 1


if __name__ == "__main__":
    sys.exit(main())
