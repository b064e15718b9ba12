#!/usr/bin/env python3
"""Checks who may know whom: the includes of every C++ file against the table below.

    scripts/check_includes.py           the project
    scripts/check_includes.py FOLDER    another tree laid out the same way

Reports an include that the table does not allow, an include in quotes that does not start from
the project's root (in a public header: from its own folder, since hosts give no other), a portable
source that sees the platform's headers, circles of includes, and patterns of the table that match
no file. Exits with 1 when it found any.
"""

import posixpath
import re
import sys
from fnmatch import fnmatch
from pathlib import Path

# Layers from the bottom up; a file belongs to the first whose pattern it matches.
LAYERS = {
    # The leaf: positions, sizes and boxes on the ground and the screen.
    "coordinates": ("view/coordinates.*", "view/extent.*", "view/ground_area.*"),
    "view": ("view/*",),
    "calls": ("include/*",),
    "public": ("platform/*/include/*",),
    "platform": ("platform/*",),
    "store": ("store/*",),
    "figure": ("figure/*",),
    "draw": ("draw/*",),
    "window": ("window/*",),
    "frame": ("frame/*",),
    "bindings": ("bindings/*",),
    "host": ("host/*", "samples/*", "docs/guide/*"),
    "tests": ("tests/*", "benchmarks/*", "fuzzers/*"),
}

_PLATFORM = {"platform", "public"}
_STORES = {"coordinates", "store", "figure"} | _PLATFORM
MAY_KNOW = {
    "coordinates": {"coordinates"},
    "view": {"view", "coordinates"},
    "calls": {"calls", "public"},
    "public": {"public"},
    "platform": _PLATFORM,
    "store": {"store", "coordinates"} | _PLATFORM,
    "figure": {"figure", "coordinates"} | _PLATFORM,
    "draw": {"draw", "view"} | _STORES,
    "window": {"window", "draw", "view"} | _STORES,
    "frame": {"frame", "window", "draw", "view", "calls"} | _STORES,
    "bindings": {"bindings", "calls", "public"},
    "host": {"host", "calls", "public"},
    "tests": set(LAYERS),
}

# What needs no window and no device context: the lists of CMake, which the native build compiles.
PORTABLE = re.compile(r"^tavix_portable\(([^)]*)\)", re.MULTILINE)
INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')
SUFFIXES = {".h", ".hpp", ".c", ".cpp"}
# The public headers of the platform, and where the installed package has them.
PUBLIC = re.compile(r"^platform/[^/]+/include/")
INSTALLED = "include/tavix-framework/"
# Folders that hold no sources of the project.
SKIPPED = {"build", "out", ".git"}


def layer_of(path):
    for layer, patterns in LAYERS.items():
        if any(fnmatch(path, pattern) for pattern in patterns):
            return layer
    return None


def sources(root):
    """The C++ files below `root`, as paths from it."""
    found = []
    for path in root.rglob("*"):
        inside = path.relative_to(root)
        if path.suffix in SUFFIXES and inside.parts[0] not in SKIPPED:
            found.append(inside.as_posix())
    return sorted(found)


def include_roots(root):
    """The folders an include may start from: the project and those of the public headers."""
    public = [root / "include", *sorted(root.glob("platform/*/include"))]
    return ["", *(path.relative_to(root).as_posix() + "/" for path in public if path.is_dir())]


def is_public(path):
    """Whether hosts read it from the installed package."""
    return layer_of(path) in ("calls", "public")


def included_file(path, quote, name, roots, known):
    """The project's file that an include of `path` names, or None."""
    if quote == '"' and is_public(path):
        folder = posixpath.dirname(PUBLIC.sub(INSTALLED, path))
        name = posixpath.normpath(posixpath.join(folder, name)).removeprefix(INSTALLED)
    return next((start + name for start in roots if start + name in known), None)


def includes(root):
    """(file, line number, quote, name, included project file or None) of every include."""
    known = set(sources(root))
    roots = include_roots(root)
    for path in sorted(known):
        text = (root / path).read_text(encoding="utf-8", errors="replace")
        for number, line in enumerate(text.splitlines(), 1):
            match = INCLUDE.match(line)
            if match:
                quote, name = match.groups()
                yield path, number, quote, name, included_file(path, quote, name, roots, known)


def include_graph(root):
    """What each file includes: files of the project, and the names of other headers."""
    graph = {}
    for path, _, _, name, target in includes(root):
        graph.setdefault(path, []).append(target or name)
    return graph


def seen_from(path, graph):
    """What `path` includes, directly or through another."""
    found, waiting = set(), [path]
    while waiting:
        for target in graph.get(waiting.pop(), ()):
            if target not in found:
                found.add(target)
                waiting.append(target)
    return found


def portable_sources(root):
    """The sources that CMake's lists call portable, as paths from `root`."""
    for path in sorted(root.rglob("CMakeLists.txt")):
        folder = path.parent.relative_to(root)
        if not folder.parts or folder.parts[0] not in SKIPPED:
            for names in PORTABLE.findall(path.read_text(encoding="utf-8")):
                yield from ((folder / name).as_posix() for name in names.split())


def circle(graph):
    """The files of one circle of includes, the first repeated at the end; empty without one."""
    finished = set()

    def walk(path, trail):
        if path in trail:
            return [*trail[trail.index(path) :], path]
        if path in finished:
            return []
        for target in graph.get(path, ()):
            found = walk(target, [*trail, path])
            if found:
                return found
        finished.add(path)
        return []

    return next(filter(None, (walk(path, []) for path in sorted(graph))), [])


def dead_patterns(root):
    """The patterns of the table that no file of the tree matches."""
    files = sources(root)
    patterns = (pattern for layer in LAYERS.values() for pattern in layer)
    return [pattern for pattern in patterns if not any(fnmatch(path, pattern) for path in files)]


def problems(root):
    """One line for each finding, in the order of the files."""
    found = []
    graph = include_graph(root)
    for path, number, quote, name, target in includes(root):
        here = f"{path}:{number}"
        if target is None:
            if quote == '"':
                start = "its own folder" if is_public(path) else "the project's root"
                found.append(f'{here}: "{name}" does not start from {start}')
            continue
        layer, other = layer_of(path), layer_of(target)
        if layer is None or other is None:
            found.append(f"{here}: no rule for {path if layer is None else target}")
        elif other not in MAY_KNOW[layer]:
            found.append(f"{here}: {layer} may not know {other}: {target}")
    for path in portable_sources(root):
        for target in sorted(seen_from(path, graph)):
            if layer_of(target) in _PLATFORM:
                found.append(f"{path}: portable, but it sees {target}")
    ring = circle(graph)
    if ring:
        found.append("circle of includes: " + " -> ".join(ring))
    return found


def main():
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent
    found = problems(root)
    found += [f"no file matches the pattern {pattern}" for pattern in dead_patterns(root)]
    print("\n".join(found) if found else f"{len(sources(root))} files keep to the include rules.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
