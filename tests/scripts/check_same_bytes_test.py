"""What two builds are said to differ in."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

import check_same_bytes


class SameBytes(unittest.TestCase):
    def test_the_products_are_compared_and_nothing_else(self):
        compared = {"bin/tavix.dll", "bin/fieldhost.exe", "frame/libtavix.dll.a", "msvc/tavix.lib",
                    "tavix-1.0.0-x86_64.zip", "tavix-1.0.0-x86_64-setup.exe"}
        others = {"bin/frame_tests.exe", "build.ninja", "view/clip.obj"}
        with tempfile.TemporaryDirectory() as folder:
            for name in compared | others:
                path = Path(folder) / check_same_bytes.BUILD / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(name, encoding="utf-8")
            found = check_same_bytes.compared_files(Path(folder))
        self.assertEqual({name: name.encode() for name in compared}, found)

    def test_each_difference_names_its_file(self):
        for first, second, said in (
            ({"a": b"x"}, {"a": b"x"}, []),
            ({"a": b"xyz"}, {"a": b"xyw"}, ["a differs from byte 2 on"]),
            ({"a": b"xy"}, {"a": b"xyz"}, ["a differs from its end on"]),
            ({"a": b"x"}, {"b": b"x"}, ["a is in one build only", "b is in one build only"]),
        ):
            with self.subTest(first=first, second=second):
                self.assertEqual(said, list(check_same_bytes.differences(first, second)))


if __name__ == "__main__":
    unittest.main()
