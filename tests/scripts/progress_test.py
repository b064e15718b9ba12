"""What is said of how far a command is, and of how much of a plan is left."""

import contextlib
import io
import sys
import unittest
from pathlib import Path
from unittest import mock

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

from commands import steps
from commands.progress import TimeLeft, finished_of, in_words, without_counts
from commands.tally import Tally


class Counts(unittest.TestCase):
    def test_the_last_count_is_read(self):
        rows = (
            ("", None),
            ("-- Configuring done\n", None),
            ("[1/340] Building a.cpp\n[12/340] Building b.cpp\n", (12, 340)),
            ("[12/340] Building b.cpp\nwarning: 3/4 of it\n", (12, 340)),
            ("      Start  7: clip_tests\n 3/24 Test  #7: clip_tests ...   Passed  0.1 sec\n", (3, 24)),
            # A tail may begin anywhere in a line.
            ("/340] Building a.cpp\n[13/340] Building b.cpp\n", (13, 340)),
        )
        for output, found in rows:
            with self.subTest(output=output):
                self.assertEqual(found, finished_of(output))

    def test_counts_are_left_out_of_what_a_failure_shows(self):
        output = "[1/3] Building a.cpp\nFAILED: b.obj\n[12] is no count\n[2/3] Building c.cpp\nend"
        self.assertEqual("FAILED: b.obj\n[12] is no count\nend", without_counts(output))


class Left(unittest.TestCase):
    def after(self, *seconds):
        """What is left of a plan after steps that took so long."""
        left = TimeLeft([100, 300, 200])
        for taken in seconds:
            left.finish(taken)
        return left

    def test_the_pace_so_far_scales_what_is_left(self):
        rows = (
            ((), 0, 0, 600),
            ((100,), 0, 0, 500),
            ((100,), 0.5, 150, 350),
            ((100, 300), 1, 200, 0),
            # 200 and 60 seconds were expected where it took 400 and 60.
            ((200,), 1 / 3, 200, 400 * 460 / 260),
            # 400 and 60 seconds were expected where it took 200 and 60.
            ((50, 150), 0, 0, 200 * 260 / 460),
        )
        for finished, part, spent, left in rows:
            with self.subTest(finished=finished, part=part):
                self.assertAlmostEqual(left, self.after(*finished).seconds(part, spent))

    def test_a_step_with_nothing_to_do_says_nothing_of_the_pace(self):
        self.assertAlmostEqual(500, self.after(2).seconds())
        self.assertAlmostEqual(200, self.after(2, 3).seconds())
        self.assertAlmostEqual(200 * 660 / 360, self.after(2, 600).seconds())

    def test_it_is_said_in_minutes(self):
        rows = (
            (0, "less than a minute"),
            (29, "less than a minute"),
            (31, "about 1 min"),
            (600, "about 10 min"),
        )
        for seconds, words in rows:
            with self.subTest(seconds=seconds):
                self.assertEqual(words, in_words(seconds))


class Lines(unittest.TestCase):
    def said(self, plan):
        """Whether the plan went well, and what it printed."""
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            well = plan.run()
        return well, printed.getvalue()

    def test_each_step_says_its_number_and_what_is_left(self):
        plan = steps.Steps()
        plan.check(60, "asking", ["true"])
        plan.count(120, "counting", lambda watch: Tally(passed=7))
        well, said = self.said(plan)
        self.assertTrue(well)
        self.assertEqual(
            "step 1 of 2, about 3 min left: asking ... 0 s\n"
            "step 2 of 2, about 2 min left: counting ... 0 s, 7 passed\n",
            said,
        )
        self.assertEqual("8 passed, 0 failed", plan.tally.line())

    def test_a_count_is_said_on_a_line_of_its_own(self):
        def build(watch):
            for output in ("configuring\n", "[1/4] Building a\n", "[3/4] Building b\n"):
                watch(output)
            return Tally()

        plan = steps.Steps()
        plan.count(240, "building", build)
        with mock.patch.object(steps, "SAY", 0):
            _, said = self.said(plan)
        self.assertEqual(
            "step 1 of 1, about 4 min left: building ... \n"
            "    1 of 4, about 2 min left\n"
            "    3 of 4, less than a minute left\n"
            "    0 s\n",
            said,
        )

    def test_a_failed_build_shows_its_output_and_ends_the_plan(self):
        plan = steps.Steps()
        plan.build(1, "building", ["sh", "-c", "echo '[1/2] Building'; echo missing; exit 1"])
        plan.check(1, "never begun", ["true"])
        well, said = self.said(plan)
        self.assertFalse(well)
        self.assertIn("0 s, 1 FAILED\n--- building\nmissing\n---\nStopped", said)
        self.assertNotIn("never begun", said)

    def test_a_failed_check_does_not_end_the_plan(self):
        plan = steps.Steps()
        plan.check(1, "asking", ["false"])
        plan.check(1, "asking again", ["true"])
        well, said = self.said(plan)
        self.assertFalse(well)
        self.assertIn("step 2 of 2", said)
        self.assertEqual("1 passed, 1 failed", plan.tally.line())

    def test_a_shown_command_that_fails_ends_the_plan(self):
        plan = steps.Steps()
        plan.show(1, "drawing", ["sh", "-c", "exit 3"])
        plan.check(1, "never begun", ["true"])
        well, said = self.said(plan)
        self.assertFalse(well)
        self.assertIn("drawing: ", said.replace("--- drawing\n", "drawing: "))
        self.assertIn("ended with code 3", said)
        self.assertNotIn("never begun", said)


if __name__ == "__main__":
    unittest.main()
