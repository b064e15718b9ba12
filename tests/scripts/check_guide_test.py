"""The check that the pages of the guide say what their programs say."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

from check_guide import problems, readme_problems

FIRST = "/* 1 */\nint main(void) {\n  return 0;\n}\n"
SECOND = "/* 2 */\nint main(void) {\n  Draw();\n  return 0;\n}\n"
PAGE = "# A page\n\n![It](shown.png)\n\n```c\n{}```\n"


class CheckGuideTest(unittest.TestCase):
    def setUp(self):
        self._folder = tempfile.TemporaryDirectory()
        self.addCleanup(self._folder.cleanup)
        self.path = Path(self._folder.name)
        self.write("shown.png", "")
        self.write("01_a.c", FIRST)
        self.write("01_a.md", PAGE.format("int main(void) {\n  return 0;\n}\n"))
        self.write("02_b.c", SECOND)
        self.write("02_b.md", PAGE.format("  Draw();\n"))

    def write(self, name, text):
        (self.path / name).write_text(text, encoding="utf-8")

    def found(self):
        return [line.split(": ", 1)[1] for line in problems(self.path)]

    def test_nothing_is_found_in_pages_that_show_their_programs(self):
        self.assertEqual([], self.found())

    def test_code_that_is_not_in_the_program(self):
        self.write("02_b.md", PAGE.format("  Draw();\n}\n"))
        self.assertEqual(["not in the program: Draw(); ..."], self.found())

    def test_a_new_line_that_the_page_does_not_show(self):
        self.write("02_b.md", PAGE.format("  return 0;\n"))
        self.assertEqual(["does not show the new line: Draw();"], self.found())

    def test_a_picture_that_is_not_there(self):
        (self.path / "shown.png").unlink()
        self.assertEqual(["there is no shown.png"] * 2, self.found())

    def test_a_page_without_a_picture(self):
        self.write("02_b.md", "```c\n  Draw();\n```\n")
        self.assertEqual(["shows no picture"], self.found())

    def test_a_program_without_a_page_and_a_page_without_a_program(self):
        (self.path / "01_a.md").unlink()
        self.write("03_c.md", PAGE.format("  Draw();\n"))
        self.assertEqual(["there is no such page", "there is no program of this name"], self.found())

    def test_a_readme_with_code_that_is_not_in_its_program(self):
        for text, count in (("```c\n  return 0;\n```\n", 0), ("```c\n  return 1;\n```\n", 1), ("", 1)):
            self.write("README.md", text)
            found = list(readme_problems(self.path / "README.md", self.path / "01_a.c"))
            self.assertEqual(count, len(found), found)

    def test_a_folder_without_programs(self):
        self.assertEqual(["no program found"], [line.split(": ")[1] for line in problems(self.path / "x")])


if __name__ == "__main__":
    unittest.main()
