#!/usr/bin/env python3
"""Makes the ZIP of the test programs:  scripts/make_test_zip.py CONTENTS OUT.zip

Each line of CONTENTS, which cmake/test_package.cmake writes, is a place in the package and a file,
with a tab between. The place * stands for the place in the project, of every file that a pattern
names. The package is a folder with the name of the ZIP. The same files give the same bytes.
"""

import sys
import zipfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent


def files_of(contents, root=ROOT):
    """{place: path of the file}; ValueError for a pattern that names no file, or one outside."""
    files = {}
    for line in contents.splitlines():
        place, _, name = line.partition("\t")
        path = Path(name)
        if place != "*":
            files[place] = path
            continue
        found = list(path.parent.glob(path.name))
        if not found:
            raise ValueError(f"{name} names no file")
        files.update((file.relative_to(root).as_posix(), file) for file in found)
    return files


def write_zip(files, out):
    with zipfile.ZipFile(out, "w") as package:
        for place in sorted(files):
            # The date of an entry made by its name alone is fixed: 1980.
            entry = zipfile.ZipInfo(f"{out.stem}/{place}")
            entry.external_attr = 0o644 << 16
            entry.compress_type = zipfile.ZIP_DEFLATED
            package.writestr(entry, files[place].read_bytes())


def main():
    contents, out = map(Path, sys.argv[1:])
    write_zip(files_of(contents.read_text(encoding="utf-8")), out)


if __name__ == "__main__":
    main()
