#!/usr/bin/env python3
"""Checks that what the pages of an installed package name is installed.

    scripts/check_package_pages.py PLACE

In every Markdown page below PLACE: a relative link leads to a file of the package, and a path in
backticks (`tavix/tavix.h`, `samples/c`) to one from the page's own folder or from a folder of
`STARTS`; PLACE in a page is the package itself. A paragraph that says "source tree" may name paths
of the project. Exits with 1 when it found any that lead nowhere.
"""

import re
import sys
from pathlib import Path

# Where a path in backticks may begin, beside its page's folder.
STARTS = ("", "include", "include/tavix-framework", "share/tavix", "share/doc/tavix")

FENCE = re.compile(r"^(```|~~~).*?^\1", re.MULTILINE | re.DOTALL)
LINK = re.compile(r"\]\(([^)\s]+)(?:\s[^)]*)?\)|<(?:img|a)\b[^>]*?(?:src|href)=\"([^\"]+)\"")
SPAN = re.compile(r"`([^`]+)`")
# A folder, a slash, and what follows: no blanks, no options, nothing that stands for something else.
FILE = re.compile(r"<?((?:\.{1,2}/)*[\w][\w.+-]*(?:/[\w.+-]+)*/?)>?")
ELSEWHERE = re.compile(r"[a-z][a-z0-9+.-]*:|#")


def linked(page_text):
    """What the page's links lead to, those out of the package left out."""
    for target in LINK.finditer(page_text):
        address = target[1] or target[2]
        if not ELSEWHERE.match(address):
            yield address.partition("#")[0]


def named(page_text):
    """The paths in backticks, one paragraph or row of a table after another."""
    for paragraph in re.split(r"\n\s*\n|\n(?=\||- )", FENCE.sub("", page_text)):
        if "source tree" in paragraph:
            continue
        for span in SPAN.findall(paragraph):
            path = FILE.fullmatch(span)
            if path and "/" in path[1]:
                yield path[1].removeprefix("PLACE/")


def problems(place):
    """One line for each link or path that leads nowhere."""
    for page in sorted(place.rglob("*.md")):
        text = page.read_text(encoding="utf-8")
        here = page.relative_to(place).as_posix()
        for address in linked(text):
            if not (page.parent / address).exists():
                yield f"{here}: the link {address} leads nowhere"
        for path in named(text):
            folders = [page.parent, *(place / start for start in STARTS)]
            if not any((folder / path).exists() for folder in folders):
                yield f"{here}: {path} is not installed"


def main():
    place = Path(sys.argv[1])
    found = list(problems(place))
    pages = len(list(place.rglob("*.md")))
    if not pages:
        found.append(f"no page below {place}")
    print("\n".join(found) if found else f"{pages} pages name installed files only.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
