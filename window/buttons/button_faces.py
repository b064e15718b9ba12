"""Derives the faces of a button from its glyph: raised, sunken, focused, disabled.

A face is a list of rows, each a list of colour characters of the palette.
"""

from picture_source import TRANSPARENT, SourceError

FACE, LIGHT, SHADE, DARK = "f", "w", "d", "k"

# The order of the four bitmap ids each button has.
STATES = ("normal", "pressed", "focused", "disabled")


def _edge(width, height, sunken):
    face = [[FACE] * width for _ in range(height)]
    right, bottom = width - 1, height - 1
    outer = (DARK, LIGHT) if sunken else (LIGHT, DARK)
    inner_at = (1, 1) if sunken else (right - 1, bottom - 1)
    for x in range(1, right):
        face[inner_at[1]][x] = SHADE
    for y in range(1, bottom):
        face[y][inner_at[0]] = SHADE
    # The lower right edge takes both of its corners, as Windows draws its own buttons.
    for x in range(width):
        face[0][x], face[bottom][x] = outer
    for y in range(height):
        face[y][0], face[y][right] = outer
    face[bottom][0] = outer[1]
    return face


def _dot_frame(face):
    inset = 2
    right, bottom = len(face[0]) - 1 - inset, len(face) - 1 - inset
    for y in range(inset, bottom + 1):
        for x in range(inset, right + 1):
            if (x in (inset, right) or y in (inset, bottom)) and (x + y) % 2 == 0:
                face[y][x] = DARK


def _pixels(button):
    """(x, y, colour) of the glyph's pixels, the glyph in the middle of the button."""
    for rows in button.layers:
        left = (button.width - len(rows[0])) // 2
        top = (button.height - len(rows)) // 2
        if left < 2 or top < 2:
            raise SourceError(f"button {button.name}: the glyph covers the edge")
        for y, row in enumerate(rows):
            for x, colour in enumerate(row):
                if colour != TRANSPARENT:
                    yield left + x, top + y, colour


def _draw(face, button, shift):
    for x, y, colour in _pixels(button):
        face[y + shift][x + shift] = colour


def _emboss(face, button, shift):
    """The ink in the shade colour with a light rim below; light fills stay the face's colour."""
    ink = {(x, y): colour != LIGHT for x, y, colour in _pixels(button)}
    drawn = [(x + shift, y + shift) for (x, y), inked in ink.items() if inked]
    for x, y in drawn:
        # A light rim on the light sunken edge would melt into it.
        if x + 1 < button.width - 2 and y + 1 < button.height - 2:
            face[y + 1][x + 1] = LIGHT
    for x, y in drawn:
        face[y][x] = SHADE


def _compose(button, sunken, focused=False, disabled=False):
    face = _edge(button.width, button.height, sunken)
    if focused:
        _dot_frame(face)
    (_emboss if disabled else _draw)(face, button, 1 if sunken else 0)
    return face


def faces(buttons):
    """All pictures of the column as {bitmap id: (name, face)}."""
    result = {}

    def add(identifier, name, face):
        if identifier in result:
            raise SourceError(f"two pictures with the id {identifier}")
        result[identifier] = (name, face)

    for button in buttons:
        drawn = (
            _compose(button, sunken=False),
            _compose(button, sunken=True),
            _compose(button, sunken=False, focused=True),
            _compose(button, sunken=False, disabled=True),
        )
        for offset, (state, face) in enumerate(zip(STATES, drawn)):
            add(button.identifier + offset, f"{button.name}_{state}", face)
        if button.pressed_in_ids:
            focused, disabled = button.pressed_in_ids
            name = f"{button.name}_in"
            add(focused, f"{name}_focused", _compose(button, sunken=True, focused=True))
            add(disabled, f"{name}_disabled", _compose(button, sunken=True, disabled=True))
    return result
