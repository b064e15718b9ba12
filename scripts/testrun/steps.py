"""Numbered steps that say what they are doing while they do it."""

import subprocess
import tempfile
import time

from testrun.tally import Tally


def call(command, **options):
    """Runs a command; (whether it succeeded, what it printed)."""
    # Into a file: a pipe would have to be read until everything that the command left has ended.
    with tempfile.TemporaryFile() as output:
        ended = subprocess.run(
            [str(word) for word in command],
            stdout=output,
            stderr=subprocess.STDOUT,
            check=False,
            **options,
        )
        output.seek(0)
        return ended.returncode == 0, output.read().decode("utf-8", errors="replace")


class Steps:
    """A plan of steps, run one after another, and the tally of all of them."""

    def __init__(self):
        self.tally = Tally()
        self._plan = []  # (title, what it does, whether the later steps need it)

    def check(self, title, *commands):
        """A step that counts as one check: all commands have to succeed."""
        self._plan.append((title, lambda: _count_commands(title, commands, counts=1), False))

    def build(self, title, *commands):
        """A step that the later ones need: counts only when it fails, and then ends the run."""
        self._plan.append((title, lambda: _count_commands(title, commands, counts=0), True))

    def count(self, title, run):
        """A step whose `run` returns a tally of its own."""
        self._plan.append((title, run, False))

    def run(self):
        for number, (title, run, needed) in enumerate(self._plan, 1):
            print(f"[{number}/{len(self._plan)}] {title} ... ", end="", flush=True)
            start = time.monotonic()
            tally = run()
            _say(tally, time.monotonic() - start)
            self.tally.add(tally)
            if needed and tally.failures:
                print("Stopped: the rest needs this build.")
                return


def _count_commands(title, commands, counts):
    for command in commands:
        well, output = call(command)
        if not well:
            return Tally(failures=[(title, output)])
    return Tally(passed=counts)


def _say(tally, seconds):
    passed = f", {tally.passed} passed" if tally.passed > 1 else ""
    failed = f", {len(tally.failures)} FAILED" if tally.failures else ""
    print(f"{seconds:.0f} s{passed}{failed}", flush=True)
    for name, seen in tally.failures:
        print(f"--- {name}\n{seen.rstrip()}\n---", flush=True)
