"""What is made of the counts that llvm-cov gives."""

import contextlib
import io
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

import coverage


def printed(show, *arguments):
    with contextlib.redirect_stdout(io.StringIO()) as text:
        show(*arguments)
    return text.getvalue()


def summary(covered, count):
    return {kind: {"covered": covered, "count": count} for kind in coverage.KINDS}


class Coverage(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        patch = mock.patch.object(coverage, "ROOT", self.root)
        patch.start()
        self.addCleanup(patch.stop)

    def path(self, name):
        return str(self.root / name)

    def test_only_what_is_asked_about_is_ours(self):
        for name, ours in (("view/clip.cpp", True), ("host/app/job.cpp", True),
                           ("tests/view/clip_test.cpp", False), ("fuzzers/replay.cpp", False)):
            with self.subTest(name=name):
                self.assertEqual(ours, coverage.is_ours(self.path(name)))
        self.assertFalse(coverage.is_ours("/usr/include/c++/12/vector"))

    def test_folders_of_many_ideas_are_divided(self):
        for name, folder in (("view/clip.cpp", "view"), ("figure/curves/arc.cpp", "figure"),
                             ("draw/labels.cpp", "draw"), ("draw/dib/glyph.cpp", "draw/dib"),
                             ("host/formats/xml/reader.cpp", "host/formats")):
            with self.subTest(name=name):
                self.assertEqual(folder, coverage.folder_of(self.path(name)))

    def test_the_table_adds_up_folders_and_ends_with_all(self):
        files = [{"filename": self.path("view/clip.cpp"), "summary": summary(1, 4)},
                 {"filename": self.path("view/fit.cpp"), "summary": summary(2, 4)},
                 {"filename": self.path("store/points.cpp"), "summary": summary(0, 0)}]
        rows = [line.split() for line in printed(coverage.print_table, files).splitlines()]
        self.assertEqual([["store"] + ["0", "of", "0", "-"] * 3,
                          ["view"] + ["3", "of", "8", "37.5", "%"] * 3,
                          ["all"] + ["3", "of", "8", "37.5", "%"] * 3], rows[1:])

    def test_lines_are_missed_where_a_region_that_is_never_reached_begins(self):
        # Line, column, count, whether it is counted, whether a region begins, whether it is a gap.
        segments = [[3, 1, 5, True, True, False], [4, 9, 0, True, True, False],
                    [5, 9, 0, True, False, False], [6, 1, 0, True, True, True],
                    [7, 1, 0, False, True, False], [9, 2, 0, True, True, False]]
        self.assertEqual([4, 9], coverage.missed_lines({"segments": segments}))

    def test_what_is_missed_is_shown_with_its_text(self):
        source = self.root / "view/clip.cpp"
        source.parent.mkdir()
        source.write_text("int Clip() {\n  return 1;\n}\nint Never() { return 2; }\n",
                          encoding="utf-8")
        file = {"filename": str(source),
                "segments": [[2, 3, 0, True, True, False], [4, 1, 0, True, True, False]]}
        never = {"file": str(source), "regions": [[4, 1]], "count": 0}
        clip = {"file": str(source), "regions": [[1, 1]], "count": 7}
        said = printed(coverage.print_missed, [file], [clip, never])
        self.assertEqual("\nview/clip.cpp\n"
                         "               2: return 1;\n"
                         "  function     4: int Never() { return 2; }\n", said)

    def test_a_function_that_some_program_enters_is_not_missed(self):
        source = self.root / "view/clip.h"
        source.parent.mkdir()
        source.write_text("int Clip() { return 1; }\n", encoding="utf-8")
        file = {"filename": str(source), "segments": [[1, 1, 0, True, True, False]]}
        counts = [{"file": str(source), "regions": [[1, 1]], "count": count} for count in (0, 3)]
        self.assertNotIn("function", printed(coverage.print_missed, [file], counts))

    def test_portable_sources_that_no_program_has_are_named(self):
        files = [{"filename": self.path("view/clip.cpp")}]
        with mock.patch.object(coverage, "portable_sources",
                               return_value=["view/clip.cpp", "view/fit.cpp"]):
            self.assertEqual("in no native test program: view/fit.cpp\n",
                             printed(coverage.print_absent, files))


if __name__ == "__main__":
    unittest.main()
