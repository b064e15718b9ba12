"""How far a command is, and how much of a plan is left."""

import re

# What Ninja ("[12/340] ...") and CTest ("12/34 Test #7: ...") print for each thing they finished.
_FINISHED = re.compile(r"^ *(?:\[(\d+)/(\d+)\]|(\d+)/(\d+) Test) .*$", re.MULTILINE)

# The measured shares count as this many seconds of experience with this machine.
_TRUST = 60

# A step that took less than this part of its share had next to nothing to do.
_WORKED = 0.2


def finished_of(output):
    """(finished, all) as the output last counted; None when it does not count."""
    found = None
    for found in _FINISHED.finditer(output):
        pass
    return found and tuple(int(number) for number in found.groups() if number)


def without_counts(output):
    """The output without the lines that only count."""
    return re.sub(_FINISHED.pattern + r"\n?", "", output, flags=re.MULTILINE)


class TimeLeft:
    """What is left of a plan whose steps have shares: seconds on the machine of the measurement."""

    def __init__(self, shares):
        self._shares = list(shares)  # of the steps that are not finished
        self._expected = self._took = _TRUST

    def finish(self, seconds):
        """The step under way ended and took so many seconds."""
        share = self._shares.pop(0)
        # One that found nothing to do says nothing about the machine.
        if seconds > share * _WORKED:
            self._expected += share
            self._took += seconds

    def seconds(self, part=0, spent=0):
        """`part` (0 to 1) of the step under way is done after `spent` seconds.

        Where the steps so far were quicker or slower than measured, the rest is expected to be so
        too, the more the longer they took.
        """
        done = part * self._shares[0]
        pace = (self._took + spent) / (self._expected + done)
        return (sum(self._shares) - done) * pace


def in_words(seconds):
    """ "about 3 min", "less than a minute"."""
    minutes = round(seconds / 60)
    return f"about {minutes} min" if minutes else "less than a minute"
