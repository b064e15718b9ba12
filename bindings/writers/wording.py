"""The header's comments, worded for callers that name the instance in each call."""

import re
import textwrap

from description import CONSTANT_PREFIX, Constant, ConstantGroup

MADE_FROM = "Made from tavix.h by bindings/make_bindings.py; changes belong there."

# The refusals of the layer itself.
LAYER_CODES = ConstantGroup(
    ["What the layer itself refuses: the codes of its own."],
    [Constant("NoSuchInstance", "int", "-101", "an instance outside 0..4"),
     Constant("WrongThread", "int", "-102", "called on another thread than that of the instances"),
     Constant("NullOutput", "int", "-103", "a null where the call has to write"),
     Constant("Failed", "int", "-104", "no memory, or an exception within the call")])

# The comments of the calls that are about the current instance itself.
_OWN_COMMENTS = {
    "SetIdx": ["Makes instance `index` current for the calls of tavix.dll itself. No call of this "
               "layer needs it or changes it."],
    "GetIdx": ["Writes the instance that is current for the calls of tavix.dll itself, 0 to 4."],
}

_REWORDED = [
    (r"the current instance's", "the instance's"),
    (r"the current instance", "the instance"),
    (r"Of the instances that remain, the one with the highest index becomes current; when none "
     r"remains, the index stays\. ", ""),
    (r"\bTavix_(?=[A-Z])", "{prefix}"),
]


def _paragraphs(lines):
    """Runs of lines that are filled together: blank lines and indented ones stand alone."""
    run = []
    for line in lines:
        if not line or line.startswith(" "):
            if run:
                yield " ".join(run)
            run = []
            yield line
        else:
            run.append(line)
    if run:
        yield " ".join(run)


def upper_case(name):
    """ButtonColumn as BUTTON_COLUMN."""
    return re.sub(r"(?<=[a-z])(?=[A-Z])", "_", name).upper()


def comment_of(call, prefix, spelled):
    """The comment of a call as filled paragraphs: see `reworded`."""
    return reworded(_OWN_COMMENTS.get(call.name, call.comment), prefix, spelled)


def reworded(lines, prefix, spelled):
    """The lines as filled paragraphs, in which calls are named with `prefix` and constants as
    `spelled` gives them."""
    paragraphs = []
    for text in _paragraphs(lines):
        for pattern, replacement in _REWORDED:
            text = re.sub(pattern, replacement.format(prefix=prefix), text)
        text = re.sub(rf"\b{CONSTANT_PREFIX}(\w+)", lambda name: spelled(name[1]), text)
        paragraphs.append(text)
    return paragraphs


def as_comment(paragraphs, mark, width=100, indent=""):
    """The paragraphs as lines of a comment that begin with `mark`."""
    lines = []
    for text in paragraphs:
        filled = textwrap.wrap(text, width - len(indent) - len(mark) - 1,
                               break_long_words=False, break_on_hyphens=False) or [""]
        lines += [f"{indent}{mark} {line}".rstrip() for line in filled]
    return lines


def words_of(flat_call, mark, spelled):
    """The comment of a call of the C layer as lines that begin with `mark`."""
    if not flat_call.call:
        return []
    return as_comment(comment_of(flat_call.call, "TavixC_", spelled), mark)


def constant_lines(description, mark, spelled, written, indent="", gap="  "):
    """The layer's codes and the fixed values with their comments, a blank line before each group.

    `written` makes the line of a constant from it and the longest name of its group, without its
    note, which `gap` divides from the longest line.
    """
    lines = []
    for group in [LAYER_CODES, *description.constants]:
        lines += [""] + as_comment(reworded(group.comment, "TavixC_", spelled), mark,
                                   indent=indent)
        longest = max(len(constant.name) for constant in group.constants)
        texts = [indent + written(constant, longest) for constant in group.constants]
        width = max(len(text) for text in texts)
        for text, constant in zip(texts, group.constants):
            lines.append(f"{text.ljust(width)}{gap}{mark} {constant.note}" if constant.note else text)
    return lines
