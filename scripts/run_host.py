#!/usr/bin/env python3
"""Builds the sample host and shows survey files in it; see ./run.

    scripts/run_host.py FILES ...

Expects the packages of `scripts/setup.sh run`.
"""

import os
import sys
from pathlib import Path

from commands.steps import Steps
from commands.wine import RUN, windows_path

ROOT = Path(__file__).resolve().parent.parent
HOST = ROOT / "build/win64/bin/fieldhost.exe"
PICTURES = ROOT / "out"
SAMPLE = (".csv", ".sim", ".xml")
# Where the tests' packages are not installed, the tests cannot be configured.
CONFIGURE = [] if Path("/usr/src/googletest").exists() else ["-DBUILD_TESTING=OFF"]


def main():
    files = [Path(name).resolve() for name in sys.argv[1:]]
    sample = sorted((ROOT / "host/resources/sample").iterdir())
    files = files or [file for file in sample if file.suffix in SAMPLE]
    os.chdir(ROOT)
    shown = bool(os.environ.get("DISPLAY"))

    steps = Steps()
    steps.build(4, "configuring", ["cmake", "--preset", "win64", *CONFIGURE])
    title = "building the library and the sample host"
    steps.build(70, title, ["cmake", "--build", "--preset", "win64", "--target", "fieldhost"])
    if not shown:
        PICTURES.mkdir(exist_ok=True)
        for file in files:
            picture = PICTURES / f"{file.name}.png"
            command = [RUN, HOST, windows_path(file), "--picture", windows_path(picture)]
            steps.show(5, f"drawing out/{picture.name}", command)
    if not steps.run():
        return 1
    if shown:
        os.execv(RUN, [RUN, HOST, *map(windows_path, files)])
    print(f"There is no display: the pictures are in {PICTURES}.")
    return 0


if __name__ == "__main__":
    sys.exit(main())
