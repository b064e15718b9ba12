"""The ZIP of the test programs, tried as a person would: unpacked, started, its report read."""

import os
import re
import shutil
import zipfile

from commands.steps import call
from commands.tally import Tally
from commands.wine import RUN, windows_path
from report_pictures import pictures_of

PNG = b"\x89PNG\r\n\x1a\n"


class TestPackage:
    """The ZIP of the win64 preset, in a folder whose name has a blank and Japanese characters."""

    def __init__(self, root):
        self._bin = root / "build/win64/bin"
        self._folder = root / "build/test-package" / "試験 package"
        [self._zip] = (root / "build/win64").glob("tavix-tests-*.zip")
        self._unpacked = self._folder / self._zip.stem

    def unpack(self):
        shutil.rmtree(self._folder, ignore_errors=True)
        with zipfile.ZipFile(self._zip) as package:
            package.extractall(self._folder)

    def report_of(self, limit, *programs):
        """(whether run_tests.cmd ended with the code of failures, the report it left)."""
        report = self._unpacked / "tavix-test-report.txt"
        report.unlink(missing_ok=True)
        command = windows_path(self._unpacked / "run_tests.cmd")
        well, printed = call([RUN, "cmd", "/c", command, "--limit", str(limit), *programs],
                             env=os.environ)
        if not report.exists():
            return well, printed
        return well, report.read_text(encoding="utf-8-sig")

    def outside(self, program):
        """A program that is no part of the package."""
        return windows_path(self._bin / program)


def _missing(report, *patterns):
    return [pattern for pattern in patterns if not re.search(pattern, report, re.MULTILINE)]


def _good_programs(package):
    """Programs that read cases, pictures and the sample survey pass; the machine is described."""
    well, report = package.report_of(300, "portable_tests.exe", "button_picture_tests.exe")
    missing = _missing(
        report, r"^Windows +\d+\.\d+\.\d+", r"^Screen for tests +\d+ x \d+ pixels, \d+ bits",
        r"^Text smoothing +(on|off), type \d", r"^Locale +\S", r"^Language +\S",
        r"^Programs +2 of 2 have run$", r"^Tests +\d+ passed, 0 failed, .* 0 programs hung",
        r"^ok +portable_tests: \d\d+ passed, 0 failed, \d+ skipped, [\d.]+ s$",
        r"^---- End of the report ----$")
    return well and not missing, f"missing: {missing}\n{report}"


def _bad_program(package, limit, program, ending):
    """Failed, skipped and broken off in one program; three comparisons with both pictures."""
    well, report = package.report_of(limit, package.outside(f"{program}.exe"))
    missing = _missing(
        report, rf"^FAILED +{program}: 1 passed, 1 failed, 1 skipped, [\d.]+ s, {ending}",
        r"Misbehaving\.FailsWithPictures failed$", r"^comparison 3$", r"^skipped on purpose$",
        r"^\w+ on purpose$", r"^---- End of the report ----$")
    pictures = list(pictures_of(report))
    whole = len(pictures) == 6 and all(content.startswith(PNG) for _, _, content in pictures)
    return not well and not missing and whole, f"missing: {missing}\n{report}"


def check_test_package(root):
    """Counts each run of run_tests.cmd as one check."""
    package = TestPackage(root)
    package.unpack()
    tally = Tally()
    for name, run in (
        ("good programs", lambda: _good_programs(package)),
        ("a program that hangs",
         lambda: _bad_program(package, 5, "program_that_hangs", r"HUNG, .*, in Misbehaving\.Hangs")),
        ("a program that crashes",
         lambda: _bad_program(package, 60, "program_that_crashes",
                              r"CRASHED, exit code 0xC0000005, in Misbehaving\.Crashes")),
    ):
        well, seen = run()
        if well:
            tally.passed += 1
        else:
            tally.failures.append((f"test package: {name}", seen))
    return tally
