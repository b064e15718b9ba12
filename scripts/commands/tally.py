"""How many checks passed, failed and were skipped."""

from dataclasses import dataclass, field


@dataclass
class Tally:
    passed: int = 0
    failures: list = field(default_factory=list)  # (name, what was seen)
    skips: list = field(default_factory=list)  # (name, reason)

    def add(self, other):
        self.passed += other.passed
        self.failures += other.failures
        self.skips += other.skips

    def line(self):
        """The plain count, such as "120 passed, 1 failed, 2 skipped"."""
        skipped = f", {len(self.skips)} skipped" if self.skips else ""
        return f"{self.passed} passed, {len(self.failures)} failed{skipped}"
