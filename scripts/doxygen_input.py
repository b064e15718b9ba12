#!/usr/bin/env python3
"""Lets Doxygen read the headers and the pages of the project, which are not written for it.

    scripts/doxygen_input.py FILE

Prints a header with its comments as Doxygen's: the first is that of the file, one directly above a
declaration or behind it is its own, and a line of dashes begins a group, which the text below it
describes. Prints a page with links that do not depend on its folder.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
MAIN_PAGES = (ROOT / "docs/guide/README.md", ROOT / "README.md")
SECTION = re.compile(r"^// ---- (.+?) -+$")
BEHIND = re.compile(r"^(\s*[^\s/].*?)\s+// (.*)$")


def _is_comment(line):
    return line.lstrip().startswith("//")


def _marked(line):
    line = re.sub(r"^//  ?(\d+\. )", r"//  \1", line)  # the items of a list, one below another
    line = line.replace("\\", "\\\\")
    return re.sub(r"^(\s*)// ?", r"\1/// ", line).rstrip()


def _end_of_comment(lines, start):
    while start < len(lines) and _is_comment(lines[start]):
        start += 1
    return start


def _group(lines, header):
    """A section's heading and text as the beginning of a group, and how many lines they are."""
    title = SECTION.match(lines[0])[1]
    name = re.sub(r"\W+", "_", f"{header} {title}".lower())
    start = 1
    while start < len(lines) and lines[start] in ("", "//"):
        start += 1
    end = _end_of_comment(lines, start)
    if end < len(lines) and lines[end].strip():  # the first declaration's own comment
        start = end = 1
    text = [_marked(line) for line in lines[start:end]]
    return [f"/// @defgroup {name} {header}: {title}", "///", *text, "/// @{"], end


def doxygen_lines(lines, header):
    """The lines of a header with Doxygen's marks."""
    end = _end_of_comment(lines, 0)
    out = ["/// @file", *map(_marked, lines[:end])]
    at, in_group = end, False
    while at < len(lines):
        end = _end_of_comment(lines, at)
        if SECTION.match(lines[at]):
            start, length = _group(lines[at:], header)
            out += ["/// @}", ""] * in_group + start
            at, in_group = at + length, True
        elif end > at:
            # What stands apart from a declaration is no documentation of one.
            own = end < len(lines) and lines[end].strip()
            out += [_marked(line) if own else line for line in lines[at:end]]
            at = end
        else:
            out.append(BEHIND.sub(r"\1  ///< \2", lines[at]))
            at += 1
    return out + ["/// @}"] * in_group


def links_in_one_folder(text, folder):
    """A page's text with links that hold in any folder: to pages by their path, to others by name.

    All HTML lies in one folder, with the pictures and the programs of the guide.
    """

    def link(match):
        target = (folder / match[1]).resolve()
        if target.suffix != ".md":
            return f"]({target.name})"
        return "](@ref index)" if target in MAIN_PAGES else f"]({target})"

    return re.sub(r"\]\(([^():]+\.(?:md|c|png|svg))\)", link, text)


def main():
    path = Path(sys.argv[1]).resolve()
    text = path.read_text(encoding="utf-8")
    if path.suffix == ".md":
        print(links_in_one_folder(text, path.parent), end="")
    else:
        print("\n".join(doxygen_lines(text.splitlines(), path.name)))
    return 0


if __name__ == "__main__":
    sys.exit(main())
