"""How test reports become a count: nothing that failed or died may go uncounted."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

from commands import reports
from commands.tally import Tally

CASES = """<?xml version="1.0" encoding="UTF-8"?>
<testsuites tests="4" failures="1"><testsuite name="Clip">
  <testcase name="Inside" status="run" result="completed" classname="Clip" />
  <testcase name="Corner" status="run" result="completed" classname="Clip">
    <failure message="short" type=""><![CDATA[clip_test.cpp:12
Expected 1]]></failure>
  </testcase>
  <testcase name="Real" status="run" result="skipped" classname="Clip">
    <skipped message="clip_test.cpp:30&#x0A;no survey data here"><![CDATA[clip_test.cpp:30
no survey data here]]></skipped>
  </testcase>
  <testcase name="DISABLED_Slow" status="notrun" result="suppressed" classname="Clip" />
</testsuite></testsuites>
"""
GOOD = CASES.replace('status="notrun"', 'status="run"').replace("failure", "note")


class Reports(unittest.TestCase):
    def count(self, status, report):
        """The tally of one program that ended with `status` and left `report`, None for none."""
        with tempfile.TemporaryDirectory() as folder:
            junit = Path(folder) / "ctest.xml"
            junit.write_text(
                f'<testsuite><testcase name="clip_tests" status="{status}">'
                "<system-out>last words</system-out></testcase></testsuite>",
                encoding="utf-8",
            )
            if report is not None:
                (Path(folder) / "clip_tests.xml").write_bytes(report)
            return reports.count(junit, Path(folder), "win64")

    def test_every_case_counts(self):
        tally = self.count("fail", CASES.encode())
        self.assertEqual("1 passed, 1 failed, 2 skipped", tally.line())
        name, seen = tally.failures[0]
        self.assertEqual("win64 clip_tests: Clip.Corner", name)
        self.assertIn("Expected 1", seen)
        self.assertEqual(
            ["no survey data here", "disabled in the source"], [why for _, why in tally.skips]
        )

    def test_how_a_program_ended_counts_too(self):
        rows = (
            ("run", GOOD.encode(), "3 passed, 0 failed, 1 skipped"),
            # Dead after its last case.
            ("fail", GOOD.encode(), "3 passed, 1 failed, 1 skipped"),
            # Dead before it could write.
            ("fail", None, "0 passed, 1 failed"),
            ("fail", b"<testsuites><tests", "0 passed, 1 failed"),
            # Ended well, but nobody knows which cases it ran.
            ("run", None, "0 passed, 1 failed"),
            ("disabled", None, "0 passed, 1 failed"),
            # Bytes that are no UTF-8 inside a message.
            ("fail", CASES.encode().replace(b"Expected", b"\x83\x5c"), "1 passed, 1 failed, 2 skipped"),
        )
        for status, report, line in rows:
            with self.subTest(status=status, report=report):
                self.assertEqual(line, self.count(status, report).line())

    def test_a_dead_program_leaves_its_last_words(self):
        self.assertIn("last words", self.count("fail", None).failures[0][1])

    def test_the_count_is_plain(self):
        self.assertEqual("0 passed, 0 failed", Tally().line())
        self.assertEqual("2 passed, 1 failed", Tally(2, [("a", "b")]).line())


if __name__ == "__main__":
    unittest.main()
