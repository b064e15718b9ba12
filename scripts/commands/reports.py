"""Counts test cases from what CTest and GoogleTest wrote.

CTest's JUnit file has one entry a test program and says how the program ended. Beside it each
GoogleTest program leaves an XML report of its own, where every test case counts.
"""

import xml.etree.ElementTree as xml

from commands.tally import Tally

# Enough of a program's output to see why it died.
OUTPUT_LINES = 60


def _parse(path):
    # Test output may hold any bytes; the reports are UTF-8 only where the programs were.
    return xml.fromstring(path.read_text(encoding="utf-8", errors="replace"))


def _tail(text):
    lines = (text or "").rstrip().splitlines()
    return "\n".join(lines[-OUTPUT_LINES:]) or "no output"


def count_cases(report, program):
    """The tally of one GoogleTest XML report."""
    tally = Tally()
    for case in _parse(report).iter("testcase"):
        name = f"{program}: {case.get('classname')}.{case.get('name')}"
        failures = case.findall("failure")
        skipped = case.find("skipped")
        if failures:
            seen = "\n".join(failure.text or failure.get("message", "") for failure in failures)
            tally.failures.append((name, seen))
        elif case.get("status") == "notrun":
            tally.skips.append((name, "disabled in the source"))
        elif skipped is not None:
            lines = (skipped.text or skipped.get("message") or "").strip().splitlines()
            # The first line says where in the source.
            tally.skips.append((name, " ".join(lines[1:]) or "no reason given"))
        else:
            tally.passed += 1
    return tally


def _count_program(entry, report, program):
    output = entry.findtext("system-out")
    well = entry.get("status") == "run"
    if not report.exists():
        # A program that ended well is no better: nobody knows which cases it ran.
        return Tally(failures=[(program, f"left no report:\n{_tail(output)}")])
    try:
        tally = count_cases(report, program)
    except xml.ParseError as error:
        return Tally(failures=[(program, f"its report cannot be read: {error}\n{_tail(output)}")])
    if not well and not tally.failures:
        # All cases passed and then the program died, or a sanitizer spoke up at its end.
        tally.failures.append((program, f"ended badly after its tests:\n{_tail(output)}"))
    return tally


def count(junit, reports, preset):
    """The tally of a CTest run; `reports` is the folder of the programs' own reports."""
    tally = Tally()
    for entry in _parse(junit).iter("testcase"):
        name = entry.get("name")
        tally.add(_count_program(entry, reports / f"{name}.xml", f"{preset} {name}"))
    return tally
