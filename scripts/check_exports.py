#!/usr/bin/env python3
"""Checks that the library exports exactly the calls its public header declares.

    scripts/check_exports.py                 compares header, frame/tavix.def and the built DLL
    scripts/check_exports.py --dll X.dll     the same with another build of the library; of
                                             tavix_c.dll with its own header, which has no list
    scripts/check_exports.py --refresh       rewrites the list in frame/tavix.def from the header

The header is the first word: a call is declared there, listed in the .def file, sorted and
without decoration, and found in the DLL. Exits with 1 when the three differ.
"""

import argparse
import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
HEADER = ROOT / "include/tavix/tavix.h"
C_HEADER = ROOT / "include/tavix/tavix_c.h"
DEFINITION = ROOT / "frame/tavix.def"
BUILT = ROOT / "build/win64/bin/tavix.dll"


def declared_calls(text, macro="TAVIX_CALL"):
    """The calls a header declares with `macro`, in its order; comments do not count."""
    code = re.sub(r"//[^\n]*|/\*.*?\*/", "", text, flags=re.DOTALL)
    code = re.sub(r"^\s*#.*$", "", code, flags=re.MULTILINE)
    return re.findall(rf"\b{macro}\b[^();]*?\b(\w+)\s*\(", code)


def listed_calls(text):
    """The names below EXPORTS in a .def file, in its order."""
    lines = [line.split(";")[0].strip() for line in text.splitlines()]
    if "EXPORTS" not in lines:
        return []
    return [line.split()[0] for line in lines[lines.index("EXPORTS") + 1 :] if line]


def exported_calls(listing):
    """The names in the export table of a DLL, from what `objdump -p` prints."""
    table = listing.partition("[Ordinal/Name Pointer] Table")[2].partition("\n\n")[0]
    return re.findall(r"^\s*\[\s*\d+\].*?(\S+)$", table, flags=re.MULTILINE)


def refreshed(text, names):
    """The .def file's text with `names` as its list."""
    head = text.partition("EXPORTS")[0]
    return head + "EXPORTS\n" + "".join(f"  {name}\n" for name in sorted(names))


def differences(name, wanted, found):
    for call in sorted(set(wanted) - set(found)):
        yield f"{call} is missing in {name}"
    for call in sorted(set(found) - set(wanted)):
        yield f"{call} is in {name} but not in the header"
    for call in sorted({call for call in found if found.count(call) > 1}):
        yield f"{call} stands twice in {name}"


def report(declared, found, dll):
    """Adds what the built DLL differs in, and says all that was found; the exit code."""
    if not declared:
        found.append("the header declares no call")
    command = ["x86_64-w64-mingw32-objdump", "-p", str(dll)]
    listing = subprocess.run(command, capture_output=True, text=True, check=False)
    if listing.returncode != 0:
        found.append(listing.stderr.strip() or f"cannot read {dll}")
    else:
        found += differences(dll.name, declared, exported_calls(listing.stdout))
    print("\n".join(found) if found else f"{len(declared)} calls are declared and exported.")
    return 1 if found else 0


def main():
    parser = argparse.ArgumentParser(description="Compares header, list and built exports.")
    parser.add_argument("--dll", type=Path, default=BUILT)
    parser.add_argument("--refresh", action="store_true", help="rewrite the list from the header")
    arguments = parser.parse_args()

    if arguments.dll.stem == "tavix_c":
        return report(declared_calls(C_HEADER.read_text(encoding="utf-8"), "TAVIX_C_CALL"), [],
                      arguments.dll)
    declared = declared_calls(HEADER.read_text(encoding="utf-8"))
    definition = DEFINITION.read_text(encoding="utf-8")
    if arguments.refresh:
        DEFINITION.write_text(refreshed(definition, declared), encoding="utf-8")
        print(f"frame/tavix.def lists {len(declared)} calls.")
        return 0

    listed = listed_calls(definition)
    found = [*differences("frame/tavix.def", declared, listed)]
    if listed != sorted(listed):
        found.append("the list in frame/tavix.def is not sorted")
    if found:
        found.append("Refresh the list with: scripts/check_exports.py --refresh")
    return report(declared, found, arguments.dll)


if __name__ == "__main__":
    sys.exit(main())
