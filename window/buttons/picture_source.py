"""Reads buttons.txt, the palette and the glyphs, and the table of buttons in the order of the column."""

import re
from dataclasses import dataclass

TRANSPARENT = "."


class SourceError(Exception):
    """A line of the picture source that has no meaning."""


@dataclass(frozen=True)
class Button:
    identifier: int  # the first of its bitmaps
    name: str
    width: int
    height: int
    layers: tuple  # glyphs as lists of rows, the lowest first
    pressed_in_ids: tuple  # (focused, disabled) of a button that stays pressed in, else empty


@dataclass(frozen=True)
class Source:
    palette: dict  # character -> (red, green, blue), in the order of the colour indices
    buttons: tuple


_TURNS = {
    "mirror": lambda rows: [row[::-1] for row in rows],
    "flip": lambda rows: rows[::-1],
    "turn": lambda rows: [row[::-1] for row in rows[::-1]],
}


def _layer(word, glyphs):
    turn, _, name = word.rpartition(":")
    if name not in glyphs or (turn and turn not in _TURNS):
        raise SourceError(f"no such layer: {word}")
    return _TURNS[turn](glyphs[name]) if turn else glyphs[name]


def _check_glyph(name, rows, palette):
    if not rows or len({len(row) for row in rows}) != 1:
        raise SourceError(f"glyph {name}: the rows differ in length")
    unknown = set("".join(rows)) - set(palette) - {TRANSPARENT}
    if unknown:
        raise SourceError(f"glyph {name}: no such colour: {' '.join(sorted(unknown))}")


def _blocks(text):
    """The lines as (words of the statement, rows below it)."""
    blocks = []
    in_glyph = False
    for line in text.splitlines():
        if not line.strip():
            in_glyph = False
        elif in_glyph:
            blocks[-1][1].append(line.strip())
        elif not line.startswith("#"):
            words = line.split()
            blocks.append((words, []))
            in_glyph = words[0] == "glyph"
    return blocks


def _table(path):
    """(id, name in small letters, ids of the pressed-in faces) of every row of the table."""
    rows = re.findall(r"BUTTON\((\d+), (\w+), (\d+)\)", path.read_text(encoding="utf-8"))
    for identifier, name, pressed_in in rows:
        small = re.sub(r"(?<=[a-z])(?=[A-Z])", "_", name).lower()
        first = int(pressed_in)
        yield int(identifier), small, (first, first + 1) if first else ()


def read(path, table):
    """The pictures at `path` of the buttons in `table`; raises SourceError where they disagree."""
    palette, glyphs, drawn = {}, {}, {}
    for words, rows in _blocks(path.read_text(encoding="utf-8")):
        match words:
            case ["colour", character, *channels] if len(channels) == 3:
                palette[character] = tuple(int(channel) for channel in channels)
            case ["glyph", name]:
                _check_glyph(name, rows, palette)
                glyphs[name] = rows
            case ["button", name, size, *layers] if layers:
                width, height = (int(side) for side in size.split("x"))
                drawn[name] = (width, height, tuple(_layer(word, glyphs) for word in layers))
            case _:
                raise SourceError(f"cannot read: {' '.join(words)}")
    if len(palette) > 16:
        raise SourceError("a 4-bit picture has sixteen colours at most")
    rows = list(_table(table))
    disagreeing = {name for _, name, _ in rows} ^ set(drawn)
    if disagreeing:
        names = " ".join(sorted(disagreeing))
        raise SourceError(f"in the table or in the pictures, but not in both: {names}")
    return Source(palette, tuple(Button(first, name, *drawn[name], ids) for first, name, ids in rows))
