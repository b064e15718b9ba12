#!/usr/bin/env python3
"""Makes the pictures of docs/guide: runs its programs through Wine and takes their windows.

    scripts/make_guide_pictures.py

Needs the preset win64 built. The tests of the guide drive the programs and leave bitmaps; what is
stored is PNG, with which the same tests compare the windows afterwards.
"""

import os
import struct
import sys
import tempfile
from pathlib import Path

from commands.steps import call
from commands.wine import RUN, windows_path

ROOT = Path(__file__).resolve().parent.parent
TESTS = ROOT / "build/win64/bin/guide_tests.exe"
PICTURES = ROOT / "docs/guide/pictures"

sys.path.insert(0, str(ROOT / "window/buttons"))
sys.dont_write_bytecode = True
from picture_files import png_bytes  # noqa: E402


def bitmap_rows(data):
    """The rows of a bitmap file of 1 or 32 bits a pixel, from the top: (red, green, blue)."""
    start, size, width, height, _, depth = struct.unpack_from("<IIiiHH", data, 10)
    stride = (width * depth + 31) // 32 * 4
    palette = [data[14 + size + 4 * i :][:3][::-1] for i in range(2)]
    rows = []
    for y in range(abs(height)):
        row = data[start + y * stride :][:stride]
        if depth == 1:
            rows.append([tuple(palette[row[x // 8] >> 7 - x % 8 & 1]) for x in range(width)])
        else:
            rows.append([(row[4 * x + 2], row[4 * x + 1], row[4 * x]) for x in range(width)])
    return rows if height < 0 else rows[::-1]


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        environment = {**os.environ, "TAVIX_GUIDE_PICTURES": windows_path(folder)}
        environment.pop("DISPLAY", None)  # a display of its own, without other windows
        environment["TAVIX_DESKS"] = "1"
        well, output = call([RUN, TESTS], env=environment, cwd=folder)
        if not well:
            print(output)
            return 1
        PICTURES.mkdir(exist_ok=True)
        for bitmap in sorted(folder.glob("*.bmp")):
            picture = PICTURES / bitmap.with_suffix(".png").name
            picture.write_bytes(png_bytes(bitmap_rows(bitmap.read_bytes())))
            print(f"{picture.relative_to(ROOT)}: {picture.stat().st_size} bytes")
    return 0


if __name__ == "__main__":
    sys.exit(main())
