"""Reads GoogleTest sources: which tests they hold, what each says, and what helps it.

Knows TEST, TEST_F and TEST_P with INSTANTIATE_TEST_SUITE_P in the same file. Typed tests are not
known, and disabled ones do not count: GoogleTest does not run them.
"""

import re
from dataclasses import dataclass

# Where a brace or a name is none: numbers come along for the quotes that part their digits.
_TOKEN = re.compile(
    r"""(?P<comment> //(?:\\\n|[^\n])* | /\*.*?\*/ )
      | (?P<text> \b(?:u8|[uUL])?R"(?P<mark>[^()\\\s]*)\(.*?\)(?P=mark)"
                | "(?:\\.|[^"\\])*" | '(?:\\.|[^'\\])*' )
      | (?<!\w)\d(?:'?[\w.])*""",
    re.DOTALL | re.VERBOSE,
)
_TEST = re.compile(r"\b(TEST|TEST_F|TEST_P)\s*\(\s*(\w+)\s*,\s*(\w+)\s*\)\s*\{")
_INSTANTIATION = re.compile(r"\bINSTANTIATE_TEST_SUITE_P\s*\(\s*(\w*)\s*,\s*(\w+)\s*,")


@dataclass(frozen=True)
class Test:
    """One test; its code keeps string literals and has no comments."""

    name: str  # as GoogleTest prints it, with * for what distinguishes the cases of a TEST_P
    body: str
    helpers: str  # what stands in its file outside of all tests

    def mentions(self, word):
        return any(re.search(rf"\b{word}\b", code) for code in (self.body, self.helpers))


def _blank(text):
    return re.sub(r"[^\n]", " ", text)


def _without(text, *kinds):
    """The text with tokens of these kinds blanked, everything else in its place."""
    return _TOKEN.sub(
        lambda token: _blank(token[0]) if any(token[kind] for kind in kinds) else token[0], text
    )


def _end_of_block(shape, start):
    """The place behind the brace that closes the one at `start`."""
    depth = 0
    for brace in re.finditer(r"[{}]", shape[start:]):
        depth += 1 if brace[0] == "{" else -1
        if depth == 0:
            return start + brace.end()
    return len(shape)


def _names(kind, suite, test, prefixes):
    if suite.startswith("DISABLED_") or test.startswith("DISABLED_"):
        return []
    if kind != "TEST_P":
        return [f"{suite}.{test}"]
    return [f"{prefix}/{suite}.{test}/*" if prefix else f"{suite}.{test}/*" for prefix in prefixes]


def general_name(name):
    """The name with * for the case of a TEST_P: A/B.C/7 is A/B.C/*."""
    return re.sub(r"(\..*?)/.*$", r"\1/*", name)


def tests_in(text):
    """The tests of one source file."""
    code = _without(text, "comment")
    shape = _without(text, "comment", "text")
    prefixes = {}
    for instantiation in _INSTANTIATION.finditer(shape):
        prefixes.setdefault(instantiation[2], []).append(instantiation[1])
    found = []
    helpers = code
    for match in _TEST.finditer(shape):
        start = match.end() - 1
        end = _end_of_block(shape, start)
        helpers = helpers[: match.start()] + _blank(code[match.start() : end]) + helpers[end:]
        for name in _names(match[1], match[2], match[3], prefixes.get(match[2], [])):
            found.append((name, code[start:end]))
    return [Test(name, body, helpers) for name, body in found]


def built_sources(root):
    """The test sources below `root` that a CMakeLists.txt names: others are not run."""
    found = set()
    for listing in root.rglob("CMakeLists.txt"):
        code = re.sub(r"#.*", "", listing.read_text(encoding="utf-8"))
        names = re.findall(r"[\w./-]+_test\.cpp", code)
        found.update((listing.parent / name).resolve() for name in names)
    return sorted(path for path in found if path.exists())
