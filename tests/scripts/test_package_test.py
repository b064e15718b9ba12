"""The ZIP of the test programs, and the pictures of a report."""

import sys
import tempfile
import unittest
import zipfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

from make_test_zip import files_of, write_zip
from report_pictures import pictures_of

REPORT = ("chatter\r\n-----BEGIN PICTURE plan_tests/Plan.Draws.1.actual.png-----\r\n"
          "cG5n\r\ncG5n\r\n-----END PICTURE-----\r\n"
          "-----BEGIN PICTURE plan_tests/Plan.Draws.1.expected.png-----\r\n"
          "Zg==\r\n-----END PICTURE-----\r\nend\r\n")


class TestZip(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        (self.root / "cases").mkdir()
        for name in ("b.txt", "a.txt", "c.md"):
            (self.root / "cases" / name).write_text(name)

    def test_files_of_a_pattern_keep_their_places(self):
        contents = f"bin/x.exe\t{self.root}/cases/c.md\n*\t{self.root}/cases/*.txt\n"
        files = files_of(contents, self.root)
        self.assertEqual({"bin/x.exe", "cases/a.txt", "cases/b.txt"}, set(files))
        self.assertEqual("c.md", files["bin/x.exe"].read_text())

    def test_a_pattern_without_files_is_an_error(self):
        with self.assertRaisesRegex(ValueError, "no file"):
            files_of(f"*\t{self.root}/cases/*.rc", self.root)

    def test_the_same_files_give_the_same_bytes(self):
        files = files_of(f"*\t{self.root}/cases/*", self.root)
        out = self.root / "tests-1.zip"
        write_zip(files, out)
        first = out.read_bytes()
        (self.root / "cases/a.txt").touch()
        write_zip(dict(reversed(files.items())), out)
        self.assertEqual(first, out.read_bytes())
        with zipfile.ZipFile(out) as package:
            self.assertEqual(["tests-1/cases/a.txt", "tests-1/cases/b.txt", "tests-1/cases/c.md"],
                             package.namelist())


class ReportPictures(unittest.TestCase):
    def test_each_has_its_program_its_name_and_its_bytes(self):
        self.assertEqual([("plan_tests", "Plan.Draws.1.actual.png", b"pngpng"),
                          ("plan_tests", "Plan.Draws.1.expected.png", b"f")],
                         list(pictures_of(REPORT)))

    def test_a_name_that_leads_elsewhere_is_none(self):
        for name in ("../x.png", "a/../../x.png", "..\\x.png"):
            report = REPORT.replace("Plan.Draws.1.actual.png", name)
            self.assertEqual(1, len(list(pictures_of(report))), name)


if __name__ == "__main__":
    unittest.main()
