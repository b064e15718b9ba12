#!/usr/bin/env python3
"""Checks that the same sources give the same bytes, wherever and whenever they are built.

    scripts/check_same_bytes.py FOLDER

Clones the last commit twice below FOLDER, under names of different length, builds the win64 product
in both from scratch, without a compiler cache, and makes the packages. Compares DLLs, sample host,
import libraries, ZIP and installer, and names the files that differ. Takes two whole builds of the
product; the clones are removed when nothing differs. Exits with 1 when something does.
"""

import os
import shutil
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUILD = "build/win64"
TARGETS = ("tavix", "tavix_c", "fieldhost", "framework_winmain", "tavix_msvc", "tavix_c_msvc")
COMPARED = (
    "bin/*.dll", "bin/fieldhost.exe", "tavix-*.zip", "tavix-*.exe", "msvc/*",
    "[a-z]*/**/*.dll.a", "[a-z]*/**/libframework_winmain.a",
)


def run(*command, folder):
    environment = {**os.environ, "CCACHE_DISABLE": "1"}
    words = [str(word) for word in command]
    subprocess.run(words, cwd=folder, env=environment, check=True, stdout=subprocess.DEVNULL)


def build(folder):
    """The product and its packages, from a clone in `folder`."""
    run("git", "clone", "--quiet", ROOT, folder, folder=ROOT)
    run("cmake", "--preset", "win64", "-DBUILD_TESTING=OFF", folder=folder)
    run("cmake", "--build", "--preset", "win64", "--target", *TARGETS, folder=folder)
    run("cpack", "--config", "CPackConfig.cmake", folder=folder / BUILD)


def compared_files(folder):
    """{path from the build folder: bytes} of what is compared."""
    place = folder / BUILD
    files = {path for pattern in COMPARED for path in place.glob(pattern)}
    return {path.relative_to(place).as_posix(): path.read_bytes() for path in files}


def differences(first, second):
    """One line for each file that differs or is in one of the two only."""
    for name in sorted(first.keys() | second.keys()):
        if name not in first or name not in second:
            yield f"{name} is in one build only"
        elif first[name] != second[name]:
            pairs = zip(first[name], second[name])
            place = next((f"byte {at}" for at, (a, b) in enumerate(pairs) if a != b), "its end")
            yield f"{name} differs from {place} on"


def main():
    folders = [Path(sys.argv[1]).resolve() / name for name in ("one", "another-folder")]
    for folder in folders:
        print(f"Building in {folder} ...", flush=True)
        build(folder)
    first, second = map(compared_files, folders)
    found = list(differences(first, second))
    print("\n".join(found) if found else f"{len(first)} files are the same in both builds.")
    if not found:
        for folder in folders:
            shutil.rmtree(folder)
    return 1 if found or not first else 0


if __name__ == "__main__":
    sys.exit(main())
