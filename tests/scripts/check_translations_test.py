"""The check that both languages have the same headings, code and pictures."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

from check_translations import differences, pairs

ENGLISH = """# Points

Text.

    run me
    and me

## More

![It](a.png)

```c
int key;
```
"""
JAPANESE = ENGLISH.replace("Points", "点").replace("Text.", "文章。").replace("More", "続き")


class CheckTranslationsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        for name, text in (("README.md", ENGLISH), ("docs/ja/README.md", ENGLISH.replace("a.png", "../../a.png"))):
            self.write(name, text)
        self.write("docs/guide/a.md", ENGLISH)
        self.write_japanese(JAPANESE)

    def write(self, name, text):
        (self.root / name).parent.mkdir(parents=True, exist_ok=True)
        (self.root / name).write_text(text, encoding="utf-8")

    def write_japanese(self, text):
        self.write("docs/ja/guide/a.md", text.replace("(a.png", "(../../guide/a.png"))

    def found(self):
        sides = pairs(self.root)
        return [line.split(": ", 1)[1] for pair in sides for line in differences(*pair)]

    def test_nothing_is_found_in_a_translation(self):
        self.assertEqual([], self.found())

    def test_each_difference_is_named(self):
        for before, after, finding in (
            ("## 続き", "### 続き", "headings of levels [1, 3], in English [1, 2]"),
            ("## 続き", "続き", "headings of levels [1], in English [1, 2]"),
            ("a.png", "b.png", "other pictures than in English"),
            ("int key;", "int number;", "other code than in English: ```c int number; ..."),
            ("    and me\n", "", "other code than in English:     run me ..."),
            ("```c\nint key;\n```\n", "", "1 pieces of code, in English 2"),
        ):
            with self.subTest(after=after):
                self.assertIn(before, JAPANESE)
                self.write_japanese(JAPANESE.replace(before, after))
                self.assertEqual([finding], self.found())

    def test_a_page_of_one_side_alone(self):
        self.write("docs/guide/b.md", ENGLISH)
        self.write("docs/ja/guide/c.md", JAPANESE)
        self.assertEqual(["there is no such page"] * 2, self.found())


if __name__ == "__main__":
    unittest.main()
