"""Which links and paths of an installed page lead nowhere."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

import check_package_pages


class PackagePages(unittest.TestCase):
    def problems(self, text, page="share/doc/tavix/page.md"):
        with tempfile.TemporaryDirectory() as folder:
            place = Path(folder)
            for name in ("include/tavix/tavix.h", "share/tavix/samples/c/sample.c", "bin/a.exe",
                         "share/doc/tavix/docs/picture.png"):
                (place / name).parent.mkdir(parents=True, exist_ok=True)
                (place / name).touch()
            (place / page).parent.mkdir(parents=True, exist_ok=True)
            (place / page).write_text(text, encoding="utf-8")
            return list(check_package_pages.problems(place))

    def test_what_is_installed_may_be_named(self):
        for text in (
            "[picture](docs/picture.png) and ![it](docs/picture.png \"title\")",
            "[part](docs/picture.png#part), [part](#part), [outside](https://example.org/a/b.md)",
            '<img src="docs/picture.png" width="10">',
            "`tavix/tavix.h`, `<tavix/tavix.h>`, `samples/c`, `samples/c/`, `docs/picture.png`",
            "`bin/a.exe`, `../../../bin/a.exe`, `PLACE/bin/a.exe`",
            "`a/b c`, `-Ia/b`, `name`, `PLACE`, `x = a/b;`",
            "In the source tree they are\nin `view/clip.h`.",
            "```\n`view/clip.h`\n```",
        ):
            with self.subTest(text=text):
                self.assertEqual([], self.problems(text))

    def test_what_is_not_installed_is_reported(self):
        nowhere = "share/doc/tavix/page.md: the link {} leads nowhere"
        missing = "share/doc/tavix/page.md: {} is not installed"
        for text, path, said in (
            ("[how](docs/how.md#part)", "docs/how.md", nowhere),
            ("The source tree has [how](docs/how.md)", "docs/how.md", nowhere),
            ('<img src="docs/a.png">', "docs/a.png", nowhere),
            ("see `view/clip.h`", "view/clip.h", missing),
            ("see `<tavix/tavix_d.h>`", "tavix/tavix_d.h", missing),
            ("see `PLACE/bin/b.exe`", "bin/b.exe", missing),
            ("see `samples/d`", "samples/d", missing),
            ("see `./run`", "./run", missing),
            ("In the source tree.\n\nsee `view/a.h`", "view/a.h", missing),
            ("| `a` | source tree |\n| `b/c` | |", "b/c", missing),
        ):
            with self.subTest(text=text):
                self.assertEqual([said.format(path)], self.problems(text))

    def test_the_first_page_is_at_the_root(self):
        self.assertEqual([], self.problems("[c](share/tavix/samples/c)", "README.md"))


if __name__ == "__main__":
    unittest.main()
