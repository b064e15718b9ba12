"""The exported calls and the fixed values as data, read from the public header.

`include/tavix/tavix.h` is the one description of the calls: names, types, order, families and
comments. Everything that other languages need is made from what `read_header` returns.
"""

import re
from dataclasses import dataclass, field
from pathlib import Path

HEADER = Path(__file__).resolve().parent.parent / "include/tavix/tavix.h"
PREFIX = "Tavix_"
CONSTANT_PREFIX = "kTavix"

# How a parameter travels: by value, as an array the call reads, as a place or an array the call
# writes. Texts and windows are objects of the class framework in the header.
VALUE, ARRAY, OUTPUT, TEXT, TEXT_OUTPUT, WINDOW = (
    "value", "array", "output", "text", "text output", "window")

_TYPES = {
    "int": ("int", VALUE),
    "short": ("short", VALUE),
    "double": ("double", VALUE),
    "UINT": ("unsigned", VALUE),
    "BYTE": ("flag", VALUE),
    "CString": ("text", TEXT),
    "CString*": ("text", TEXT_OUTPUT),
    "CWnd*": ("window", WINDOW),
    "int*": ("int", OUTPUT),
    "short*": ("short", OUTPUT),
    "double*": ("double", OUTPUT),
    "const double*": ("double", ARRAY),
}

# The calls that write as many values as there are, and take nulls while there are none.
ARRAY_OUTPUTS = {"VoLst"}


@dataclass
class Parameter:
    name: str
    type: str   # int, short, double, unsigned, flag, text or window
    kind: str   # one of the kinds above


@dataclass
class Call:
    name: str           # without the prefix
    result: str         # int, void or window
    parameters: list[Parameter]
    comment: list[str] = field(default_factory=list)  # its own lines, without the slashes

    @property
    def outputs(self):
        return [p for p in self.parameters if p.kind in (OUTPUT, TEXT_OUTPUT)]


@dataclass
class Family:
    title: str
    comment: list[str]
    calls: list[Call] = field(default_factory=list)


@dataclass
class Constant:
    name: str   # in words run together, ButtonColumn: each language spells it in its manner
    type: str   # int or double
    value: str  # as it is written
    note: str = ""  # the comment behind it


@dataclass
class ConstantGroup:
    comment: list[str]
    constants: list[Constant] = field(default_factory=list)


@dataclass
class Description:
    version: tuple[int, int, int]
    constants: list[ConstantGroup]
    families: list[Family]

    @property
    def calls(self):
        return [call for family in self.families for call in family.calls]


def _parameter(text):
    match = re.fullmatch(r"\s*(.*?[\s*])(\w+)\s*", text)
    written = re.sub(r"\s*\*", "*", match[1].strip())
    if written not in _TYPES:
        raise ValueError(f"no language knows what to make of the type in '{text.strip()}'")
    kind_of_value, kind = _TYPES[written]
    return Parameter(match[2], kind_of_value, kind)


def _call(text, comment):
    match = re.fullmatch(r"TAVIX_CALL\s+([\w*]+\s*\*?)\s*(\w+)\((.*)\);", text)
    result = {"int": "int", "void": "void", "CWnd*": "window"}[re.sub(r"\s", "", match[1])]
    inside = match[3].strip()
    parameters = [] if inside in ("", "void") else [_parameter(p) for p in inside.split(",")]
    if not match[2].startswith(PREFIX):
        raise ValueError(f"{match[2]} does not begin with {PREFIX}")
    return Call(match[2].removeprefix(PREFIX), result, parameters, comment)


def _constants(text):
    """The fixed values, those that share a comment together."""
    groups, comment = [], []
    for line in text.splitlines():
        constant = re.fullmatch(rf"inline constexpr (int|double) {CONSTANT_PREFIX}(\w+) = "
                                r"([-\d.]+);(?:\s*// (.*))?", line)
        if constant:
            if comment:
                groups.append(ConstantGroup(comment))
            groups[-1].constants.append(
                Constant(constant[2], constant[1], constant[3], constant[4] or ""))
            comment = []
        elif line.startswith("//"):
            comment.append(line[2:].removeprefix(" "))
        elif line.strip():
            raise ValueError(f"no language knows what to make of '{line}'")
    return groups


def parse_header(text):
    """The description in the text of the header; ValueError for what cannot be described."""
    version = tuple(int(re.search(rf"#define TAVIX_VERSION_{part} (\d+)", text)[1])
                    for part in ("MAJOR", "MINOR", "PATCH"))
    fixed = re.search(r"// ---- Fixed values -*\n(.*?)extern \"C\" {", text, re.DOTALL)
    body = text.partition('extern "C" {')[2].partition('}  // extern "C"')[0]
    families, comment, declaration = [], [], ""
    for line in body.splitlines():
        title = re.match(r"// ---- (.*?) -*$", line)
        if title:
            families.append(Family(title[1], []))
            comment = []
        elif declaration or line.startswith("TAVIX_CALL"):
            declaration = f"{declaration} {line.strip()}".strip()
            if declaration.endswith(";"):
                families[-1].calls.append(_call(declaration, comment))
                comment, declaration = [], ""
        elif line.startswith("//"):
            comment.append(line[2:].removeprefix(" "))
        elif not line.strip() and any(comment):
            # A comment with no call below it is the family's.
            families[-1].comment += [text for text in comment if text or families[-1].comment]
            comment = []
    return Description(version, _constants(fixed[1]) if fixed else [], families)


def read_header(path=HEADER):
    return parse_header(path.read_text(encoding="utf-8"))
