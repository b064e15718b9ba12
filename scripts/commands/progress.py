"""How far a command is, and how much of a plan is left."""

import re

# What Ninja ("[12/340] ...") and CTest ("12/34 Test #7: ...") print for each thing they finished.
_FINISHED = re.compile(r"^ *(?:\[(\d+)/(\d+)\]|(\d+)/(\d+) Test) .*$", re.MULTILINE)

# The measured shares count as this many seconds of experience with this machine.
_TRUST = 60


def finished_of(output):
    """(finished, all) as the output last counted; None when it does not count."""
    found = None
    for found in _FINISHED.finditer(output):
        pass
    return found and tuple(int(number) for number in found.groups() if number)


def without_counts(output):
    """The output without the lines that only count."""
    return re.sub(_FINISHED.pattern + r"\n?", "", output, flags=re.MULTILINE)


class Shares:
    """What each step of a plan takes, in seconds on the machine where that was measured."""

    def __init__(self, shares):
        self._shares = shares

    def seconds_left(self, step, part, elapsed):
        """The seconds left while `part` (0 to 1) of the step with this index is done.

        `elapsed` seconds have passed since the plan began: where the steps so far were quicker or
        slower than measured, the rest is expected to be so too, the more the longer they took.
        """
        expected = sum(self._shares[:step]) + part * self._shares[step]
        pace = (elapsed + _TRUST) / (expected + _TRUST)
        return (sum(self._shares) - expected) * pace


def in_words(seconds):
    """ "about 3 min", "less than a minute"."""
    minutes = round(seconds / 60)
    return f"about {minutes} min" if minutes else "less than a minute"
