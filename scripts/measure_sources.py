#!/usr/bin/env python3
"""Counts what makes the sources easy or hard to find one's way in.

    scripts/measure_sources.py           the project
    scripts/measure_sources.py FOLDER    another tree laid out the same way

Tests are left out, but for the last line. An exports file "sees" every header of the project that
it includes, directly or through another.
"""

import re
import statistics
import sys
from pathlib import Path

from check_includes import circle, includes, seen_from, sources

CRUMB = 30  # lines


def main():
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent
    files = sources(root)
    inside = [path for path in files if not path.startswith("tests/")]
    texts = {path: (root / path).read_text(encoding="utf-8", errors="replace") for path in files}
    lines = {path: len(texts[path].splitlines()) for path in files}
    graph = {}
    for path, _, _, _, target in includes(root):
        if target:
            graph.setdefault(path, []).append(target)
    public = seen_from("include/tavix/tavix.h", graph) | {"include/tavix/tavix.h"}
    exports = [path for path in inside if re.match(r"frame/exports_.*\.cpp", path)]
    seen = [seen_from(path, graph) for path in exports]

    def count(pattern, paths):
        return sum(len(re.findall(pattern, texts[path])) for path in paths)

    window = [path for path in inside if path.startswith("window/")]
    print(f"files                        {len(inside)}")
    print(f"lines                        {sum(lines[path] for path in inside)}")
    print(f"median of lines              {statistics.median(lines[path] for path in inside):g}")
    print(f"files under {CRUMB} lines         {sum(lines[path] < CRUMB for path in inside)}")
    print(f"most lines                   {max(lines[path] for path in inside)}")
    print(f"headers an exports file sees {min(map(len, seen))} to {max(map(len, seen))}")
    own = [len(headers - public) for headers in seen]
    print(f"  but for tavix.h's own      {min(own)} to {max(own)}")
    print(f"'return -1' in exports       {count(r'return -1', exports)}")
    print(f"places asking display_3d_    {count(r'display_3d_', window)}")
    print(f"circles of includes          {1 if circle(graph) else 0}")
    print(f"files of tests               {len(files) - len(inside)}")


if __name__ == "__main__":
    main()
