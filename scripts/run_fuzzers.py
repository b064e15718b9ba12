#!/usr/bin/env python3
"""Builds the fuzzers and runs them; see ./fuzz.

    scripts/run_fuzzers.py [SECONDS [NAMES ...]]

Expects the packages of `scripts/setup.sh fuzz`. Exits with 1 when an input broke a promise.
"""

import os
import re
import sys
from pathlib import Path

from commands.steps import Steps, call
from commands.tally import Tally

ROOT = Path(__file__).resolve().parent.parent
CORPUS = ROOT / "fuzzers/corpus"
BUILD = ROOT / "build/fuzz"
FOUND = BUILD / "found"
USUAL = 60  # seconds
SLOWEST = 20  # seconds that one input may take
MERGING = 10  # seconds, more or less


def names():
    """Of the fuzzers: every one has a folder in the corpus."""
    return sorted(folder.name for folder in CORPUS.iterdir() if folder.is_dir())


def arguments(words):
    """(seconds, names) of the command line; ends the program for any other."""
    known = names()
    seconds, chosen = (words[0], words[1:]) if words else (str(USUAL), [])
    unknown = [name for name in chosen if name not in known]
    if not seconds.isdecimal() or int(seconds) == 0 or unknown:
        sys.exit(f"usage: ./fuzz [SECONDS [NAMES ...]]\nnames: {' '.join(known)}")
    return int(seconds), chosen or known


def program(name):
    return BUILD / "bin" / f"{name}_fuzzer"


def dictionary(name):
    """What helps the fuzzer to write the words of a format, where there is such a list."""
    words = ROOT / f"fuzzers/{name}.dict"
    return [f"-dict={words}"] if words.exists() else []


def failure(name, output):
    """What to say about an input that broke a promise."""
    found = re.search(r"Test unit written to (\S+)", output)
    kept = Path(found[1]).relative_to(ROOT) if found else "no file"
    promise = re.search(r"what\(\): *(.*)|SUMMARY: (.*)|ERROR: (libFuzzer: .*)", output)
    seen = next(filter(None, promise.groups())) if promise else "\n".join(output.splitlines()[-20:])
    return (
        f"{seen}\n"
        f"the input:     {kept}\n"
        f"to repeat it:  {program(name).relative_to(ROOT)} {kept}\n"
        f"then:          correct the code, test it, and move the input to fuzzers/corpus/{name}"
    )


def fuzz(name, seconds):
    """Runs a fuzzer; what reaches new code is kept in its corpus."""
    corpus, work = CORPUS / name, BUILD / "work" / name
    work.mkdir(parents=True, exist_ok=True)
    FOUND.mkdir(exist_ok=True)
    limits = [f"-max_total_time={seconds}", f"-timeout={SLOWEST}", "-print_final_stats=1"]
    well, output = call(
        [program(name), *limits, *dictionary(name), f"-artifact_prefix={FOUND}/{name}-"]
        + [work, corpus]
    )
    if not well:
        return Tally(failures=[(name, failure(name, output))])
    # By new edges only, not by how often they are passed: the corpus of the project stays small.
    before = set(corpus.iterdir())
    well, merged = call([program(name), "-merge=1", "-use_counters=0", corpus, work])
    if not well:
        return Tally(failures=[(name, merged)])
    for new in set(corpus.iterdir()) - before:
        new.rename(new.with_name(new.name[:12]))
    runs = re.search(r"stat::number_of_executed_units: *(\d+)", output)
    print(f"{runs[1]} inputs, {len(set(corpus.iterdir()) - before)} kept, ", end="", flush=True)
    return Tally(passed=1)


def main():
    seconds, chosen = arguments(sys.argv[1:])
    os.chdir(ROOT)
    steps = Steps()
    steps.build(120, "building the fuzzers", ["cmake", "--preset", "fuzz", "--log-level=WARNING"],
                ["cmake", "--build", "--preset", "fuzz", "--parallel", os.cpu_count() or 1])
    for name in chosen:
        steps.count(seconds + MERGING, f"fuzzing {name}", lambda _, name=name: fuzz(name, seconds))
    well = steps.run()
    print(f"{steps.tally.passed} fuzzers found nothing, {len(steps.tally.failures)} something")
    return 0 if well else 1


if __name__ == "__main__":
    sys.exit(main())
