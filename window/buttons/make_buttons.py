#!/usr/bin/env python3
"""Makes the pictures of the plot window's button column from buttons.txt and button_table.h.

    window/buttons/make_buttons.py FOLDER          writes the BMP files and buttons.rc into FOLDER
    window/buttons/make_buttons.py --sheet X.png   writes one enlarged picture of all of them

The build does the first; the second is for looking at a change.
"""

import argparse
import sys
from pathlib import Path

# Imported from a source folder: keep it free of compiled files.
sys.dont_write_bytecode = True

import button_faces
import picture_files
import picture_source


def write_resources(folder, pictures, palette):
    folder.mkdir(parents=True, exist_ok=True)
    lines = []
    for identifier, (name, face) in sorted(pictures.items()):
        (folder / f"{name}.bmp").write_bytes(picture_files.bmp_bytes(face, palette))
        lines.append(f'{identifier} BITMAP "{name}.bmp"\n')
    # Last, so that a build that was stopped starts over.
    (folder / "buttons.rc").write_text("".join(lines), encoding="ascii")


def write_sheet(path, buttons, pictures, palette, scale):
    states = len(button_faces.STATES)
    columns = []
    for button in buttons:
        first = button.identifier
        identifiers = (*range(first, first + states), *button.pressed_in_ids)
        columns.append([pictures[identifier][1] for identifier in identifiers])
    path.write_bytes(picture_files.png_bytes(picture_files.sheet(columns, palette, scale)))


def main():
    parser = argparse.ArgumentParser(description="Makes the pictures of the button column.")
    parser.add_argument("folder", nargs="?", type=Path, help="where the BMP files and buttons.rc go")
    parser.add_argument("--sheet", type=Path, help="a PNG file that shows all pictures")
    parser.add_argument("--scale", type=int, default=6, help="how many times the sheet is enlarged")
    arguments = parser.parse_args()
    if not arguments.folder and not arguments.sheet:
        parser.error("say a folder, or --sheet")

    folder = Path(__file__).resolve().parent
    source = picture_source.read(folder / "buttons.txt", folder / "button_table.h")
    pictures = button_faces.faces(source.buttons)
    if arguments.folder:
        write_resources(arguments.folder, pictures, source.palette)
    if arguments.sheet:
        write_sheet(arguments.sheet, source.buttons, pictures, source.palette, arguments.scale)


if __name__ == "__main__":
    try:
        main()
    except picture_source.SourceError as error:
        sys.exit(f"buttons.txt: {error}")
