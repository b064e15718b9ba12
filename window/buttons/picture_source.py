"""Reads buttons.txt: the palette, the glyphs, and the buttons in the order of the column."""

from dataclasses import dataclass

TRANSPARENT = "."


class SourceError(Exception):
    """A line of the picture source that cannot be meant."""


@dataclass(frozen=True)
class Button:
    name: str
    width: int
    height: int
    layers: tuple  # glyphs as lists of rows, the lowest first
    pressed_in_ids: tuple = ()  # (focused, disabled) of a button that stays pressed in


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


def read(path):
    """The picture source at `path`; raises SourceError on a statement that cannot be meant."""
    palette, glyphs, buttons, toggles = {}, {}, [], {}
    for words, rows in _blocks(path.read_text(encoding="utf-8")):
        match words:
            case ["colour", character, *channels] if len(channels) == 3:
                palette[character] = tuple(int(channel) for channel in channels)
            case ["glyph", name]:
                _check_glyph(name, rows, palette)
                glyphs[name] = rows
            case ["button", name, size, *layers] if layers:
                width, height = (int(side) for side in size.split("x"))
                drawn = tuple(_layer(word, glyphs) for word in layers)
                buttons.append((name, width, height, drawn))
            case ["toggle", name, focused, disabled]:
                toggles[name] = (int(focused), int(disabled))
            case _:
                raise SourceError(f"cannot read: {' '.join(words)}")
    if len(palette) > 16:
        raise SourceError("a 4-bit picture has sixteen colours at most")
    lost = set(toggles) - {button[0] for button in buttons}
    if lost:
        raise SourceError(f"toggle without a button: {' '.join(sorted(lost))}")
    return Source(palette, tuple(Button(*button, toggles.get(button[0], ())) for button in buttons))
