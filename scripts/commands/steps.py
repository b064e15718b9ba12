"""Numbered steps that say what they are doing and how much is left while they do it."""

import os
import subprocess
import tempfile
import time
from dataclasses import dataclass
from typing import Callable

from commands.progress import TimeLeft, finished_of, in_words, without_counts
from commands.tally import Tally

LOOK = 1  # seconds between two looks at what a command printed
SAY = 15  # seconds between two lines of progress
TAIL = 4096  # bytes of output among which the last count is


def call(command, watch=None, **options):
    """Runs a command; (whether it succeeded, what it printed).

    `watch` is called now and then with what the command printed last.
    """
    # Into a file: a pipe would have to be read until everything that the command left has ended.
    with tempfile.TemporaryFile() as output:
        running = subprocess.Popen(
            [str(word) for word in command],
            stdout=output,
            stderr=subprocess.STDOUT,
            **options,
        )
        while True:
            try:
                code = running.wait(LOOK)
                break
            except subprocess.TimeoutExpired:
                if watch:
                    # The place in the file is shared with the command: it must not move.
                    file = output.fileno()
                    tail = os.pread(file, TAIL, max(0, os.fstat(file).st_size - TAIL))
                    watch(tail.decode("utf-8", errors="replace"))
        output.seek(0)
        return code == 0, output.read().decode("utf-8", errors="replace")


@dataclass
class _Step:
    title: str
    share: float  # seconds, see TimeLeft
    run: Callable  # with what watches its output; returns a Tally
    needed: bool  # by the later steps
    shows: bool = False  # prints lines of its own


class Steps:
    """A plan of steps, run one after another, and the tally of all of them.

    Each has a share of the whole: the seconds it took on a fresh clone with two cores.
    """

    def __init__(self):
        self.tally = Tally()
        self._plan = []

    def check(self, share, title, *commands):
        """A step that counts as one check: all commands have to succeed."""
        run = lambda watch: _count_commands(title, commands, watch, counts=1)
        self._plan.append(_Step(title, share, run, needed=False))

    def build(self, share, title, *commands):
        """A step that the later ones need: counts only when it fails, and then ends the run."""
        run = lambda watch: _count_commands(title, commands, watch, counts=0)
        self._plan.append(_Step(title, share, run, needed=True))

    def show(self, share, title, command):
        """A step that the later ones need, whose output is shown as it comes."""
        run = lambda _: _count_shown(title, command)
        self._plan.append(_Step(title, share, run, needed=True, shows=True))

    def count(self, share, title, run):
        """A step whose `run` returns a tally; it may hand its argument to `call` as `watch`."""
        self._plan.append(_Step(title, share, run, needed=False))

    def run(self):
        """Runs the plan; whether nothing failed."""
        left = TimeLeft(step.share for step in self._plan)
        for number, step in enumerate(self._plan, 1):
            line = _Line(left)
            line.start(f"step {number} of {len(self._plan)}", step.title)
            if step.shows:
                line.end_first()
            tally = step.run(line.watch)
            line.end(tally)
            self.tally.add(tally)
            if step.needed and tally.failures:
                print("Stopped: the rest needs this step.", flush=True)
                break
        return not self.tally.failures


class _Line:
    """What one step prints: its beginning, its progress now and then, and its end."""

    def __init__(self, left):
        self._left = left
        self._started = self._said = time.monotonic()
        self._open = True  # no line break yet

    def start(self, number, title):
        words = in_words(self._left.seconds())
        print(f"{number}, {words} left: {title} ... ", end="", flush=True)

    def end_first(self):
        if self._open:
            print(flush=True)
            self._open = False

    def watch(self, output):
        counted = finished_of(output)
        now = time.monotonic()
        if not counted or now - self._said < SAY:
            return
        self._said = now
        self.end_first()
        finished, whole = counted
        words = in_words(self._left.seconds(finished / whole, now - self._started))
        print(f"    {finished} of {whole}, {words} left", flush=True)

    def end(self, tally):
        seconds = time.monotonic() - self._started
        self._left.finish(seconds)
        passed = f", {tally.passed} passed" if tally.passed > 1 else ""
        failed = f", {len(tally.failures)} FAILED" if tally.failures else ""
        indent = "" if self._open else "    "
        print(f"{indent}{seconds:.0f} s{passed}{failed}", flush=True)
        for name, seen in tally.failures:
            print(f"--- {name}\n{seen.rstrip()}\n---", flush=True)


def _count_shown(title, command):
    code = subprocess.run([str(word) for word in command], check=False).returncode
    return Tally(failures=[(title, f"ended with code {code}")] if code else [])


def _count_commands(title, commands, watch, counts):
    for command in commands:
        well, output = call(command, watch)
        if not well:
            return Tally(failures=[(title, without_counts(output))])
    return Tally(passed=counts)
