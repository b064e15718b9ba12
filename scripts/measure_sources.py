#!/usr/bin/env python3
"""Counts what makes the sources easy or hard to find one's way in.

    scripts/measure_sources.py           the project
    scripts/measure_sources.py FOLDER    another tree laid out the same way

Tests are left out, but for their own line. A crumb is a file of few lines. An exports file "sees"
every header of the project that it includes, directly or through another. The places to touch are
the numbered ones of each recipe in docs/how-to-add.md.
"""

import re
import statistics
import sys
from collections import Counter
from pathlib import Path

from check_includes import circle, include_graph, seen_from, sources

CRUMB = 30  # lines
RECIPES = "docs/how-to-add.md"


def repeated_names(paths):
    """The file names that more than one of these paths end with, sorted."""
    names = Counter(Path(path).name for path in paths)
    return sorted(name for name, times in names.items() if times > 1)


def places_to_touch(text):
    """(heading, number of numbered places) of each recipe, in their order."""
    _, *recipes = re.split(r"^## ", text, flags=re.MULTILINE)
    return [
        (recipe.splitlines()[0], len(re.findall(r"^\d+\. ", recipe, flags=re.MULTILINE)))
        for recipe in recipes
    ]


def _from_to(lists):
    numbers = [len(entries) for entries in lists] or [0]
    return f"{min(numbers)} to {max(numbers)}"


def measures(root):
    """(what is counted, its value) of the tree."""
    files = sources(root)
    inside = [path for path in files if not path.startswith("tests/")]
    texts = {path: (root / path).read_text(encoding="utf-8", errors="replace") for path in inside}
    lines = [len(text.splitlines()) for text in texts.values()]
    graph = include_graph(root)
    exports = [path for path in inside if re.match(r"frame/exports_.*\.cpp", path)]
    seen = [set(files) & seen_from(path, graph) for path in exports]
    library = [[path for path in headers if not path.startswith("platform/")] for headers in seen]
    window = [path for path in inside if path.startswith("window/")]
    repeated = repeated_names(inside)

    def count(pattern, paths):
        return sum(len(re.findall(pattern, texts[path])) for path in paths)

    yield "files", len(inside)
    yield "lines", sum(lines)
    yield "median of lines", f"{statistics.median(lines):g}"
    yield f"crumbs (under {CRUMB} lines)", sum(number < CRUMB for number in lines)
    yield "most lines", max(lines)
    yield "file names that occur twice", " ".join([str(len(repeated)), *repeated])
    yield "circles of includes", 1 if circle(graph) else 0
    yield "headers an exports file sees", _from_to(seen)
    yield "of these the library's own", _from_to(library)
    yield "'return -1' in exports", count(r"\breturn -1\b", exports)
    yield "places asking display_3d_", count(r"\bdisplay_3d_\b", window)
    if (root / RECIPES).exists():
        for heading, places in places_to_touch((root / RECIPES).read_text(encoding="utf-8")):
            yield f"places to touch for {heading[:1].lower()}{heading[1:]}", places
    yield "files of tests", len(files) - len(inside)


def main():
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent
    found = list(measures(root))
    width = max(len(name) for name, _ in found)
    for name, value in found:
        print(f"{name:{width}}  {value}")


if __name__ == "__main__":
    main()
