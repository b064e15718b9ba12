#!/usr/bin/env python3
"""Checks that the pages of docs/guide say what their programs say.

    scripts/check_guide.py           the project
    scripts/check_guide.py FOLDER    another guide

A page and its program have the same name: 04_taps.md, 04_taps.c. Every piece of C in a page stands in
its program, line by line; every line by which the program differs from the one before, but its title in
the first, stands in the page; and the page shows a picture that exists. The program in the README is samples/c/shortest.c.
Exits with 1 when anything else was found.
"""

import difflib
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
FENCE = re.compile(r"^```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
PICTURE = re.compile(r"!\[[^\]]*\]\(([^)]+)\)")


def code_blocks(text, language="c"):
    """The lines of each piece of code in a page."""
    return [body.splitlines() for name, body in FENCE.findall(text) if name == language]


def stands_in(piece, lines):
    """Whether the lines of `piece` stand together in `lines`."""
    return any(lines[i : i + len(piece)] == piece for i in range(len(lines) - len(piece) + 1))


def new_lines(before, after):
    """The lines of `after` that `before` does not have in that place; no blank ones."""
    matcher = difflib.SequenceMatcher(None, before, after, autojunk=False)
    for tag, _, _, start, end in matcher.get_opcodes():
        if tag != "equal":
            yield from (line for line in after[start:end] if line.strip())


def page_problems(page, program, before):
    """One line for each finding of a page, given the lines of its program and of the one before."""
    text = page.read_text(encoding="utf-8")
    pieces = code_blocks(text)
    for piece in pieces:
        if not stands_in(piece, program):
            yield f"{page}: not in the program: {piece[0].strip()} ..."
    shown = {line for piece in pieces for line in piece}
    for line in new_lines(before[1:], program[1:]):
        if line not in shown:
            yield f"{page}: does not show the new line: {line.strip()}"
    pictures = PICTURE.findall(text)
    if not pictures:
        yield f"{page}: shows no picture"
    for picture in pictures:
        if not (page.parent / picture).is_file():
            yield f"{page}: there is no {picture}"


def problems(folder):
    """One line for each finding of a guide."""
    before = []
    programs = sorted(folder.glob("[0-9]*.c"))
    if not programs:
        yield f"{folder}: no program found"
    for path in programs:
        program = path.read_text(encoding="utf-8").splitlines()
        page = path.with_suffix(".md")
        if page.is_file():
            yield from page_problems(page, program, before)
        else:
            yield f"{page}: there is no such page"
        before = program
    for page in sorted(folder.glob("[0-9]*.md")):
        if not page.with_suffix(".c").is_file():
            yield f"{page}: there is no program of this name"


def readme_problems(readme, program):
    """One line for each piece of C in the README that is not in its program."""
    lines = program.read_text(encoding="utf-8").splitlines()
    pieces = code_blocks(readme.read_text(encoding="utf-8"))
    if not pieces:
        yield f"{readme}: shows no program"
    for piece in pieces:
        if not stands_in(piece, lines):
            yield f"{readme}: not in {program}: {piece[0].strip()} ..."


def main():
    if len(sys.argv) > 1:
        folder = Path(sys.argv[1])
        found = list(problems(folder))
    else:
        folder = ROOT / "docs/guide"
        found = [*problems(folder), *readme_problems(ROOT / "README.md", ROOT / "samples/c/shortest.c")]
    for line in found:
        print(line)
    if not found:
        print(f"{len(list(folder.glob('[0-9]*.c')))} pages say what their programs say.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
