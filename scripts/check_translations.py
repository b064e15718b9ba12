#!/usr/bin/env python3
"""Checks that the Japanese pages have the headings, the code and the pictures of the English ones.

    scripts/check_translations.py           the project
    scripts/check_translations.py FOLDER    another tree laid out the same way

README.md and the pages of docs/guide each have one in docs/ja. Exits with 1 when a page is missing, or
when the two sides differ in the levels of their headings, in a piece of code or in a picture.
"""

import re
import sys
from pathlib import Path

HEADING = re.compile(r"^(#+) ")
PICTURE = re.compile(r"!\[[^\]]*\]\(([^)]+)\)")


class Page:
    """What has to be the same in both languages."""

    def __init__(self, path):
        self.headings, self.code = [], []
        text = path.read_text(encoding="utf-8")
        self.pictures = [(path.parent / name).resolve() for name in PICTURE.findall(text)]
        piece, fenced, before = None, False, ""
        for line in text.splitlines():
            if line.startswith("```"):
                piece = None if fenced else [line]
                fenced = not fenced
                self.code += [piece] if piece else []
            elif fenced:
                piece.append(line)
            elif line.startswith("    ") and (piece or not before):
                self.code += [] if piece else [piece := []]
                piece.append(line)
            else:
                piece = None
                heading = HEADING.match(line)
                self.headings += [len(heading[1])] if heading else []
            before = line


def pairs(root):
    """Each English page with its Japanese one."""
    yield root / "README.md", root / "docs/ja/README.md"
    guide, translated = root / "docs/guide", root / "docs/ja/guide"
    for name in sorted({page.name for page in [*guide.glob("*.md"), *translated.glob("*.md")]}):
        yield guide / name, translated / name


def differences(english, japanese):
    """One line for each finding of a pair."""
    missing = [page for page in (english, japanese) if not page.is_file()]
    for page in missing:
        yield f"{page}: there is no such page"
    if missing:
        return
    one, other = Page(english), Page(japanese)
    if one.headings != other.headings:
        yield f"{japanese}: headings of levels {other.headings}, in English {one.headings}"
    if one.pictures != other.pictures:
        yield f"{japanese}: other pictures than in English"
    if len(one.code) != len(other.code):
        yield f"{japanese}: {len(other.code)} pieces of code, in English {len(one.code)}"
    for piece, translated in zip(one.code, other.code):
        if piece != translated:
            yield f"{japanese}: other code than in English: {' '.join(translated[:2])} ..."


def main():
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent
    sides = list(pairs(root))
    found = [line for pair in sides for line in differences(*pair)]
    for line in found:
        print(line)
    if not found:
        print(f"{len(sides)} pages are the same in English and Japanese.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
