"""What is found wrong with a list of calls and their tests."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPTS = Path(__file__).resolve().parents[2] / "scripts"
sys.path.insert(0, str(SCRIPTS))

import check_call_tests
from check_call_tests import Row

SOURCE = """
int Make() { return Tavix_Crt(); }
TEST(Calls, Makes) { EXPECT_EQ(0, Make()); }
TEST(Calls, Ends) { EXPECT_EQ(0, Tavix_Del()); }
TEST_P(Calls, Shows) { EXPECT_EQ(0, Tavix_Dsp(1)); }
INSTANTIATE_TEST_SUITE_P(Flags, Calls, testing::Bool());
"""
GOOD = """
# Calls

| Call | Returns | When | Test |
|---|---|---|---|
| `Tavix_Crt` | 0 | made | `Calls.Makes` |
| `Tavix_Crt` | -1 | made before | `Calls.Makes`, `Calls.Ends` |
| `Tavix_Del` | 0 | | `Calls.Ends` |
| `Tavix_Dsp` | 0 | shown | `Flags/Calls.Shows/0` |
"""


class CallTests(unittest.TestCase):
    def run_on(self, listing, source=SOURCE, limits="`Calls.Makes`"):
        """The exit code and the output on a small tree."""
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            for name, text in (
                ("frame/tavix.def", "EXPORTS\n  Tavix_Crt\n  Tavix_Del\n  Tavix_Dsp\n"),
                ("docs/exported-calls.md", listing),
                ("docs/limits.md", limits),
                ("tests/CMakeLists.txt", "tavix_test(call_tests SOURCES calls_test.cpp)\n"),
                ("tests/calls_test.cpp", source),
            ):
                (root / name).parent.mkdir(exist_ok=True)
                (root / name).write_text(text, encoding="utf-8")
            ended = subprocess.run(
                [sys.executable, SCRIPTS / "check_call_tests.py", root],
                capture_output=True,
                text=True,
                check=False,
            )
            return ended.returncode, ended.stdout

    def test_rows_are_read_from_all_tables(self):
        text = (
            "| Call | Returns | When | Test |\n|---|:-:|---|---|\n"
            "| `Tavix_Crt` | -1 | no | `A.B`, `C/D.E/0` |\n"
            "Tavix_Del is not a row | of a table | at | all\n"
            "| `Tavix_Del` | 0 | `X.Y` |\n"
        )
        self.assertEqual(
            [Row(3, "Tavix_Crt", "-1", ("A.B", "C/D.E/0")), Row(5, "Tavix_Del", "0", ())],
            check_call_tests.rows(text),
        )

    def test_a_whole_list_is_counted(self):
        code, said = self.run_on(GOOD)
        self.assertEqual("3 calls have 4 rows, which name 3 tests.\n", said)
        self.assertEqual(0, code)

    def test_a_page_that_names_a_test_that_is_not_there(self):
        code, said = self.run_on(GOOD, limits="\n| five | `Calls.Makes`, `Calls.Limits` |")
        self.assertEqual("docs/limits.md:2: there is no test Calls.Limits\n", said)
        self.assertEqual(1, code)

    def test_each_hole_is_named(self):
        rows = (
            (9, "| `Tavix_Dsp` | 0 | shown | `Flags/Calls.Shows/0` |", "", " no row for the success"),
            (9, "| 0 |", "| -1 |", " has no row for the success of Tavix_Dsp"),
            (7, "Tavix_Crt", "Tavix_New", ":7: Tavix_New is not exported"),
            (8, "`Calls.Ends`", "none", ":8: no test is named"),
            (6, "Calls.Makes", "Calls.Made", ":6: there is no test Calls.Made"),
            (6, "Calls.Makes", "Other.Makes", ":6: there is no test Other.Makes"),
            (9, "Flags/Calls.Shows/0", "Calls.Shows", ":9: there is no test Calls.Shows"),
            (9, "Flags/Calls.Shows/0", "Calls.Ends", ":9: Calls.Ends says nothing of Tavix_Dsp"),
        )
        for number, before, after, finding in rows:
            with self.subTest(after=after):
                lines = GOOD.splitlines()
                self.assertIn(before, lines[number - 1])
                lines[number - 1] = lines[number - 1].replace(before, after)
                code, said = self.run_on("\n".join(lines))
                self.assertEqual(1, code)
                self.assertEqual(1, len(said.splitlines()), said)
                self.assertIn(finding, said)

    def test_a_test_that_goes_or_is_turned_off_is_missed(self):
        for before, after in (
            ("Calls, Ends", "Calls, Finishes"),
            ("Calls, Ends", "Calls, DISABLED_Ends"),
            ("TEST(Calls, Ends)", "// TEST(Calls, Ends)"),
        ):
            with self.subTest(after=after):
                code, said = self.run_on(GOOD, SOURCE.replace(before, after))
                self.assertEqual(1, code)
                self.assertEqual(2, said.count("there is no test Calls.Ends"), said)

    def test_a_test_that_no_longer_makes_the_call_is_missed(self):
        code, said = self.run_on(GOOD, SOURCE.replace("Tavix_Dsp(1)", "Tavix_DspNot(1)"))
        self.assertEqual(1, code)
        self.assertIn(":9: Flags/Calls.Shows/0 says nothing of Tavix_Dsp", said)


if __name__ == "__main__":
    unittest.main()
