#!/usr/bin/env python3
"""Measures the goals for speed and size and writes docs/performance.md; see ./bench.

    scripts/run_benchmarks.py             all of them, in some ten minutes
    scripts/run_benchmarks.py NAMES ...   some of them, printed and not written
"""

import datetime
import os
import platform
import statistics
import subprocess
import sys
import time
from pathlib import Path

from commands.figures import Figure, in_order, read_figures, replace_figures
from commands.steps import call
from commands.wine import RUN, windows_path

ROOT = Path(__file__).resolve().parent.parent
PAGE = ROOT / "docs/performance.md"
BIN = ROOT / "build/win64/bin"
PROGRAM = BIN / "goal_bench.exe"
LIST = ROOT.parent / "shared/data/os-trig/trig_points_pnezd.csv"
# The names that goal_bench knows, and the host as a whole.
MEASUREMENTS = (
    "whole", "labels", "pens", "zoomed", "points", "picks", "memory", "lines", "figures",
    "at-once", "changes", "paint", "one-bit", "host", "first", "side",
)  # fmt: skip
# The largest window measured has to lie on the screen.
SCREEN = "3860x2180x24"


def run(*command):
    succeeded, output = call([RUN, *command])
    if not succeeded:
        sys.exit(f"{command} failed:\n{output}")
    return output


def seconds(*command):
    """The median wall time of a program, Wine's own start included."""
    times = []
    for _ in range(5):
        started = time.monotonic()
        run(*command)
        times.append(time.monotonic() - started)
    return statistics.median(times)


def measure_host():
    """From the start of the sample host to the picture of a coordinate list."""
    if not LIST.exists():
        print("    the coordinate list is absent: the host is not measured", flush=True)
        return []
    nothing = seconds(PROGRAM, "nothing")
    picture = windows_path(ROOT / "build/bench.png")
    host = seconds(BIN / "fieldhost.exe", windows_path(LIST), "--picture", picture) - nothing
    lines = [run(PROGRAM, "list", windows_path(LIST)) for _ in range(5)]
    floors = [float(line.split("\t")[1]) for text in lines for line in text.splitlines()
              if line.startswith("list\t")]  # fmt: skip
    floor = statistics.median(floors) / 1000
    details = f"reading and base {floor:.3g} s, host {host:.3g} s without Wine's own start"
    what = "a list of 21,479 points in the sample host, start to picture file"
    return [Figure("15", what, host / floor, "", 0.8, details, -1)]


def machine():
    processor = platform.processor() or platform.machine()
    for line in Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            processor = line.split(":", 1)[1].strip()
            break
    wine = subprocess.run(["wine", "--version"], capture_output=True, text=True, check=False)
    load = os.getloadavg()[0]
    return (
        f"{processor}, {os.cpu_count()} cores; {wine.stdout.strip() or 'Wine'}; "
        f"Xvfb {SCREEN}; {datetime.date.today()}; load before the run {load:.1f}."
    )


def main():
    names = sys.argv[1:] or MEASUREMENTS
    unknown = set(names) - set(MEASUREMENTS)
    if unknown:
        sys.exit(f"There is no measurement {', '.join(sorted(unknown))}: {', '.join(MEASUREMENTS)}.")
    where = machine()
    os.environ.pop("DISPLAY", None)
    os.environ["TAVIX_SCREEN"] = SCREEN
    for command in (
        ["cmake", "--preset", "win64", "--log-level=WARNING"],
        ["cmake", "--build", "--preset", "win64", "--target", "goal_bench", "fieldhost"],
    ):
        succeeded, output = call(command, cwd=ROOT)
        if not succeeded:
            sys.exit(output)
    figures = []
    for name in names:
        print(f"{name} ...", flush=True)
        new = measure_host() if name == "host" else read_figures(run(PROGRAM, name))
        for figure in new:
            print(f"    {figure.row()}", flush=True)
        figures += new
    missed = sum(not figure.met for figure in figures)
    if names is MEASUREMENTS:
        PAGE.write_text(replace_figures(PAGE.read_text(), where, in_order(figures)))
        print(f"Written: {PAGE.relative_to(ROOT)}")
    print(f"{len(figures)} figures, {missed} above their goal.")


if __name__ == "__main__":
    main()
