"""What is counted in a small tree."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

from headers_seeing import headers_seeing
from measure_sources import measures

TREE = {
    "view/clip.h": "#include <array>\n",
    "view/clip.cpp": '#include "view/clip.h"\n' + "\n" * 39,
    "store/clip.h": "#include <windows.h>\n",
    "window/plot.h": '#include "store/clip.h"\nbool display_3d_;\n',
    "window/plot.cpp": '#include "window/plot.h"\nif (display_3d_) a = !display_3d_;\n',
    "platform/gdi.h": '#include "view/clip.h"\n',
    "frame/exports_points.cpp": '#include "window/plot.h"\n#include "platform/gdi.h"\nreturn -1;\n',
    "frame/exports_lines.cpp": '#include "view/clip.h"\nreturn -12;\n',
    "frame/instance.cpp": "return -1;\n",
    "tests/view/clip.cpp": "return -1;\n",
    "docs/how-to-add.md": "# How\n\n1. no\n\n## A mark\n\n1. one\n   a\n2. two\n\n## Another\n\n1. one\n",
}


class Measures(unittest.TestCase):
    def in_tree(self, find, tree):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in tree.items():
                path = Path(folder) / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            return find(Path(folder))

    def counts(self, tree):
        return self.in_tree(lambda root: dict(measures(root)), tree)

    def test_what_is_counted(self):
        expected = {
            "files": 9,
            "lines": 53,
            "median of lines": "2",
            "crumbs (under 30 lines)": 8,
            "most lines": 40,
            "file names that occur twice": "1 clip.h",
            "circles of includes": 0,
            "headers an exports file sees": "1 to 4",
            "of these the library's own": "1 to 3",
            "'return -1' in exports": 1,
            "places asking display_3d_": 3,
            "places to touch for a mark": 2,
            "places to touch for another": 1,
            "files of tests": 1,
        }
        self.assertEqual(expected, self.counts(TREE))

    def test_a_circle_is_counted(self):
        tree = {**TREE, "view/clip.h": '#include "platform/gdi.h"\n'}
        self.assertEqual(1, self.counts(tree)["circles of includes"])

    def test_headers_that_include_one_of_the_system(self):
        found = self.in_tree(lambda root: headers_seeing("windows.h", root), TREE)
        self.assertEqual(["store/clip.h", "window/plot.h"], found)


if __name__ == "__main__":
    unittest.main()
