#!/usr/bin/env python3
"""Lists the headers of the project that include a header of the system, themselves or by others.

    scripts/headers_seeing.py windows.h           the project's
    scripts/headers_seeing.py windows.h FOLDER    those of another tree laid out the same way
"""

import sys
from pathlib import Path

from check_includes import include_graph, seen_from


def headers_seeing(name, root):
    """Their paths from `root`, sorted."""
    graph = include_graph(root)
    return sorted(
        path for path in graph if path.endswith(".h") and name in seen_from(path, graph)
    )


def main():
    name = sys.argv[1]
    root = Path(sys.argv[2]) if len(sys.argv) > 2 else Path(__file__).resolve().parent.parent
    print("\n".join(headers_seeing(name, root)))


if __name__ == "__main__":
    main()
