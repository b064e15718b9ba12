#!/usr/bin/env python3
"""Measures the goals for speed and size and writes docs/performance.md; see ./bench.

    scripts/run_benchmarks.py             all of them, in some ten minutes
    scripts/run_benchmarks.py NAMES ...   some of them, printed and not written
"""

import contextlib
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
    """The wall time of a program, Wine's own start included."""
    started = time.monotonic()
    # Waits without a time limit: with one Python looks at the program every 50 ms only.
    subprocess.run([str(word) for word in (RUN, *command)], stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL, check=True)  # fmt: skip
    return time.monotonic() - started


def measure_host():
    """From the start of the sample host to the picture of a coordinate list: beside a program that
    does nothing, and beside the host without a list, which opens its window and writes a PNG file
    too."""
    if not LIST.exists():
        print("    the coordinate list is absent: the host is not measured", flush=True)
        return []
    host = BIN / "fieldhost.exe"
    picture = ("--picture", windows_path(ROOT / "build/bench.png"))
    beside_nothing, beside_empty, floors = [], [], []
    run(host, *picture)  # Wine's desktop is there from now on
    for _ in range(11):
        nothing = seconds(PROGRAM, "nothing")
        empty = seconds(host, *picture)
        full = seconds(host, windows_path(LIST), *picture)
        lines = run(PROGRAM, "list", windows_path(LIST)).splitlines()
        floor = next(float(line.split("\t")[1]) for line in lines if line.startswith("list\t"))
        floors.append(floor / 1000)
        beside_nothing.append(full - nothing)
        beside_empty.append(full - empty)

    def figure(what, times):
        ratio = statistics.median(time / floor for time, floor in zip(times, floors))
        details = (f"reading and base {statistics.median(floors):.3g} s, "
                   f"host {statistics.median(times):.3g} s")  # fmt: skip
        return Figure("15", what, ratio, "", 0.8, details, -1)

    what = "a list of 21,479 points in the sample host, start to picture file, "
    return [
        figure(what + "without Wine's own start", beside_nothing),
        figure(what + "without that of an empty window", beside_empty),
    ]


@contextlib.contextmanager
def display():
    """One display for all programs: its start is no part of what is measured."""
    read, write = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write), "-screen", "0", SCREEN, "-nolisten", "tcp"],
        pass_fds=(write,), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
    )  # fmt: skip
    os.close(write)
    try:
        with os.fdopen(read) as number:
            os.environ["DISPLAY"] = ":" + number.readline().strip()
        yield
    finally:
        server.terminate()
        server.wait()


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
    for command in (
        ["cmake", "--preset", "win64", "--log-level=WARNING"],
        ["cmake", "--build", "--preset", "win64", "--target", "goal_bench", "fieldhost"],
    ):
        succeeded, output = call(command, cwd=ROOT)
        if not succeeded:
            sys.exit(output)
    figures = []
    with display():
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
