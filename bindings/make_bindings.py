#!/usr/bin/env python3
"""Makes the declarations of every language from the public header.

    bindings/make_bindings.py                    rewrites what is kept in the project
    bindings/make_bindings.py --check            names the files that are not current, and fails
    bindings/make_bindings.py --definitions OUT  writes the calls of the C layer, for the build
    bindings/make_bindings.py --module OUT       writes the list of its exports (.def), for the build
    bindings/make_bindings.py --test-table OUT   writes the table of all calls for the tests
"""

import argparse
import sys
from pathlib import Path

from description import read_header
from writers import c_layer, c_test_table, csharp, go, javascript, pascal, python_ctypes

ROOT = Path(__file__).resolve().parent.parent


def kept_files(description):
    """The made files that are kept in the project: path and text."""
    template = (ROOT / "bindings/c/tavix_c.h.in").read_text(encoding="utf-8")
    yield "include/tavix/tavix_c.h", c_layer.header(description, template)
    yield "bindings/csharp/Calls.cs", csharp.declarations(description)
    yield "bindings/python/tavix_calls.py", python_ctypes.declarations(description)
    yield "bindings/go/calls.go", go.declarations(description)
    yield "bindings/pascal/TavixCalls.pas", pascal.declarations(description)
    yield "bindings/javascript/tavix_calls.js", javascript.declarations(description)


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--definitions", type=Path)
    parser.add_argument("--module", type=Path)
    parser.add_argument("--test-table", type=Path)
    arguments = parser.parse_args()
    description = read_header()
    for_the_build = [(arguments.definitions, c_layer.definitions),
                     (arguments.module, c_layer.module),
                     (arguments.test_table, c_test_table.table)]
    made = [path.write_text(write(description), encoding="utf-8")
            for path, write in for_the_build if path]
    if made:
        return 0
    stale = 0
    for name, text in kept_files(description):
        path = ROOT / name
        if path.is_file() and path.read_text(encoding="utf-8") == text:
            continue
        stale += 1
        if arguments.check:
            print(f"{name} is not what bindings/make_bindings.py makes of the header")
        else:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
    if arguments.check and not stale:
        print(f"The declarations of every language are current: {len(description.calls)} calls.")
    return 1 if arguments.check and stale else 0


if __name__ == "__main__":
    sys.exit(main())
