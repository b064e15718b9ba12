"""The header's comments, worded for callers that name the instance in each call."""

import re
import textwrap

MADE_FROM = "Made from tavix.h by bindings/make_bindings.py; changes belong there."

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


def comment_of(call, prefix):
    """The comment of a call as filled paragraphs, its calls named with `prefix`."""
    return reworded(_OWN_COMMENTS.get(call.name, call.comment), prefix)


def reworded(lines, prefix):
    paragraphs = []
    for text in _paragraphs(lines):
        for pattern, replacement in _REWORDED:
            text = re.sub(pattern, replacement.format(prefix=prefix), text)
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


def words_of(flat_call, mark):
    """The comment of a call of the C layer as lines that begin with `mark`."""
    if not flat_call.call:
        return []
    return as_comment(comment_of(flat_call.call, "TavixC_"), mark)
