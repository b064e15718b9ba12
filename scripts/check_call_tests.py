#!/usr/bin/env python3
"""Checks that docs/exported-calls.md still names a test for what each exported call does.

    scripts/check_call_tests.py           the project
    scripts/check_call_tests.py FOLDER    another tree laid out the same way

Every call of frame/tavix.def needs a row for its success there; a row names a call that is
exported and tests that are built, and each of these says something of the call, itself or by a
helper of its file. The tests that docs/limits.md and docs/notifications.md name have to exist too.
Exits with 1 when it found anything else. Whether a test asks for what its row promises, only a
reader can tell.
"""

import re
import sys
from dataclasses import dataclass
from pathlib import Path

from check_exports import listed_calls
from gtest_sources import built_sources, general_name, tests_in

LIST = "docs/exported-calls.md"
# Pages that name the tests of what they say.
PAGES = ("docs/limits.md", "docs/notifications.md")
TEST_NAME = re.compile(r"`([A-Z]\w+\.[A-Z]\w+)`")


@dataclass(frozen=True)
class Row:
    line: int
    call: str
    result: str
    tests: tuple


def rows(text):
    """The rows of all tables, their headings left out: call, result, condition, tests."""
    found = []
    for number, line in enumerate(text.splitlines(), 1):
        cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
        if not line.startswith("|") or cells[0] == "Call" or set("".join(cells)) <= set("-:"):
            continue
        tests = tuple(re.findall(r"`([^`]+)`", cells[-1])) if len(cells) == 4 else ()
        found.append(Row(number, cells[0].strip("`"), cells[1] if len(cells) > 1 else "", tests))
    return found


def tests_below(folder):
    """The tests of the sources that are built, by name."""
    return {
        test.name: test
        for path in built_sources(folder)
        for test in tests_in(path.read_text(encoding="utf-8"))
    }


def problems(calls, table, tests):
    """One line for each finding: first the calls without a row, then the rows in their order."""
    for call in calls:
        if not any(row.call == call and not row.result.startswith("-") for row in table):
            yield f"{LIST} has no row for the success of {call}"
    for row in table:
        here = f"{LIST}:{row.line}"
        if row.call not in calls:
            yield f"{here}: {row.call} is not exported"
            continue
        if not row.tests:
            yield f"{here}: no test is named"
        for name in row.tests:
            test = tests.get(general_name(name))
            if test is None:
                yield f"{here}: there is no test {name}"
            elif not test.mentions(row.call):
                yield f"{here}: {name} says nothing of {row.call}"


def missing_tests(root, tests):
    """One line for each test that a page names and that is not there."""
    for page in (page for page in PAGES if (root / page).is_file()):
        for number, line in enumerate((root / page).read_text(encoding="utf-8").splitlines(), 1):
            for name in TEST_NAME.findall(line):
                if name not in tests:
                    yield f"{page}:{number}: there is no test {name}"


def main():
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent
    calls = listed_calls((root / "frame/tavix.def").read_text(encoding="utf-8"))
    table = rows((root / LIST).read_text(encoding="utf-8"))
    tests = tests_below(root / "tests")
    found = list(problems(calls, table, tests))
    found += missing_tests(root, tests)
    if not calls:
        found.append("no call found in frame/tavix.def")
    named = {name for row in table for name in row.tests}
    good = f"{len(calls)} calls have {len(table)} rows, which name {len(named)} tests."
    print("\n".join(found) if found else good)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
