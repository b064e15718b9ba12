"""The include rules, on small trees that keep or break them."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

import check_includes


class IncludeRules(unittest.TestCase):
    def problems(self, files, find=check_includes.problems):
        """What `find` finds in a tree of {path: text}."""
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            for name, text in files.items():
                path = root / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            return find(root)

    def test_what_each_folder_may_know(self):
        allowed = (
            ("store/point_list.h", '#include "view/coordinates.h"'),
            ("store/hanrei.cpp", "#include <afxwin.h>"),
            ("draw/plan_view.h", '#include "store/point_list.h"'),
            ("window/plot_window.h", '#include "draw/plan_view.h"'),
            ("frame/slot_table.h", '#include "window/plot_window.h"'),
            ("host/main.cpp", "#include <tavix/tavix.h>"),
            ("platform/framework/base/wnd.cpp", '#include "platform/objectstore/store.h"'),
            ("view/clip.cpp", "#include <vector>"),
            ("tests/frame/slot_test.cpp", '#include "frame/slot_table.h"'),
            ("include/tavix/tavix.h", '#include "../tavix-framework/afxwin.h"'),
            ("platform/framework/include/framework/wnd.h", '#include "../afxwin.h"'),
            ("platform/tdialog/include/tdialog.h", '#include "afxwin.h"'),
        )
        refused = (
            ("view/clip.h", '#include "store/point_list.h"', "view may not know store"),
            ("view/clip.h", "#include <afxwin.h>", "view may not know public"),
            ("store/hanrei.h", '#include "draw/plan_view.h"', "store may not know draw"),
            ("view/coordinates.h", '#include "view/clip.h"', "coordinates may not know view"),
            ("store/point_list.h", '#include "view/clip.h"', "store may not know view"),
            ("figure/figure_list.h", '#include "store/a.h"', "figure may not know store"),
            ("window/a.cpp", "#include <tavix/tavix.h>", "window may not know calls"),
            ("draw/plan_view.cpp", '#include "window/plot_window.h"', "draw may not know window"),
            ("window/plot_window.cpp", '#include "frame/slot_table.h"', "may not know frame"),
            ("host/main.cpp", '#include "view/coordinates.h"', "host may not know coordinates"),
            ("host/main.cpp", "#include <view/clip.h>", "host may not know view"),
            ("platform/tdialog/a.cpp", '#include "view/coordinates.h"', "platform may not know"),
            ("frame/a.cpp", '#include "tests/frame/support.h"', "frame may not know tests"),
            ("window/a.cpp", '#include "plot_window.h"', "does not start from the project's root"),
            ("platform/framework/include/framework/wnd.h", '#include "afxwin.h"', "its own folder"),
            ("include/tavix/tavix.h", '#include "afxwin.h"', "its own folder"),
            ("include/tavix/tavix.h", '#include "../tavix-framework/a.h"', "its own folder"),
            ("sundry/a.cpp", '#include "view/coordinates.h"', "no rule for sundry/a.cpp"),
        )
        tree = dict.fromkeys(
            (
                "include/tavix/tavix.h",
                "platform/framework/include/afxwin.h",
                "platform/objectstore/store.h",
                "view/coordinates.h",
                "view/clip.h",
                "store/point_list.h",
                "store/a.h",
                "draw/plan_view.h",
                "window/plot_window.h",
                "frame/slot_table.h",
                "tests/frame/support.h",
            ),
            "",
        )
        for path, line in allowed:
            with self.subTest(path=path, line=line):
                self.assertEqual([], self.problems({**tree, path: line + "\n"}))
        for path, line, said in refused:
            with self.subTest(path=path, line=line):
                found = self.problems({**tree, path: f"\n{line}\n"})
                self.assertEqual(1, len(found), found)
                self.assertIn(f"{path}:2: ", found[0])
                self.assertIn(said, found[0])

    def test_a_circle_is_reported_with_its_files(self):
        files = {
            "store/a.h": '#include "store/b.h"\n',
            "store/b.h": '#include "store/c.h"\n',
            "store/c.h": '#include "store/a.h"\n',
            "store/d.h": '#include "store/a.h"\n',
        }
        self.assertEqual(
            ["circle of includes: store/a.h -> store/b.h -> store/c.h -> store/a.h"],
            self.problems(files),
        )

    def test_a_pattern_that_matches_nothing_is_reported(self):
        named = [pattern for layer in check_includes.LAYERS.values() for pattern in layer]
        tree = {pattern.replace("*", "a") + ".h": "" for pattern in named}
        self.assertEqual([], self.problems(tree, check_includes.dead_patterns))
        del tree["view/extent.a.h"]
        self.assertEqual(["view/extent.*"], self.problems(tree, check_includes.dead_patterns))

    def test_a_portable_source_does_not_see_the_platform(self):
        files = {
            "draw/CMakeLists.txt": "# Lists.\ntavix_portable(\n  a.cpp\n  ink/b.cpp)\n"
            "tavix_windows(\n  c.cpp)\n",
            "draw/a.cpp": '#include "draw/a.h"\n',
            "draw/a.h": "",
            "draw/ink/b.cpp": '#include "draw/b.h"\n',
            "draw/b.h": "#include <afxwin.h>\n",
            "draw/c.cpp": "#include <afxwin.h>\n",
            "platform/framework/include/afxwin.h": "",
        }
        self.assertEqual(
            ["draw/ink/b.cpp: portable, but it sees platform/framework/include/afxwin.h"],
            self.problems(files),
        )

    def test_two_ways_to_one_header_are_no_circle(self):
        files = {
            "store/a.h": '#include "store/b.h"\n#include "store/c.h"\n',
            "store/b.h": '#include "store/d.h"\n',
            "store/c.h": '#include "store/d.h"\n',
            "store/d.h": "",
        }
        self.assertEqual([], self.problems(files))

    def test_generated_files_in_the_build_folder_do_not_count(self):
        files = {"build/win64/x.cpp": '#include "frame/slot_table.h"\n', "view/clip.h": ""}
        self.assertEqual([], self.problems(files))


if __name__ == "__main__":
    unittest.main()
