#!/usr/bin/env python3
"""Takes the pictures out of a test report:  scripts/report_pictures.py REPORT.txt FOLDER

The report is what run_tests.cmd leaves on a Windows machine. Each picture becomes a PNG file in a
folder of its program. Prints what it wrote.
"""

import base64
import re
import sys
from pathlib import Path

PICTURE = re.compile(r"^-----BEGIN PICTURE (\w+)/([^/\\\r\n]+)-----\r?$(.*?)^-----END PICTURE-----",
                     re.DOTALL | re.MULTILINE)


def pictures_of(report):
    """(program, file name, bytes) of each picture in the text of a report."""
    for program, name, digits in PICTURE.findall(report):
        yield program, name, base64.b64decode(digits)


def main():
    report, folder = map(Path, sys.argv[1:])
    for program, name, content in pictures_of(report.read_text(encoding="utf-8-sig")):
        file = folder / program / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(content)
        print(file)


if __name__ == "__main__":
    main()
